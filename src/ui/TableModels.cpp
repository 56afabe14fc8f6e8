#include "ui/TableModels.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "ui/QtText.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace varnik::ui {

bool TableModel::Renew() {
    const int rows = CountRows();
    const int columns = static_cast<int>(Columns().size());
    if (rows == rows_ && columns == columns_ && Contents() == contents_) return false;
    contents_ = Contents();
    if (!Arranged() && rows == rows_ && columns == columns_) {
        if (rows > 0 && columns > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        if (columns > 0) emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
        return true;
    }
    if (!Arranged() && columns == columns_ &&
        rows == rows_ + 1) { // a line was added: the view keeps its place
        beginInsertRows({}, rows_, rows_);
        rows_ = rows;
        endInsertRows();
        emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        return true;
    }
    beginResetModel();
    rows_ = rows;
    columns_ = columns;
    if (sortColumn_ >= columns_) sortColumn_ = -1;
    narrowed_.clear(); // what was looked for was another list's
    Arrange();
    endResetModel();
    return true;
}

int TableModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid()) return 0;
    return Arranged() ? static_cast<int>(order_.size()) : rows_;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const bool check = index.column() == CheckColumn();
    switch (role) {
    case Qt::DisplayRole:
        if (check) return {};
        return ToQt(CellText(ControlRow(index.row()), index.column()));
    case Qt::CheckStateRole:
        if (!check) return {};
        return CellText(ControlRow(index.row()), index.column()) == "-1" ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole: {
        const auto column = static_cast<std::size_t>(index.column());
        const forms::Align align = column < Columns().size() ? Columns()[column].align : forms::Align::Left;
        if (align == forms::Align::Right) return int(Qt::AlignRight | Qt::AlignVCenter);
        if (align == forms::Align::Center) return int(Qt::AlignCenter);
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= static_cast<int>(Columns().size()))
        return {};
    const forms::GridColumn& column = Columns()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) return ToQt(column.caption);
    if (role == Qt::FontRole) return headingFont_;
    if (role == Qt::TextAlignmentRole) {
        if (column.align == forms::Align::Right) return int(Qt::AlignRight | Qt::AlignVCenter);
        if (column.align == forms::Align::Center) return int(Qt::AlignCenter);
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

// ---- The order of the view ----

int TableModel::ControlRow(int viewRow) const {
    if (viewRow < 0 || viewRow >= rowCount()) return -1;
    return Arranged() ? order_[static_cast<std::size_t>(viewRow)] : viewRow;
}

int TableModel::ViewRow(int controlRow) const {
    if (!Arranged()) return controlRow;
    const auto found = std::ranges::find(order_, controlRow);
    return found == order_.end() ? -1 : static_cast<int>(found - order_.begin());
}

void TableModel::sort(int column, Qt::SortOrder order) {
    if (column == sortColumn_ && order == sortOrder_) return;
    beginResetModel();
    sortColumn_ = column < columns_ ? column : -1;
    sortOrder_ = order;
    Arrange();
    endResetModel();
}

void TableModel::Narrow(const QString& text) {
    if (text == narrowed_) return;
    beginResetModel();
    // A longer text is looked for among the rows that had the shorter one.
    const bool further = !narrowed_.isEmpty() && text.startsWith(narrowed_);
    narrowed_ = text;
    if (further)
        KeepNarrowed();
    else
        Arrange();
    endResetModel();
}

void TableModel::KeepNarrowed() {
    const QString text = narrowed_.toCaseFolded();
    std::erase_if(order_, [&](int row) { return !texts_[static_cast<std::size_t>(row)].contains(text); });
}

void TableModel::Arrange() {
    order_.clear();
    if (narrowed_.isEmpty()) texts_ = {};
    if (!Arranged()) return;
    order_.resize(static_cast<std::size_t>(rows_));
    std::iota(order_.begin(), order_.end(), 0);
    if (!narrowed_.isEmpty()) {
        if (texts_.empty()) ReadTexts();
        KeepNarrowed();
    }
    if (sortColumn_ >= 0) Sort(order_);
}

// Every row once, so that the next letter costs no reading.
void TableModel::ReadTexts() {
    texts_.reserve(static_cast<std::size_t>(rows_));
    for (int row = 0; row < rows_; ++row) {
        std::string cells;
        for (int column = 0; column < columns_; ++column) cells += CellText(row, column) + '\n';
        texts_.push_back(ToQt(cells).toCaseFolded());
    }
}

void TableModel::Sort(std::vector<int>& rows) const {
    struct Key {
        bool blank = false;
        double value = 0;
        QString text;
    };
    std::vector<Key> keys(static_cast<std::size_t>(rows_));
    std::vector<std::string> texts(keys.size());
    bool dates = true;
    for (const int row : rows) {
        const auto at = static_cast<std::size_t>(row);
        texts[at] = Trim(CellText(row, sortColumn_));
        // A line that is not filled in yet stays behind the others, whatever its amounts.
        keys[at].blank = texts[at].empty() || Trim(CellText(row, 0)).empty();
        dates = dates && (texts[at].empty() || IsDate(texts[at], regional_));
    }
    const bool amounts = Columns()[static_cast<std::size_t>(sortColumn_)].align == forms::Align::Right;
    for (const int row : rows) {
        const auto at = static_cast<std::size_t>(row);
        if (amounts)
            keys[at].value = ToNumber(texts[at], regional_);
        else if (const auto date = dates ? ParseDate(texts[at], regional_) : std::nullopt)
            keys[at].value = date->day + date->second / 86400.0;
        else
            keys[at].text = ToQt(texts[at]).toCaseFolded();
    }
    const bool down = sortOrder_ == Qt::DescendingOrder;
    std::ranges::stable_sort(rows, [&](int left, int right) {
        const Key& a = keys[static_cast<std::size_t>(left)];
        const Key& b = keys[static_cast<std::size_t>(right)];
        if (a.blank != b.blank) return b.blank;
        const Key &low = down ? b : a, &high = down ? a : b;
        return low.value != high.value ? low.value < high.value : low.text < high.text;
    });
}

} // namespace varnik::ui
