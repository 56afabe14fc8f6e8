#include "ui/preview/PreviewIcons.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace varnik::ui {

namespace {

// What is drawn on a field of 24 by 24, with a round pen.
const char* Drawing(PreviewIcon icon) {
    switch (icon) {
    case PreviewIcon::Print:
        return "<path d='M7 8V3.5h10V8'/><rect x='3.5' y='8' width='17' height='8.5' rx='1.5'/>"
               "<path d='M7 13.5h10v7H7z'/><path d='M17 10.8h.6'/>";
    case PreviewIcon::Pdf:
        return "<path d='M13.5 3.5H6.5v17h11V7.5z'/><path d='M13.5 3.5v4h4'/>"
               "<path d='M9 17v-5h1.6a1.5 1.5 0 0 1 0 3H9'/><path d='M13.5 12v5M13.5 12h2.4M13.5 14.4h2'/>";
    case PreviewIcon::Sheet:
        return "<rect x='3.5' y='4.5' width='17' height='15' rx='1.5'/>"
               "<path d='M3.5 9.5h17M3.5 14.5h17M9.5 4.5v15M15 9.5v10'/>";
    case PreviewIcon::Csv:
        return "<path d='M13.5 3.5H6.5v17h11V7.5z'/><path d='M13.5 3.5v4h4'/>"
               "<path d='M9 12h2.5M13.5 12H15M9 15h1.5M12.5 15H15M9 18h3'/>";
    case PreviewIcon::First:
        return "<path d='M6 5v14M18.5 5.5L11 12l7.5 6.5'/>";
    case PreviewIcon::Previous:
        return "<path d='M15.5 5.5L8 12l7.5 6.5'/>";
    case PreviewIcon::Next:
        return "<path d='M8.5 5.5L16 12l-7.5 6.5'/>";
    case PreviewIcon::Last:
        return "<path d='M18 5v14M5.5 5.5L13 12l-7.5 6.5'/>";
    case PreviewIcon::Closer:
        return "<circle cx='10.5' cy='10.5' r='6.5'/><path d='M15.4 15.4l5 5M7.8 10.5h5.4M10.5 7.8v5.4'/>";
    case PreviewIcon::Farther:
        return "<circle cx='10.5' cy='10.5' r='6.5'/><path d='M15.4 15.4l5 5M7.8 10.5h5.4'/>";
    case PreviewIcon::Find:
        return "<circle cx='10.5' cy='10.5' r='6.5'/><path d='M15.4 15.4l5 5'/>";
    case PreviewIcon::Close:
        return "<path d='M6 6l12 12M18 6L6 18'/>";
    }
    return "";
}

QPixmap Drawn(PreviewIcon icon, const QColor& colour, int size) {
    const QString svg =
        QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24' fill='none' stroke='%1' "
                       "stroke-width='1.7' stroke-linecap='round' stroke-linejoin='round'>%2</svg>")
            .arg(colour.name(), QLatin1String(Drawing(icon)));
    QSvgRenderer renderer(svg.toUtf8());
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(colour.alphaF());
    renderer.render(&painter);
    return picture;
}

} // namespace

QIcon DrawPreviewIcon(PreviewIcon icon, const QColor& colour) {
    QIcon drawn;
    QColor pale = colour;
    pale.setAlphaF(0.35F);
    for (const int size : {20, 40, 60}) {
        drawn.addPixmap(Drawn(icon, colour, size));
        drawn.addPixmap(Drawn(icon, pale, size), QIcon::Disabled);
    }
    return drawn;
}

} // namespace varnik::ui
