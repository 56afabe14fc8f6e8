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

// How a text is set into its area, in units.
struct Setting {
    double x = 0, advance = 0;
    double narrow = 1; // below 1 where the font runs wider than the area
};

Setting Set(const reports::TextRun& run, const QString& text, const Face& face) {
    const double width = run.area.width * UnitsPerMm;
    Setting setting;
    setting.advance = face.metrics.horizontalAdvance(text);
    if (setting.advance > width) setting.narrow = width / setting.advance;
    const double room = width - setting.advance * setting.narrow;
    setting.x = run.area.x * UnitsPerMm;
    if (run.align == reports::Align::Right) setting.x += room;
    if (run.align == reports::Align::Center) setting.x += room / 2;
    return setting;
}

void PaintRun(QPainter& painter, const reports::TextRun& run) {
    const Face& face = FaceOf(run.size, run.bold);
    const QString text = QString::fromStdString(run.text);
    const Setting setting = Set(run, text, face);
    const double ascent = face.metrics.ascent(), descent = face.metrics.descent();
    const double baseline =
        run.area.y * UnitsPerMm + (run.area.height * UnitsPerMm - ascent - descent) / 2 + ascent;
    painter.setFont(face.font);
    painter.setPen(Colour(run.ink));
    if (setting.narrow == 1) {
        painter.drawText(QPointF(setting.x, baseline), text);
        return;
    }
    painter.save();
    painter.translate(setting.x, baseline);
    painter.scale(setting.narrow, 1);
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

} // namespace

QRectF TextPlace(const reports::TextRun& run) {
    constexpr double Air = 0.8; // mm
    const Setting setting = Set(run, QString::fromStdString(run.text), FaceOf(run.size, run.bold));
    return QRectF(setting.x / UnitsPerMm - Air, run.area.y - Air / 4,
                  setting.advance * setting.narrow / UnitsPerMm + 2 * Air, run.area.height + Air / 2);
}

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
