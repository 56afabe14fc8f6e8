#include "ui/preview/PageView.h"

#include "ui/preview/PagePainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>

namespace varnik::ui {

namespace {

constexpr double Gap = 16; // px between pages and around them
constexpr double LeastPercent = 20, MostPercent = 500;
const QColor Edge(0, 0, 0, 45), HitColour(255, 214, 0, 110);

} // namespace

PageView::PageView(const reports::Report& report, QWidget* parent)
    : QAbstractScrollArea(parent), report_(report) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Pages of the report");
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setCursor(Qt::ArrowCursor);
}

double PageView::PixelsPerMm(double percent) const { return logicalDpiX() / 25.4 * percent / 100; }

double PageView::PageWidth() const { return report_.PageWidth() * PixelsPerMm(percent_); }

double PageView::PageHeight() const { return report_.PageHeight() * PixelsPerMm(percent_); }

double PageView::PageTop(int page) const { return Gap + (page - 1) * (PageHeight() + Gap); }

QPointF PageView::Place(int page) const {
    const double room = viewport()->width() - PageWidth();
    return {room > 2 * Gap ? std::floor(room / 2) : Gap - horizontalScrollBar()->value(),
            PageTop(page) - verticalScrollBar()->value()};
}

void PageView::SetZoom(Zoom zoom, double percent) {
    zoom_ = zoom;
    if (zoom == Zoom::Percent)
        ApplyPercent(percent);
    else
        Fit();
}

void PageView::ZoomBy(double factor) { SetZoom(Zoom::Percent, std::round(percent_ * factor)); }

void PageView::Fit() {
    if (zoom_ == Zoom::Percent) return SetRanges();
    const double perMm = PixelsPerMm(100);
    const double width = (viewport()->width() - 2 * Gap) / (report_.PageWidth() * perMm);
    const double height = (viewport()->height() - 2 * Gap) / (report_.PageHeight() * perMm);
    ApplyPercent(100 * (zoom_ == Zoom::FitWidth ? width : std::min(width, height)));
}

// Keeps what is in the middle of the view in the middle.
void PageView::ApplyPercent(double percent) {
    percent = std::clamp(percent, LeastPercent, MostPercent);
    const double half = viewport()->height() / 2.0;
    const double middle = (verticalScrollBar()->value() + half) / (PageHeight() + Gap);
    const bool atTop = verticalScrollBar()->value() == 0;
    percent_ = percent;
    SetRanges();
    if (!atTop)
        verticalScrollBar()->setValue(static_cast<int>(std::lround(middle * (PageHeight() + Gap) - half)));
    viewport()->update();
    if (onMoved) onMoved();
}

void PageView::SetRanges() {
    const double content = PageTop(report_.PageCount() + 1), width = PageWidth() + 2 * Gap;
    const double down = std::max(0.0, content - viewport()->height());
    verticalScrollBar()->setRange(0, static_cast<int>(std::min(down, 2e9)));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(static_cast<int>(PixelsPerMm(percent_) * 10));
    horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(width) - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
}

int PageView::CurrentPage() const {
    // The page under a point a third down the view, so that a page scrolled to its head counts at once.
    const double at = verticalScrollBar()->value() + viewport()->height() / 3.0;
    return std::clamp(static_cast<int>(at / (PageHeight() + Gap)) + 1, 1, report_.PageCount());
}

void PageView::GoTo(int page) {
    page = std::clamp(page, 1, report_.PageCount());
    verticalScrollBar()->setValue(static_cast<int>(std::lround(PageTop(page) - Gap / 2)));
    if (onMoved) onMoved();
}

void PageView::Reveal(const reports::Hit& hit) {
    hit_ = hit;
    const reports::Page& page = BuiltPage(hit.page);
    if (hit.run < 0 || hit.run >= static_cast<int>(page.runs.size())) return;
    const reports::Area& area = page.runs[static_cast<std::size_t>(hit.run)].area;
    const double perMm = PixelsPerMm(percent_), y = PageTop(hit.page) + area.y * perMm,
                 x = Gap + area.x * perMm;
    const int top = verticalScrollBar()->value(), left = horizontalScrollBar()->value();
    if (y < top + Gap || y + area.height * perMm > top + viewport()->height() - Gap)
        verticalScrollBar()->setValue(static_cast<int>(y - viewport()->height() / 3.0));
    if (x < left || x + area.width * perMm > left + viewport()->width())
        horizontalScrollBar()->setValue(static_cast<int>(x - Gap));
    viewport()->update();
    if (onMoved) onMoved();
}

void PageView::ClearHit() {
    hit_.reset();
    viewport()->update();
}

const reports::Page& PageView::BuiltPage(int page) {
    if (const reports::Page* built = pages_.object(page)) return *built;
    ++pagesBuilt_;
    auto* built = new reports::Page(report_.BuildPage(page));
    pages_.insert(page, built);
    return *built;
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Window).darker(107));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double step = PageHeight() + Gap;
    const int first = std::max(1, static_cast<int>(verticalScrollBar()->value() / step));
    for (int page = first; page <= report_.PageCount(); ++page) {
        const QPointF place = Place(page);
        const QRectF sheet(place.x(), std::round(place.y()), std::round(PageWidth()),
                           std::round(PageHeight()));
        if (sheet.top() > viewport()->height()) break;
        if (sheet.bottom() < 0) continue;
        painter.fillRect(sheet.translated(0, 2).adjusted(-1, 0, 1, 1), Edge);
        painter.fillRect(sheet, Qt::white);
        painter.save();
        painter.setClipRect(sheet);
        painter.translate(sheet.topLeft());
        painter.scale(PixelsPerMm(percent_), PixelsPerMm(percent_));
        const reports::Page& built = BuiltPage(page);
        if (hit_ && hit_->page == page && hit_->run < static_cast<int>(built.runs.size())) {
            painter.fillRect(TextPlace(built.runs[static_cast<std::size_t>(hit_->run)]), HitColour);
        }
        PaintPage(painter, built);
        painter.restore();
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void PageView::resizeEvent(QResizeEvent*) { Fit(); }

void PageView::scrollContentsBy(int, int) {
    viewport()->update();
    if (onMoved) onMoved();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    switch (event->key()) {
    case Qt::Key_PageDown:
        return GoTo(CurrentPage() + 1);
    case Qt::Key_PageUp:
        return GoTo(CurrentPage() - 1);
    case Qt::Key_Home:
        return GoTo(1);
    case Qt::Key_End:
        return GoTo(report_.PageCount());
    case Qt::Key_Space:
        return verticalScrollBar()->triggerAction(event->modifiers().testFlag(Qt::ShiftModifier)
                                                      ? QAbstractSlider::SliderPageStepSub
                                                      : QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        if (control) return ZoomBy(1.25);
        break;
    case Qt::Key_Minus:
        if (control) return ZoomBy(0.8);
        break;
    default:
        break;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void PageView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) ZoomBy(event->angleDelta().y() > 0 ? 1.1 : 1 / 1.1);
    event->accept();
}

} // namespace varnik::ui
