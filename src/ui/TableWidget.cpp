#include "ui/TableWidget.h"

#include "ui/QtText.h"
#include "ui/Style.h"
#include "ui/TableModels.h"

#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace varnik::ui {

namespace {

// Marks the letters that a list was narrowed to.
class MatchDelegate : public QStyledItemDelegate {
public:
    explicit MatchDelegate(TableWidget* table) : QStyledItemDelegate(table), table_(table) {}
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        const QString& text = table_->Model()->Narrowed();
        if (text.isEmpty()) return;
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const qsizetype at = item.text.indexOf(text, 0, Qt::CaseInsensitive);
        if (at < 0) return;
        const QStyle& style = *table_->style();
        const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &item, table_) + 1;
        const QRect room =
            style.subElementRect(QStyle::SE_ItemViewItemText, &item, table_).adjusted(margin, 0, -margin, 0);
        const QFontMetrics& letters = item.fontMetrics;
        const int whole = letters.horizontalAdvance(item.text);
        const bool right = item.displayAlignment.testFlag(Qt::AlignRight) && whole <= room.width();
        const int left =
            (right ? room.right() + 1 - whole : room.left()) + letters.horizontalAdvance(item.text.left(at));
        QRect mark(left, room.center().y() - letters.height() / 2,
                   letters.horizontalAdvance(item.text.mid(at, text.size())), letters.height());
        mark = mark.intersected(room);
        QColor wash = CurrentColours().accent;
        wash.setAlpha(45);
        painter->fillRect(mark, wash);
        painter->fillRect(QRect(mark.left(), mark.bottom(), mark.width(), 2), CurrentColours().accent);
    }

private:
    TableWidget* table_;
};

} // namespace

TableWidget::TableWidget(QWidget* parent) : QTableView(parent), note_(new QLabel(this)) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new MatchDelegate(this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(24);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    horizontalHeader()->setSortIndicatorClearable(true); // the third click
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this] { widthsByHand_ = widthsByHand_ || (!spreading_ && isVisible()); });
    note_->setProperty("note", true);
    note_->hide();
}

void TableWidget::Take(TableModel& model) {
    setModel(&model);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

TableModel* TableWidget::Model() const { return static_cast<TableModel*>(model()); }

void TableWidget::ForgetOrder() {
    ShowNarrowed({});
    Model()->Narrow({});
    if (horizontalHeader()->sortIndicatorSection() >= 0)
        horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

void TableWidget::ShowNarrowed(const QString& text) {
    note_->setText(text);
    note_->setVisible(!text.isEmpty());
    setAccessibleDescription(text);
    PlaceNote();
}

void TableWidget::PlaceNote() {
    if (note_->isHidden()) return;
    constexpr int gap = 6;
    note_->setFont(font());
    note_->adjustSize();
    const QRect room = viewport()->geometry();
    note_->move(room.right() - note_->width() - gap, room.bottom() - note_->height() - gap);
    note_->raise();
}

// What a column needs for its heading and the rows above, which is what a person sees of it first.
int TableWidget::NeededWidth(int column, int heading) const {
    constexpr int rowsLookedAt = 40, padding = 14;
    int needed = heading;
    const int rows = std::min(rowsLookedAt, model()->rowCount());
    for (int row = 0; row < rows; ++row) {
        const QString text = model()->index(row, column).data().toString();
        needed = std::max(needed, fontMetrics().horizontalAdvance(text) + padding);
    }
    return needed;
}

void TableWidget::Spread() {
    const TableModel* renewed = Model();
    if (!renewed || renewed->columnCount() == 0) return;
    const QScopedValueRollback<bool> own(spreading_, true);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    const auto& columns = renewed->Columns();
    const int unit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    constexpr int headingPadding = 24, cellPadding = 18; // the style sheet's, and the style's own
    int sum = 0;
    int widest = columns.size() > 1 ? 1 : 0; // of equals the second: the name behind a code
    std::vector<int> widths, headings;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        headings.push_back(horizontalHeader()->fontMetrics().horizontalAdvance(ToQt(columns[i].caption)) +
                           headingPadding);
        // A column of width 0 is there for the screen alone.
        widths.push_back(
            columns[i].width == 0 ? 0 : std::max(columns[i].width * unit + cellPadding, headings[i]));
        sum += widths.back();
        if (columns[i].width > columns[static_cast<std::size_t>(widest)].width) widest = static_cast<int>(i);
    }
    // The widest column takes what is left. Where room is short the others give up, in equal parts, what
    // their headings and contents do not need; then it gives up to half of its own, then the table scrolls.
    const auto wide = static_cast<std::size_t>(widest);
    const int room = viewport()->width();
    if (sum > room) {
        std::vector<int> spare(widths.size(), 0);
        int spared = 0;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (i == wide || widths[i] == 0) continue;
            spare[i] = std::max(0, widths[i] - NeededWidth(static_cast<int>(i), headings[i]));
            spared += spare[i];
        }
        const int give = std::min(spared, sum - room);
        for (std::size_t i = 0; i < widths.size() && spared > 0; ++i) {
            const int part = (spare[i] * give + spared - 1) / spared;
            widths[i] -= part;
            sum -= part;
        }
    }
    widths[wide] = std::max(widths[wide] + room - sum, std::max(widths[wide] / 2, headings[wide]));
    for (int i = 0; i < static_cast<int>(widths.size()); ++i) {
        setColumnHidden(i, widths[static_cast<std::size_t>(i)] == 0);
        horizontalHeader()->resizeSection(i, widths[static_cast<std::size_t>(i)]);
    }
}

void TableWidget::SpreadAnew() {
    if (!widthsByHand_) Spread();
}

void TableWidget::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    Spread();
    PlaceNote();
}

void TableWidget::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange || !model()) return;
    Model()->SetHeadingFont(font());
    horizontalHeader()->setFont(font());
    Spread();
    PlaceNote();
}

} // namespace varnik::ui
