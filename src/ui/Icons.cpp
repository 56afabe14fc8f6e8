#include "ui/Icons.h"

#include "platform/forms/Screen.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <cctype>
#include <string_view>

namespace varnik::ui {

namespace {

// Draws the line icon at the size asked for, in the colour of the state.
class LineIconEngine : public QIconEngine {
public:
    LineIconEngine(QByteArray drawing, QColor colour, QColor disabled)
        : drawing_(std::move(drawing)), colour_(colour), disabled_(disabled.isValid() ? disabled : colour) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        QColor colour = mode == QIcon::Disabled ? disabled_ : colour_;
        if (mode == QIcon::Disabled) colour.setAlphaF(0.38F);
        QByteArray drawing = drawing_;
        drawing.replace("#334155", colour.name().toLatin1());
        QSvgRenderer renderer(drawing);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        painter->save();
        painter->setOpacity(colour.alphaF());
        renderer.render(painter, place);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    QByteArray drawing_;
    QColor colour_, disabled_;
};

std::string Lower(std::string_view text) {
    std::string lower(text);
    for (char& letter : lower) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return lower;
}

struct NamedIcon {
    std::string_view control, icon;
};

constexpr NamedIcon ControlIcons[] = {
    {"bttnadd", "add"},
    {"bttnnew", "add"},
    {"bttnaddline", "add"},
    {"bttnedit", "edit"},
    {"bttndelete", "delete"},
    {"bttndel", "delete"},
    {"bttnfind", "find"},
    {"bttnsearch", "find"},
    {"command1", "find"},
    {"company.command1", "save"},
    {"company.command2", "exit"},
    {"cmdexecute", "find"},
    {"bttnexecute2", "find"},
    {"bttnprint", "print"},
    {"bttnpreview", "preview"},
    {"bttnclose", "exit"},
    {"bttnok", "save"},
    {"bttnsave", "save"},
    {"bttncancel", "cancel"},
    {"cmdbatalline", "cancel"},
    {"bttnbayar", "cash"},
    {"cmdtutup", "ok"},
    {"bttntutup2", "ok"},
    {"mnufilebackup", "database"},
    {"mnusetupperusahaan", "home"},
    {"mnufilepagesetup", "print"},
    {"mnufileexit", "exit"},
    {"mnutooluser", "users"},
    {"mnuconnect", "database"},
    {"mnuhelpcontents", "help"},
    {"mnuhelpabout", "info"},
    {"mnuhelpvisit", "globe"},
};

constexpr NamedIcon MenuKeyIcons[] = {
    {"M", "home"},      {"F01", "box"},     {"F08", "tag"},   {"F02", "users"}, {"F09", "tag"},
    {"F03", "truck"},   {"F04", "bank"},    {"F06", "tag"},   {"F07", "list"},  {"T01", "document"},
    {"T02", "cash"},    {"T03", "return"},  {"T04", "cart"},  {"T05", "cash"},  {"T06", "return"},
    {"T08", "receipt"}, {"T09", "receipt"}, {"L13", "box"},   {"L16", "bank"},  {"L01", "chart"},
    {"L04", "chart"},   {"L17", "chart"},   {"L18", "chart"}, {"L21", "chart"},
};

} // namespace

QIcon DrawnIcon(const QString& name, const QColor& colour, const QColor& disabled) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new LineIconEngine(file.readAll(), colour, disabled));
}

QString IconOfControl(const forms::Control& control) {
    std::string name = Lower(control.Name());
    name = name.substr(0, name.find('(')); // one of several of a name
    for (const std::string& asked : {Lower(control.Owner().Name()) + "." + name, name})
        for (const NamedIcon& known : ControlIcons)
            if (known.control == asked)
                return QString::fromLatin1(known.icon.data(), qsizetype(known.icon.size()));
    return {};
}

QString IconOfMenuKey(const std::string& key) {
    for (const NamedIcon& known : MenuKeyIcons)
        if (known.control == key) return QString::fromLatin1(known.icon.data(), qsizetype(known.icon.size()));
    return QStringLiteral("folder");
}

QString PictureOfControl(const std::string& controlName) {
    const std::string name = Lower(controlName);
    if (name == "imglogin") return QStringLiteral(":/icons/login.svg");
    return QStringLiteral(":/icons/logo.svg");
}

} // namespace varnik::ui
