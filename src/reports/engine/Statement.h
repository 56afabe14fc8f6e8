#pragma once
// Looking into the text of a statement, as far as a report has to: which columns it asks for, and for
// which document. Joined texts come as they are, faults included.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace varnik::reports {

// Whether every text literal of the statement is closed. One that is not comes from an apostrophe in what
// somebody typed.
bool LiteralsClosed(std::string_view sql);

// The statement with Null in place of every column for which `runs` refuses a statement that asks for it
// alone; nothing when the statement is not of the form SELECT columns FROM ..., or when no column is left.
std::optional<std::string> WithoutMissingColumns(const std::string& sql,
                                                 const std::function<bool(const std::string&)>& runs);

// The text compared with a column of this name ("Invoice.NoInvoice ='000000012300'"), first one; nothing
// when there is none.
std::optional<std::string> ComparedWith(std::string_view sql, std::string_view column);

// The month and year that a column is compared with ("month(Tanggal)= 9 And Year (Tanggal) = 2026"); nothing
// when it is not.
struct AskedMonth {
    int month, year;
};
std::optional<AskedMonth> MonthAskedOf(std::string_view sql, std::string_view column);

// Puts the document's number in place of each {Column} of a stored query, as a text literal, from the
// statement that gave way to it. DataError when the statement compares nothing with that column.
std::string ForDocument(const std::string& query, std::string_view statement, const std::string& file);

} // namespace varnik::reports
