#pragma once
// The models behind the tables. They hold no cells: what a view paints is read from the control at that
// moment, so that a list of 100,000 rows costs what its visible rows cost.
//
// A person may sort the rows by a heading and narrow a list to a text. Both are the view's alone: the control
// keeps its rows as they are, and screens go on reading them by their own numbers.

#include "common/Regional.h"
#include "platform/forms/Grid.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QVariant>

namespace varnik::ui {

class TableModel : public QAbstractTableModel {
public:
    explicit TableModel(const Regional& regional) : regional_(regional) {}

    // Takes in what the control holds now; false when it is what it was.
    bool Renew();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Amounts and dates by their value, texts without regard to case, blanks last; -1 for the control's
    // own order. Reads the whole column.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    // Only rows that have this text in one of their cells, without regard to case; "" for all.
    void Narrow(const QString& text);
    const QString& Narrowed() const { return narrowed_; }
    bool Arranged() const { return sortColumn_ >= 0 || !narrowed_.isEmpty(); }

    // A row of the view as the control counts it, and the other way round; -1 for none.
    int ControlRow(int viewRow) const;
    int ViewRow(int controlRow) const;
    int TotalRows() const { return rows_; }

    // Under a style sheet the headings do not take the table's letters over.
    void SetHeadingFont(const QFont& font) { headingFont_ = font; }

    virtual const std::vector<forms::GridColumn>& Columns() const = 0;
    virtual int CurrentRow() const = 0;      // as the model counts the control's rows, -1 for none
    virtual void Select(int controlRow) = 0; // by a person

protected:
    virtual unsigned Contents() const = 0;
    virtual int CountRows() const = 0;
    virtual std::string CellText(int row, int column) const = 0;
    virtual int CheckColumn() const { return -1; }

private:
    void Arrange();
    void ReadTexts();
    void KeepNarrowed();
    void Sort(std::vector<int>& rows) const;

    const Regional& regional_;
    int rows_ = 0, columns_ = 0;
    unsigned contents_ = 0;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    QString narrowed_;
    std::vector<QString> texts_; // of all rows, while the list is narrowed
    std::vector<int> order_;     // the control's rows in the view's order, while it is arranged
    QVariant headingFont_;
};

// The lines of a document; the control's row 0 are the headings.
class GridModel : public TableModel {
public:
    GridModel(forms::Grid& grid, const Regional& regional) : TableModel(regional), grid_(grid) {}
    const std::vector<forms::GridColumn>& Columns() const override { return grid_.Columns(); }
    int CurrentRow() const override { return grid_.Row() - 1; }
    void Select(int row) override { grid_.SelectRow(row + 1); }

protected:
    unsigned Contents() const override { return grid_.Contents(); }
    int CountRows() const override { return grid_.Rows() - 1; }
    std::string CellText(int row, int column) const override { return grid_.Cell(row + 1, column); }

private:
    forms::Grid& grid_;
};

class ListModel : public TableModel {
public:
    ListModel(forms::ListGrid& list, const Regional& regional) : TableModel(regional), list_(list) {}
    const std::vector<forms::GridColumn>& Columns() const override { return list_.Columns(); }
    int CurrentRow() const override { return list_.Row(); }
    void Select(int row) override { list_.SelectRow(row); }

protected:
    unsigned Contents() const override { return list_.Contents(); }
    int CountRows() const override { return list_.Rows(); }
    std::string CellText(int row, int column) const override { return list_.Cell(row, column); }
    int CheckColumn() const override { return list_.CheckColumn(); }

private:
    forms::ListGrid& list_;
};

} // namespace varnik::ui
