#pragma once
// Texts with places to fill, as report definitions write them: "Total {JenisProduk}". In braces stand
//   {Name}         a column of the row, else a parameter or a company line (Judul1) of the request
//   {Name:#,##0}   a number with this mask instead of the usual one
//   {sum Name}     the sum of a column over the rows meant (group or whole report)
//   {words X}      the amount X, one of the above, in words
//   {month X}      the month of the date X with its year
//   {given Name}   a column in which "0" and "-" stand for nothing (the cheque number of a cash voucher)
//   {A|B}          the first of them that is not empty; 'a text' in its place stands for itself
// A place without a value comes out empty.

#include "reports/engine/Rows.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::reports {

class Template {
public:
    Template() = default;
    // std::invalid_argument with a clear sentence when a brace is missing or a place is empty.
    explicit Template(std::string_view text);

    struct Place {
        std::string name;
        std::string mask;
        bool sum = false;
        bool words = false;
        bool month = false;
        bool given = false;
    };
    // `fill` gives the text of one place.
    std::string Fill(const std::function<std::string(const Place&)>& fill) const;
    bool Empty() const { return pieces_.empty(); }
    // The place of a text that is one place and nothing else, for its value as it is; else null.
    const Place* Only() const;
    // The names of all places, for looking up whether any is there.
    std::vector<std::string> Names() const;

private:
    struct Piece {
        std::string text;
        std::vector<Place> places; // alternatives; empty for a plain text
        std::string instead;       // when all of them are empty
    };
    std::vector<Piece> pieces_;
};

} // namespace varnik::reports
