#include "ui/preview/PagePainter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>

#include <cmath>
#include <map>

namespace varnik::ui {

namespace {

// Fonts have whole pixel sizes; at a hundred to the millimetre their rounding is out of sight.
constexpr double UnitsPerMm = 100;
constexpr double MmPerPoint = 25.4 / 72;

struct Face {
    QFont font;
    QFontMetricsF metrics;
};

const Face& FaceOf(double points, bool bold) {
    static std::map<std::pair<int, bool>, Face> faces;
    const int size = std::max(1, static_cast<int>(std::lround(points * MmPerPoint * UnitsPerMm)));
    const auto found = faces.find({size, bold});
    if (found != faces.end()) return found->second;
    QFont font;
    font.setFamilies({"Liberation Sans", "Arial", "Helvetica", "sans-serif"});
    font.setPixelSize(size);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false); // the engine measures letter by letter
    return faces.emplace(std::pair{size, bold}, Face{font, QFontMetricsF(font)}).first->second;
}

QColor Colour(reports::Ink ink) { return QColor(static_cast<QRgb>(ink)); }

void PaintRun(QPainter& painter, const reports::TextRun& run) {
    const Face& face = FaceOf(run.size, run.bold);
    const QString text = QString::fromStdString(run.text);
    const double width = run.area.width * UnitsPerMm, height = run.area.height * UnitsPerMm;
    const double advance = face.metrics.horizontalAdvance(text);
    const double narrow = advance > width && advance > 0 ? width / advance : 1;
    const double room = width - advance * narrow;
    double x = run.area.x * UnitsPerMm;
    if (run.align == reports::Align::Right) x += room;
    if (run.align == reports::Align::Center) x += room / 2;
    const double ascent = face.metrics.ascent(), descent = face.metrics.descent();
    const double baseline = run.area.y * UnitsPerMm + (height - ascent - descent) / 2 + ascent;
    painter.setFont(face.font);
    painter.setPen(Colour(run.ink));
    if (narrow == 1) {
        painter.drawText(QPointF(x, baseline), text);
        return;
    }
    painter.save();
    painter.translate(x, baseline);
    painter.scale(narrow, 1);
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

} // namespace

void PaintPage(QPainter& painter, const reports::Page& page) {
    painter.save();
    for (const reports::Shade& shade : page.shades)
        painter.fillRect(QRectF(shade.area.x, shade.area.y, shade.area.width, shade.area.height),
                         Colour(shade.ink));
    for (const reports::Rule& rule : page.rules) {
        QPen pen(Colour(rule.ink), rule.weight);
        pen.setCapStyle(Qt::FlatCap);
        painter.setPen(pen);
        painter.drawLine(QPointF(rule.x1, rule.y1), QPointF(rule.x2, rule.y2));
    }
    painter.scale(1 / UnitsPerMm, 1 / UnitsPerMm);
    for (const reports::TextRun& run : page.runs) PaintRun(painter, run);
    painter.restore();
}

} // namespace varnik::ui
