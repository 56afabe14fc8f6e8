// The tables and the menu tree.

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "ui/Binder.h"
#include "ui/Icons.h"
#include "ui/QtText.h"
#include "ui/Style.h"
#include "ui/TableModels.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTableView>
#include <QTimer>
#include <QTreeWidget>

namespace varnik::ui {

namespace {

// Row heights and column widths follow the font, the widest column takes what is left.
class TableWidget : public QTableView {
public:
    explicit TableWidget(QWidget* parent) : QTableView(parent) {
        setSelectionBehavior(SelectRows);
        setSelectionMode(SingleSelection);
        setEditTriggers(NoEditTriggers);
        setAlternatingRowColors(true);
        setShowGrid(false);
        setTabKeyNavigation(false);
        setWordWrap(false);
        setCornerButtonEnabled(false);
        setHorizontalScrollMode(ScrollPerPixel);
        verticalHeader()->hide();
        verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        verticalHeader()->setMinimumSectionSize(1);
        horizontalHeader()->setHighlightSections(false);
        horizontalHeader()->setMinimumSectionSize(24);
        horizontalHeader()->setTextElideMode(Qt::ElideRight);
    }
    void Spread() {
        const auto* renewed = static_cast<const TableModel*>(model());
        if (!renewed || renewed->columnCount() == 0) return;
        verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
        const auto& columns = renewed->Columns();
        const int unit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
        int sum = 0;
        int widest = columns.size() > 1 ? 1 : 0; // of equals the second: the name behind a code
        std::vector<int> widths;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const int heading =
                horizontalHeader()->fontMetrics().horizontalAdvance(ToQt(columns[i].caption)) + 18;
            // A column of width 0 is there for the screen alone.
            widths.push_back(columns[i].width == 0 ? 0 : std::max(columns[i].width * unit + 20, heading));
            sum += widths.back();
            if (columns[i].width > columns[static_cast<std::size_t>(widest)].width)
                widest = static_cast<int>(i);
        }
        // The widest column takes what is left. Where room is short the others give up a little first, then
        // it gives up to half of its own, then the table scrolls.
        constexpr double least = 0.85;
        int& wide = widths[static_cast<std::size_t>(widest)];
        const int room = viewport()->width(), others = sum - wide;
        if (sum > room && others > 0) {
            const double share = std::clamp(double(room - wide) / others, least, 1.0);
            for (int& width : widths)
                if (&width != &wide) width = static_cast<int>(width * share);
            sum = wide;
            for (const int& width : widths)
                if (&width != &wide) sum += width;
        }
        wide = std::max(wide + room - sum, wide / 2);
        for (int i = 0; i < static_cast<int>(widths.size()); ++i) {
            setColumnHidden(i, widths[static_cast<std::size_t>(i)] == 0);
            horizontalHeader()->resizeSection(i, widths[static_cast<std::size_t>(i)]);
        }
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QTableView::resizeEvent(event);
        Spread();
    }
    void changeEvent(QEvent* event) override {
        QTableView::changeEvent(event);
        if (event->type() != QEvent::FontChange || !model()) return;
        static_cast<TableModel*>(model())->SetHeadingFont(font());
        horizontalHeader()->setFont(font());
        Spread();
    }
};

// What Grid and ListGrid share. A change of the control is taken in once, when control returns to the event
// loop: filling a list row by row costs one renewal.
template <typename ControlType, typename ModelType>
class TableBinding : public Binding {
public:
    TableBinding(Binder& binder, ControlType& table, TableWidget* view)
        : Binding(binder, table, view), table_(table), view_(view), model_(table) {
        view->setModel(&model_);
        renewal_.setSingleShot(true);
        renewal_.setInterval(0);
        QObject::connect(&renewal_, &QTimer::timeout, view, [this] { Renew(); });
        QObject::connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, view,
                         [this](const QModelIndex& current) {
                             if (!renewing_ && current.isValid()) model_.Select(current.row());
                         });
    }
    ~TableBinding() override { view_->setModel(nullptr); }
    QList<QWidget*> EventSources() const override { return {view_, view_->viewport()}; }
    void Refresh() override {
        if (!renewal_.isActive()) renewal_.start();
    }
    void Renew() {
        const QScopedValueRollback<bool> quiet(renewing_, true);
        renewal_.stop();
        model_.Renew();
        if (captions_ != Captions()) {
            captions_ = Captions();
            view_->Spread();
        }
        const int row = model_.CurrentRow();
        if (row < 0) {
            view_->setCurrentIndex({});
            view_->clearSelection();
        } else if (view_->currentIndex().row() != row) {
            view_->setCurrentIndex(model_.index(row, 0));
            view_->selectRow(row);
            view_->scrollTo(model_.index(row, 0));
        }
    }

protected:
    ControlType& table_;
    TableWidget* view_;

private:
    std::string Captions() const {
        std::string all;
        for (const forms::GridColumn& column : model_.Columns()) all += column.caption + '\t';
        return all;
    }
    ModelType model_;
    QTimer renewal_;
    std::string captions_;
    bool renewing_ = false;
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
                table_.ToggleCheck(index.row());
            else
                table_.Owner().Click(table_);
        });
        QObject::connect(view, &QTableView::doubleClicked, view, [this](const QModelIndex& index) {
            if (index.column() != table_.CheckColumn()) table_.Owner().DoubleClick(table_);
        });
    }
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
