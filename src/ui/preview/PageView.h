#pragma once
// The pages of a report under each other on a grey desk. All pages have one size, so what lies where is
// arithmetic, and only the pages that can be seen are built and painted.

#include "reports/engine/Report.h"

#include <QAbstractScrollArea>
#include <QCache>

namespace varnik::ui {

class PageView : public QAbstractScrollArea {
public:
    explicit PageView(const reports::Report& report, QWidget* parent = nullptr);

    enum class Zoom { FitWidth, FitPage, Percent };
    void SetZoom(Zoom zoom, double percent = 100);
    void ZoomBy(double factor); // around the middle of the view
    Zoom CurrentZoom() const { return zoom_; }
    double Percent() const { return percent_; } // as shown, also when fitted

    int CurrentPage() const; // the one that fills most of the view
    void GoTo(int page);     // its head at the top of the view
    void Reveal(const reports::Hit& hit);
    void ClearHit();
    int PagesBuilt() const { return pagesBuilt_; } // since the start

    std::function<void()> onMoved; // page or zoom changed

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    double PixelsPerMm(double percent) const;
    double PageWidth() const;       // px
    double PageHeight() const;      // px
    double PageTop(int page) const; // px from the top of the desk
    QPointF Place(int page) const;  // px in the viewport
    void Fit();
    void SetRanges();
    void ApplyPercent(double percent);
    const reports::Page& BuiltPage(int page);

    const reports::Report& report_;
    Zoom zoom_ = Zoom::FitWidth;
    double percent_ = 100;
    QCache<int, reports::Page> pages_{12};
    int pagesBuilt_ = 0;
    std::optional<reports::Hit> hit_;
};

} // namespace varnik::ui
