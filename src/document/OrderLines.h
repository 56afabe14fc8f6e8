#pragma once
// The grid of a document's lines. Below the last filled row stands an empty one that takes the next line;
// what its cells hold is fixed by the screen, since posting tells a line from it by them.

#include "platform/forms/Grid.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnik::document {

// What tells the grids of the screens apart.
struct LineLayout {
    std::vector<forms::GridColumn> columns;
    std::vector<std::string> emptyRow;
};

class OrderLines : public forms::Grid {
public:
    OrderLines(forms::Screen& screen, LineLayout layout);

    // Back to one empty row.
    void ClearGrid();
    int LastRow() const { return Rows() - 1; }
    // Puts an empty row below the last one.
    void Grow();
    // Takes the current row away; an empty one always stays to take the next line.
    void RemoveCurrentRow();
    // Writes cells from column 0 on; columns beyond the texts keep what they hold.
    void Write(int row, const std::vector<std::string>& cells);
    void WriteHeadings(const std::vector<std::string>& headings);
    bool IsFilled(int row) const; // a row that holds a code
    // The filled rows of a code, compared without regard to case and outer blanks.
    std::vector<int> RowsOf(std::string_view code) const;

private:
    std::vector<std::string> emptyRow_;
};

} // namespace varnik::document
