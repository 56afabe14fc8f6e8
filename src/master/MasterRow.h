#pragma once
// What tells the eight master screens apart, as data. MasterScreen is their one flow; each screen's file
// holds its row of this table.

#include "platform/forms/Grid.h"

#include <span>
#include <string_view>

namespace varnik {

enum class Lookup {
    Statement, // a select of its own
    Find       // in the screen's main recordset
};

enum class Shows {
    CodeInBox,
    CurrentRow, // of the main recordset
    SavedRow,   // where Edit or Delete last stood, else the current row
    LastRow,
    Nothing // empty fields
};

// A message that a screen may give where others stay silent.
struct Notice {
    bool shown = false;
    std::string_view text{};
    bool withLastError = false; // followed by the description of the last failure, normally empty
};
inline constexpr Notice LastErrorAlone{true, "", true};
inline constexpr Notice ItemNotFound{true, "Item with this code is not found ..."};

struct NextCodeRow {
    std::string_view statement{}; // a Max over the code column, aliased Kode; "" proposes nothing
    std::string_view start{};     // for an empty table
    int width = 10;
    bool throughNullToNumber = false; // reads a highest code that is no number as 0
    bool userAppended = false;        // NoUser follows the padded number
};

// The criteria are compared with the literal as it stands, the typed one in capitals.
struct SearchClause {
    std::string_view literal; // "" for any other criterion
    std::string_view where;
    bool number = false; // the value as a number, without "%"
};

struct ListColumn {
    std::string_view caption;
    int width = 12; // characters
};

struct SearchRow {
    std::string_view select;
    std::span<const std::string_view> criteria;
    std::span<const SearchClause> clauses; // the last one has no literal
    std::string_view order;
    std::span<const ListColumn> columns;
    int amount = -1;              // the column shown as "#,##0"
    bool activationTakes = false; // activating a row does what cmdTutup does
};

struct ListRow {
    std::string_view statement;
    std::span<const ListColumn> columns;
    bool repeatsBlank = false; // a row with the code of the row before shows blank
    int activated = -1;        // the column that goes into the code box, -1 when activating does nothing
};

struct DeleteRow {
    Lookup lookup = Lookup::Find;
    std::string_view statement{}; // up to the code; "" deletes the row of the main recordset
    std::string_view guard{};     // the column whose amount refuses the deletion
    bool guardsNegative = false;  // any amount but zero refuses, not only one above it
    std::string_view refused{}, notFound{}, confirm{}, failed{};
    Shows notFoundShows = Shows::SavedRow;
    bool requeries = false; // before it moves on
    Shows shows = Shows::CurrentRow;
};

struct ReportRow {
    std::string_view file, statement{}, title;
    int firstTitle = 0;
    bool reportsFailure = true; // a failed launch shows its description, or nothing
};

struct MasterRow {
    std::string_view name, caption;
    std::string_view codeColumn;
    std::string_view main{};   // statement of the recordset kept open, "" for none
    std::string_view select{}; // up to the code, for Lookup::Statement
    std::string_view show{};   // the same for ShowRecord; "" reads `select`, or the main recordset without
    NextCodeRow nextCode{};

    Lookup saveLookup = Lookup::Find, editLookup = Lookup::Find;
    bool clearsFirst = true; // ShowRecord empties the fields before it reads
    bool keepsCode = false;  // ClearFields leaves the code box
    Notice duplicate{}, missing{};
    bool reportsSave = false; // a failing save shows its description
    Shows savedShows = Shows::CodeInBox;
    Shows cancelShows = Shows::CurrentRow;
    std::string_view editNotFound;
    Shows editNotFoundShows = Shows::CurrentRow;

    std::string_view existing{}; // an existing code while adding: this message, or "" runs Cancel
    bool escapeEmptiesCode = false, escapeCancels = true;
    bool unknownCodeClears = false; // leaving the code box with a code that is not there
    std::string_view nameMessage{}; // leaving the name empty
    bool nameReturns = false;       // and the focus goes back to it

    DeleteRow remove;
    ReportRow report;
    const SearchRow* search = nullptr; // the panel frmCari
    const ListRow* list = nullptr;     // or the permanent list
};

} // namespace varnik
