#pragma once
// The machine's settings for dates and numbers, as one value. It is read once at start-up
// (platform/regional) and handed to whoever reads or writes a text that a person sees.

#include "common/DateTime.h"
#include "common/Value.h"

#include <optional>
#include <string>
#include <string_view>

namespace varnik {

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay, YearDayMonth };

struct Regional {
    DateOrder order = DateOrder::MonthDayYear;
    std::string dateSeparator = "/"; // any length
    bool fourDigitYear = true;
    char decimal = '.';
    char group = ',';
};

// The machine's short date ("31/12/2000"), as text joined to a screen or to SQL in the machine's order.
std::string ShortDate(DateTime date, const Regional& regional);
// A date in the pieces of a mask made of dd, mm, yy, yyyy and any separators; hh:mm:ss shows the time.
std::string FormatDate(DateTime date, std::string_view mask);
// The mask that turns dates into text in the machine's order ("mm/dd/yyyy"); "" for a short date that is
// neither 8 nor 10 characters long.
std::string DateMaskOfMachine(const Regional& regional);
// Reads a date in the machine's order; takes the machine's separator, "/", "-" and ".", surrounding
// blanks, one- and two-digit parts (years 00 to 29 are 20xx), a trailing time, and ISO. Nothing when the
// text is no date.
std::optional<DateTime> ParseDate(std::string_view text, const Regional& regional);

// Masks of the screens: "#,##0", "#,##0.#0", "#0". Rounds half away from zero on the 15-digit decimal
// text of the number. Separators are the machine's.
std::string FormatNumber(double number, std::string_view mask, const Regional& regional);
// The number in full without grouping, with the machine's decimal separator: what an unmasked field shows.
std::string PlainNumber(double number, const Regional& regional);
// The same with a full stop, for SQL text.
std::string SqlNumber(double number);
// An amount that a statement takes as "#,##0" shows it. Wanted: a comma between the groups goes into the
// statement too, which then fails from 1,000 on. No other separator does: no machine books another amount
// than the one shown.
std::string MaskedInSql(double number, const Regional& regional);
// Whether the whole text reads as a number under the machine's settings (sign, grouping, blanks around).
bool IsNumeric(std::string_view text, const Regional& regional);
// Whether the text reads as a date.
bool IsDate(std::string_view text, const Regional& regional);
// What a value shows in a field: numbers plain, dates short, "True"/"False", "" for Null.
std::string ShowValue(const Value& value, const Regional& regional);

} // namespace varnik
