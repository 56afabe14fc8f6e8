// The tables and the menu tree.

#include "common/Regional.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "ui/Binder.h"
#include "ui/Icons.h"
#include "ui/QtText.h"
#include "ui/Style.h"
#include "ui/TableModels.h"
#include "ui/TableWidget.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTimer>
#include <QTreeWidget>

namespace varnik::ui {

namespace {

// What Grid and ListGrid share. A change of the control is taken in once, when control returns to the event
// loop: filling a list row by row costs one renewal.
template <typename ControlType, typename ModelType>
class TableBinding : public Binding {
public:
    TableBinding(Binder& binder, ControlType& table, TableWidget* view)
        : Binding(binder, table, view), table_(table), view_(view), model_(table, binder.Settings()) {
        view->Take(model_);
        renewal_.setSingleShot(true);
        renewal_.setInterval(0);
        QObject::connect(&renewal_, &QTimer::timeout, view, [this] { Renew(); });
        QObject::connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, view,
                         [this](const QModelIndex& current) {
                             if (!renewing_ && current.isValid())
                                 model_.Select(model_.ControlRow(current.row()));
                         });
        QObject::connect(&model_, &QAbstractItemModel::modelReset, view, [this] { ShowCurrent(); });
    }
    ~TableBinding() override { view_->setModel(nullptr); }
    QList<QWidget*> EventSources() const override { return {view_, view_->viewport()}; }
    void Refresh() override {
        closed_ = closed_ || !table_.IsShown();
        if (!renewal_.isActive()) renewal_.start();
    }
    void Renew() {
        renewal_.stop();
        // A list that opens again shows its rows as they come.
        if (std::exchange(closed_, false)) view_->ForgetOrder();
        const bool renewed = model_.Renew();
        if (model_.Narrowed().isEmpty()) view_->ShowNarrowed({});
        if (captions_ != Captions()) {
            captions_ = Captions();
            view_->Spread();
        } else if (renewed) {
            view_->SpreadAnew();
        }
        ShowCurrent();
    }
    // Sorted or narrowed rows are walked as they are seen.
    bool Handles(QKeyEvent& event) override {
        if (!model_.Arranged() || (event.modifiers() & ~Qt::KeypadModifier)) return false;
        const int rows = model_.rowCount(), row = model_.ViewRow(model_.CurrentRow());
        constexpr int page = 10;
        switch (event.key()) {
        case Qt::Key_Up:
            return Walk(row - 1);
        case Qt::Key_Down:
            return Walk(row + 1);
        case Qt::Key_PageUp:
            return Walk(row - page);
        case Qt::Key_PageDown:
            return Walk(row + page);
        case Qt::Key_Home:
            return Walk(0);
        case Qt::Key_End:
            return Walk(rows - 1);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return row < 0; // what is not seen is not taken
        default:
            return false;
        }
    }

protected:
    bool Walk(int viewRow) {
        const int rows = model_.rowCount();
        if (rows > 0) model_.Select(model_.ControlRow(std::clamp(viewRow, 0, rows - 1)));
        return true;
    }

    ControlType& table_;
    TableWidget* view_;
    ModelType model_;

private:
    std::string Captions() const {
        std::string all;
        for (const forms::GridColumn& column : model_.Columns()) all += column.caption + '\t';
        return all;
    }
    void ShowCurrent() {
        const QScopedValueRollback<bool> quiet(renewing_, true);
        const int row = model_.ViewRow(model_.CurrentRow());
        if (row < 0) {
            view_->setCurrentIndex({});
            view_->clearSelection();
        } else if (view_->currentIndex().row() != row) {
            view_->setCurrentIndex(model_.index(row, 0));
            view_->selectRow(row);
            view_->scrollTo(model_.index(row, 0));
        }
    }
    QTimer renewal_;
    std::string captions_;
    bool renewing_ = false, closed_ = false;
};

class GridBinding : public TableBinding<forms::Grid, GridModel> {
public:
    GridBinding(Binder& binder, forms::Grid& grid, TableWidget* view) : TableBinding(binder, grid, view) {
        QObject::connect(view, &QTableView::clicked, view, [this] { table_.Owner().Click(table_); });
        QObject::connect(view, &QTableView::doubleClicked, view,
                         [this] { table_.Owner().DoubleClick(table_); });
    }
};

class ListBinding : public TableBinding<forms::ListGrid, ListModel> {
public:
    ListBinding(Binder& binder, forms::ListGrid& list, TableWidget* view) : TableBinding(binder, list, view) {
        QObject::connect(view, &QTableView::clicked, view, [this](const QModelIndex& index) {
            if (index.column() == table_.CheckColumn())
                table_.ToggleCheck(model_.ControlRow(index.row()));
            else
                table_.Owner().Click(table_);
        });
        QObject::connect(view, &QTableView::doubleClicked, view, [this](const QModelIndex& index) {
            if (index.column() != table_.CheckColumn()) table_.Owner().DoubleClick(table_);
        });
    }
    // Typing narrows the list to the rows that have the text.
    bool HandlesLeft(const forms::Key& key) override {
        if (table_.CheckColumn() >= 0 || key.ctrl || key.alt) return false;
        QString text = model_.Narrowed();
        if (key.code == forms::KeyCode::Character)
            text += QString::fromUcs4(&key.character, 1);
        else if (text.isEmpty())
            return false;
        else if (key.code == forms::KeyCode::Backspace)
            text.chop(1);
        else if (key.code == forms::KeyCode::Escape)
            text.clear();
        else
            return false;
        Narrow(text);
        return true;
    }

private:
    void Narrow(const QString& text) {
        Renew(); // what was asked for is looked for in what is there now
        if (text.trimmed().isEmpty()) {
            model_.Narrow({});
            view_->ShowNarrowed({});
            return;
        }
        model_.Narrow(text);
        const int found = model_.rowCount();
        view_->ShowNarrowed(
            QStringLiteral("%1:  %2 of %3").arg(text, Counted(found), Counted(model_.TotalRows())));
        if (model_.ViewRow(model_.CurrentRow()) < 0) Walk(0);
    }
    QString Counted(int rows) const { return ToQt(FormatNumber(rows, "#,##0", binder_.Settings())); }
};

class TreeBinding : public Binding {
public:
    TreeBinding(Binder& binder, forms::Tree& tree, QTreeWidget* view)
        : Binding(binder, tree, view), tree_(tree), view_(view) {
        view->setHeaderHidden(true);
        view->setRootIsDecorated(true);
        view->setIndentation(18);
        view->setUniformRowHeights(true);
        view->setExpandsOnDoubleClick(false);
        QObject::connect(view, &QTreeWidget::itemClicked, view,
                         [this](QTreeWidgetItem* item) { Open(item); });
    }
    QList<QWidget*> EventSources() const override { return {view_, view_->viewport()}; }
    void Refresh() override {
        const auto& nodes = tree_.Nodes();
        for (; shown_ < nodes.size(); ++shown_) {
            const forms::TreeNode& node = nodes[shown_];
            auto* item = new QTreeWidgetItem({ToQt(node.caption).trimmed()});
            item->setData(0, Qt::UserRole, ToQt(node.key));
            item->setIcon(0, DrawnIcon(IconOfMenuKey(node.key), CurrentColours().accent));
            if (QTreeWidgetItem* parent = items_.value(ToQt(node.parent)))
                parent->addChild(item);
            else
                view_->addTopLevelItem(item);
            item->setExpanded(node.expanded);
            items_.insert(ToQt(node.key), item);
        }
        if (!view_->currentItem() && view_->topLevelItemCount() > 0)
            view_->setCurrentItem(view_->topLevelItem(0));
    }
    // Arrows walk the tree, Enter and the blank open the row under the cursor.
    bool TakesKey(QKeyEvent& event) override {
        if (event.modifiers() & ~Qt::KeypadModifier) return false;
        switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Open(view_->currentItem());
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        default:
            return false;
        }
    }

private:
    void Open(QTreeWidgetItem* item) {
        if (item) tree_.NodeClick(FromQt(item->data(0, Qt::UserRole).toString()));
    }
    forms::Tree& tree_;
    QTreeWidget* view_;
    QHash<QString, QTreeWidgetItem*> items_;
    std::size_t shown_ = 0;
};

} // namespace

std::unique_ptr<Binding> MakeTableBinding(Binder& binder, forms::Control& control, QWidget* parent) {
    switch (control.GetKind()) {
    case forms::Kind::Grid:
        return std::make_unique<GridBinding>(binder, static_cast<forms::Grid&>(control),
                                             new TableWidget(parent));
    case forms::Kind::ListGrid:
        return std::make_unique<ListBinding>(binder, static_cast<forms::ListGrid&>(control),
                                             new TableWidget(parent));
    case forms::Kind::Tree:
        return std::make_unique<TreeBinding>(binder, static_cast<forms::Tree&>(control),
                                             new QTreeWidget(parent));
    default:
        return nullptr;
    }
}

} // namespace varnik::ui
