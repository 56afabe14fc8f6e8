#pragma once
// The two tables of a screen: Grid holds the lines of a document as texts, ListGrid the rows of a search.

#include "platform/forms/Control.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnik::forms {

enum class Align { Left, Right, Center };

struct GridColumn {
    std::string caption;
    Align align = Align::Left;
    int width = 12; // characters
};

// Text cells in rows and columns, both counted from 0; row 0 holds the headings.
class Grid : public Control {
public:
    Grid(Screen& screen, std::string name) : Control(screen, Kind::Grid, std::move(name)) {}

    void SetColumns(std::vector<GridColumn> columns);
    void SetHeading(int column, std::string caption);
    const std::vector<GridColumn>& Columns() const { return columns_; }
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    int Rows() const { return static_cast<int>(cells_.size()) + 1; } // the heading row included
    void SetRows(int rows); // grows with empty rows, or cuts the last ones
    void AddRow() { SetRows(Rows() + 1); }
    void RemoveRow(int row);

    const std::string& Cell(int row, int column) const;  // "" outside
    void SetCell(int row, int column, std::string text); // nothing outside the rows and columns
    int Row() const { return row_; }                     // the current row; 0 when there is none
    void SetRow(int row);                                // kept within the rows; no event
    void SelectRow(int row);                             // by a person: makes it current, then onRowChange

    unsigned Contents() const { return contents_; } // another number after a change of headings or cells

    std::function<void()> onRowChange;

private:
    void ContentsChanged() {
        ++contents_;
        Changed();
    }

    std::vector<GridColumn> columns_;
    std::vector<std::vector<std::string>> cells_;
    int row_ = 0;
    unsigned contents_ = 0;
};

// Rows of a search or look-up list. A row is the tab-joined text of its cells, kept as it was added.
class ListGrid : public Control {
public:
    ListGrid(Screen& screen, std::string name) : Control(screen, Kind::ListGrid, std::move(name)) {}

    void SetColumns(std::vector<GridColumn> columns);
    const std::vector<GridColumn>& Columns() const { return columns_; }
    void Clear();
    void AddItem(std::string tabJoined);
    // Takes many rows and tells the widget once.
    void SetItems(std::vector<std::string> tabJoined);
    // Takes this many rows whose lines are asked for one by one as they are looked at.
    void SetSource(int rows, std::function<std::string(int row)> line);
    int Rows() const { return line_ ? sourceRows_ : static_cast<int>(rows_.size()); }
    std::string Cell(int row, int column) const; // both from 0; "" outside
    void SetCell(int row, int column, std::string text);
    int Row() const { return row_; } // current row from 0, -1 when there is none
    void SetRow(int row);
    void SelectRow(int row);   // by a person, then onRowChange
    void ActivateRow(int row); // by a person (double click, or Enter where the screen asks): onActivate
    // A column of yes/no cells ("-1" and "0") that a person ticks; -1 for none.
    int CheckColumn() const { return checkColumn_; }
    void SetCheckColumn(int column) { checkColumn_ = column; }
    void ToggleCheck(int row);                   // by a person: turns the yes/no cell of the row over
    int RowHeight() const { return rowHeight_; } // in the list's own units, 0 for its own choice
    void SetRowHeight(int height);
    unsigned Contents() const { return contents_; } // another number after a change of headings or cells

    std::function<void()> onRowChange;
    std::function<void()> onActivate;

private:
    const std::string& Line(int row) const;
    void TakeOver();
    void ContentsChanged() {
        ++contents_;
        Changed();
    }

    std::vector<GridColumn> columns_;
    std::vector<std::string> rows_;
    std::function<std::string(int row)> line_; // of a source
    int sourceRows_ = 0;
    mutable int lineRow_ = -1; // the row of the source that was asked for last
    mutable std::string lineText_;
    int row_ = -1, checkColumn_ = -1, rowHeight_ = 0;
    unsigned contents_ = 0;
};

} // namespace varnik::forms
