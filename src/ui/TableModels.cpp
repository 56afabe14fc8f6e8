#include "ui/TableModels.h"

#include "ui/QtText.h"

namespace varnik::ui {

void TableModel::Renew() {
    const int rows = CountRows();
    const int columns = static_cast<int>(Columns().size());
    if (rows == rows_ && columns == columns_) {
        if (rows > 0 && columns > 0) emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        if (columns > 0) emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
        return;
    }
    if (columns == columns_ && rows == rows_ + 1) { // a line was added: the view keeps its place
        beginInsertRows({}, rows_, rows_);
        rows_ = rows;
        endInsertRows();
        emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        return;
    }
    beginResetModel();
    rows_ = rows;
    columns_ = columns;
    endResetModel();
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const bool check = index.column() == CheckColumn();
    switch (role) {
    case Qt::DisplayRole:
        if (check) return {};
        return ToQt(CellText(index.row(), index.column()));
    case Qt::CheckStateRole:
        if (!check) return {};
        return CellText(index.row(), index.column()) == "-1" ? Qt::Checked : Qt::Unchecked;
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

} // namespace varnik::ui
