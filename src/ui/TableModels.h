#pragma once
// The models behind the tables. They hold no cells: what a view paints is read from the control at that
// moment, so that a list of 100,000 rows costs what its visible rows cost.

#include "platform/forms/Grid.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QVariant>

namespace varnik::ui {

class TableModel : public QAbstractTableModel {
public:
    // Takes in what the control holds now. Cheap when rows and columns are as many as before.
    void Renew();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Under a style sheet the headings do not take the table's letters over.
    void SetHeadingFont(const QFont& font) { headingFont_ = font; }

    virtual const std::vector<forms::GridColumn>& Columns() const = 0;
    virtual int CurrentRow() const = 0; // of the view, -1 for none
    virtual void Select(int row) = 0;   // by a person

protected:
    virtual int CountRows() const = 0;
    virtual std::string CellText(int row, int column) const = 0;
    virtual int CheckColumn() const { return -1; }

private:
    int rows_ = 0, columns_ = 0;
    QVariant headingFont_;
};

// The lines of a document; the control's row 0 are the headings.
class GridModel : public TableModel {
public:
    explicit GridModel(forms::Grid& grid) : grid_(grid) {}
    const std::vector<forms::GridColumn>& Columns() const override { return grid_.Columns(); }
    int CurrentRow() const override { return grid_.Row() - 1; }
    void Select(int row) override { grid_.SelectRow(row + 1); }

protected:
    int CountRows() const override { return grid_.Rows() - 1; }
    std::string CellText(int row, int column) const override { return grid_.Cell(row + 1, column); }

private:
    forms::Grid& grid_;
};

class ListModel : public TableModel {
public:
    explicit ListModel(forms::ListGrid& list) : list_(list) {}
    const std::vector<forms::GridColumn>& Columns() const override { return list_.Columns(); }
    int CurrentRow() const override { return list_.Row(); }
    void Select(int row) override { list_.SelectRow(row); }

protected:
    int CountRows() const override { return list_.Rows(); }
    std::string CellText(int row, int column) const override { return list_.Cell(row, column); }
    int CheckColumn() const override { return list_.CheckColumn(); }

private:
    forms::ListGrid& list_;
};

} // namespace varnik::ui
