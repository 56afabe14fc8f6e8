#include "document/OrderLines.h"

#include "common/Text.h"

namespace varnik::document {

OrderLines::OrderLines(forms::Screen& screen, LineLayout layout)
    : Grid(screen, "OrderGrid"), emptyRow_(std::move(layout.emptyRow)) {
    SetColumns(std::move(layout.columns));
    ClearGrid();
}

void OrderLines::ClearGrid() {
    SetRows(2);
    Write(1, emptyRow_);
    SetRow(1);
}

void OrderLines::Grow() {
    AddRow();
    Write(LastRow(), emptyRow_);
}

void OrderLines::Write(int row, const std::vector<std::string>& cells) {
    for (int column = 0; column < static_cast<int>(cells.size()); ++column)
        SetCell(row, column, cells[static_cast<std::size_t>(column)]);
}

void OrderLines::WriteHeadings(const std::vector<std::string>& headings) { Write(0, headings); }

void OrderLines::RemoveCurrentRow() {
    if (LastRow() == 1) return ClearGrid();
    RemoveRow(Row());
    if (IsFilled(LastRow())) Grow();
}

std::vector<int> OrderLines::RowsOf(std::string_view code) const {
    std::vector<int> found;
    for (int row = 1; row < Rows(); ++row)
        if (IsFilled(row) && Upper(Trim(Cell(row, 0))) == Upper(Trim(code))) found.push_back(row);
    return found;
}

bool OrderLines::IsFilled(int row) const { return row > 0 && !Trim(Cell(row, 0)).empty(); }

} // namespace varnik::document
