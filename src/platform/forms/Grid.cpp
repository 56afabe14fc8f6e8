#include "platform/forms/Grid.h"

#include "common/Text.h"

#include <algorithm>

namespace varnik::forms {

namespace {
const std::string nothing;
} // namespace

void Grid::SetColumns(std::vector<GridColumn> columns) {
    columns_ = std::move(columns);
    for (auto& row : cells_) row.resize(columns_.size());
    ContentsChanged();
}

void Grid::SetHeading(int column, std::string caption) { SetCell(0, column, std::move(caption)); }

void Grid::SetRows(int rows) {
    cells_.resize(static_cast<std::size_t>(std::max(rows - 1, 0)), std::vector<std::string>(columns_.size()));
    row_ = std::min(row_, Rows() - 1);
    ContentsChanged();
}

void Grid::RemoveRow(int row) {
    if (row < 1 || row >= Rows()) return;
    cells_.erase(cells_.begin() + (row - 1));
    row_ = std::min(row_, Rows() - 1);
    ContentsChanged();
}

const std::string& Grid::Cell(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0 || column >= ColumnCount()) return nothing;
    const auto at = static_cast<std::size_t>(column);
    return row == 0 ? columns_[at].caption : cells_[static_cast<std::size_t>(row - 1)][at];
}

void Grid::SetCell(int row, int column, std::string text) {
    if (row < 0 || row >= Rows() || column < 0 || column >= ColumnCount()) return;
    const auto at = static_cast<std::size_t>(column);
    std::string& cell = row == 0 ? columns_[at].caption : cells_[static_cast<std::size_t>(row - 1)][at];
    if (cell == text) return;
    cell = std::move(text);
    ContentsChanged();
}

void Grid::SetRow(int row) {
    row = std::clamp(row, 0, Rows() - 1);
    if (row_ == row) return;
    row_ = row;
    Changed();
}

void Grid::SelectRow(int row) {
    Person([&] {
        SetRow(row);
        if (onRowChange) onRowChange();
    });
}

void ListGrid::SetColumns(std::vector<GridColumn> columns) {
    columns_ = std::move(columns);
    ContentsChanged();
}

void ListGrid::Clear() { SetItems({}); }

void ListGrid::AddItem(std::string tabJoined) {
    TakeOver();
    rows_.push_back(std::move(tabJoined));
    if (row_ < 0) row_ = 0;
    ContentsChanged();
}

void ListGrid::SetItems(std::vector<std::string> tabJoined) {
    line_ = nullptr;
    rows_ = std::move(tabJoined);
    row_ = rows_.empty() ? -1 : 0;
    ContentsChanged();
}

void ListGrid::SetSource(int rows, std::function<std::string(int row)> line) {
    rows_.clear();
    sourceRows_ = rows;
    line_ = std::move(line);
    lineRow_ = -1;
    row_ = rows > 0 ? 0 : -1;
    ContentsChanged();
}

// A list that is changed row by row keeps its rows itself.
void ListGrid::TakeOver() {
    if (!line_) return;
    rows_.reserve(static_cast<std::size_t>(sourceRows_));
    for (int row = 0; row < sourceRows_; ++row) rows_.push_back(line_(row));
    line_ = nullptr;
}

// The cells of a row are asked for one after the other, so the last line is kept.
const std::string& ListGrid::Line(int row) const {
    if (!line_) return rows_[static_cast<std::size_t>(row)];
    if (lineRow_ != row) {
        lineText_ = line_(row);
        lineRow_ = row;
    }
    return lineText_;
}

std::string ListGrid::Cell(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0) return "";
    std::string_view rest = Line(row);
    for (; column > 0; --column) {
        const auto tab = rest.find('\t');
        if (tab == std::string_view::npos) return "";
        rest.remove_prefix(tab + 1);
    }
    return std::string(rest.substr(0, rest.find('\t')));
}

void ListGrid::SetCell(int row, int column, std::string text) {
    if (row < 0 || row >= Rows() || column < 0) return;
    TakeOver();
    std::string& line = rows_[static_cast<std::size_t>(row)];
    std::vector<std::string> cells = Split(line, '\t');
    if (static_cast<std::size_t>(column) >= cells.size()) cells.resize(static_cast<std::size_t>(column) + 1);
    cells[static_cast<std::size_t>(column)] = std::move(text);
    line = std::move(cells.front());
    for (std::size_t i = 1; i < cells.size(); ++i) line += '\t' + cells[i];
    ContentsChanged();
}

void ListGrid::SetRow(int row) {
    row = std::clamp(row, -1, Rows() - 1);
    if (row_ == row) return;
    row_ = row;
    Changed();
}

void ListGrid::SelectRow(int row) {
    Person([&] {
        SetRow(row);
        if (onRowChange) onRowChange();
    });
}

void ListGrid::ActivateRow(int row) {
    if (row < 0 || row >= Rows()) return;
    Person([&] {
        SetRow(row);
        if (onActivate) onActivate();
    });
}

void ListGrid::ToggleCheck(int row) {
    if (checkColumn_ < 0 || row < 0 || row >= Rows()) return;
    Person([&] {
        SetRow(row);
        SetCell(row, checkColumn_, Cell(row, checkColumn_) == "-1" ? "0" : "-1");
        RaiseChange();
    });
}

void ListGrid::SetRowHeight(int height) {
    rowHeight_ = height;
    Changed();
}

} // namespace varnik::forms
