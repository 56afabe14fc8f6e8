#pragma once
// A report definition: the layout that stands behind a file name. It is a TOML file named .rpt in the
// program's Report folder; Report/README.md describes the format for whoever writes one.
//
// One definition may serve several statements. A column that a statement does not bring stays empty, or is
// left out where the definition marks it optional.

#include "reports/engine/Expression.h"
#include "reports/engine/Page.h"
#include "reports/engine/Template.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varnik::reports {

// In which form of the report a column stands.
enum class Show { Always, Detail, Summary };

// Days from a date column to today that a column of an ageing report takes; both ends belong to it.
struct Age {
    std::string date;
    int from = -1'000'000;
    int upTo = 1'000'000;
};

// A column takes its value from exactly one of: field, formula, text, days, running balance.
struct Column {
    std::string heading;
    std::string field;
    std::optional<Expression> formula;
    Template text;
    std::string days;           // days from this date column to today
    bool running = false;       // the balance after this row
    double width = 20;          // mm; figures get more when they need it
    bool flex = false;          // shares what is left of the page's width, never less than `width`
    std::optional<Align> align; // figures right, all else left
    std::string mask;           // of figures; "" shows decimals only when a value of the column has some
    bool total = false;         // summed in group and closing lines
    std::string totalOf;        // summed for the groups by this column alone: quantities of one product
    Show show = Show::Always;
    bool optional = false;  // left out when the statement does not bring it
    bool hideZero = false;  // a zero stays blank
    std::optional<Age> age; // the value only when its row's age lies in these bounds
};

struct Group {
    std::string by;       // a change of this column's value begins a new group
    Template header;      // "" for none
    Template footer;      // in front of the totals; "" for none
    int footerFrom = 1;   // rows that a group has at least to get a footer
    bool summary = false; // in the summary form the whole group is one line
    bool newPage = false; // begins on a page of its own
    std::string heading;  // of the column that a spreadsheet gets for the header's text
};

// Amount carried from row to row.
struct Running {
    Expression change;   // what a row adds: "Debit - Kredit"
    std::string opening; // parameter with the balance before the first row
    std::string closing; // parameter with the balance after the last row
    // Column that holds the balance after each row: then every innermost group opens and closes by itself.
    std::string balance;
    std::string openingCaption = "Opening balance";
    std::string closingCaption = "Closing balance";
};

struct Labelled {
    std::string label;
    Template text;
};

// A printed document (invoice, voucher): head and foot around the lines of one number.
struct Document {
    std::string heading;          // "INVOICE"
    std::string toCaption;        // over the address
    std::vector<Template> to;     // lines that come out empty are left out
    std::vector<Labelled> fields; // number, date ...; the same
    std::vector<Labelled> totals; // the last is the large one
    std::string wordsCaption = "In words";
    Template words;
    std::vector<Template> notes;
    std::vector<std::string> signatures;
};

struct Definition {
    std::string file;              // "Invoice.rpt"
    Template title;                // used when neither a parameter nor the request brings one
    Template subtitle;             // "{SubJudul}" unless set
    std::string query;             // stored query; {Column} stands for the document's number
    bool across = false;           // A4 across
    double fontSize = 9;           // points; smaller when the columns need it
    bool headings = true;          // column headings
    std::vector<std::string> sort; // column names, over the statement's order
    std::string leaveOutZero;      // rows whose value in this column is 0 are left out
    std::vector<Column> columns;
    std::vector<Group> groups; // outermost first
    bool summary = false;      // in the summary form, whatever the parameter Detail says
    std::string totalCaption = "Total";
    std::optional<Running> running;
    std::optional<Document> document;
};

// Finds the file without regard to the case of its name, and reads it. DataError when it is missing or
// broken; the description names the file and, for a broken one, the line.
Definition LoadDefinition(const std::filesystem::path& folder, const std::string& file);
// The same from a text, for `file` in descriptions.
Definition ReadDefinition(const std::string& text, const std::string& file);

} // namespace varnik::reports
