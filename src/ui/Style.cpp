#include "ui/Style.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStringList>
#include <QStyleFactory>

// In the global namespace, as the macro asks.
static void LoadIcons() { Q_INIT_RESOURCE(icons); }

namespace varnik::ui {

namespace {

const Colours Light{QColor(0xF3F5F8), QColor(0xFFFFFF), QColor(0xC9D1DB), QColor(0x17212E), QColor(0x4E5B6B),
                    QColor(0x1F5FBF), QColor(0xFFFFFF), QColor(0x3A70C8), QColor(0xECEFF3), QColor(0xF6F8FB),
                    QColor(0xD6E5FA), QColor(0xB3261E), QColor(0xA35B00)};
const Colours Dark{QColor(0x1B2027), QColor(0x242A33), QColor(0x46505E), QColor(0xE8ECF1), QColor(0xB2BCC8),
                   QColor(0x6FA8F5), QColor(0x10161E), QColor(0x5685C4), QColor(0x2C333D), QColor(0x29303A),
                   QColor(0x2F4A6E), QColor(0xF28B82), QColor(0xF0B357)};

Colours current = Light;

// The names in the sheet stand for the colours above. It sets no font: sizes follow the window.
constexpr const char* Sheet = R"css(
QWidget { color: @text; }
QWidget#window, QDialog, QMessageBox { background: @window; }
QFrame[card="true"] { background: @card; border: 1px solid @border; border-radius: 8px; }
QFrame[bar="true"] { background: @card; border: none; border-bottom: 1px solid @border; }
QFrame[overlay="true"] { background: @card; border: 1px solid @accent; border-radius: 8px; }
QLabel { background: transparent; }
QLabel[quiet="true"] { color: @quietText; }
QLabel[heading="true"] { color: @accent; }
QLabel[menu="true"] { padding: 5px 12px; border-radius: 5px; border: 1px solid transparent; }
QLabel[menu="true"]:hover { background: @selection; }
QLabel[pressed="true"] { border: 1px solid @accent; background: @selection; }

QLineEdit, QPlainTextEdit, QComboBox, QDateEdit {
    background: @card; color: @text; border: 1px solid @border; border-radius: 5px; padding: 3px 7px;
    selection-background-color: @accent; selection-color: @accentText;
}
QLineEdit:hover, QComboBox:hover, QDateEdit:hover { border-color: @quietText; }
QLineEdit:focus, QPlainTextEdit:focus, QComboBox:focus, QDateEdit:focus { border: 2px solid @accent; padding: 2px 6px; }
QLineEdit[locked="true"], QPlainTextEdit[locked="true"], QComboBox[locked="true"] {
    background: @lockedGround; color: @text; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled, QDateEdit:disabled { background: @lockedGround; color: @quietText; }
QLineEdit[total="true"] { color: @accent; }
QLineEdit[total="true"][locked="true"] { border: 2px solid transparent; background: transparent; padding: 0; }
QLineEdit[total="true"][locked="true"]:focus { border-color: @accent; }
QComboBox::drop-down, QDateEdit::drop-down { subcontrol-origin: padding; subcontrol-position: center right; width: 20px; border: none; }
QComboBox::down-arrow, QDateEdit::down-arrow { image: url(:/icons/chevron-down.svg); width: 12px; height: 12px; }
QComboBox QLineEdit, QDateEdit QLineEdit { border: none; padding: 0; background: transparent; }
QComboBox QAbstractItemView { background: @card; color: @text; border: 1px solid @border; outline: none;
    selection-background-color: @selection; selection-color: @text; }
QComboBox QAbstractItemView::item { min-height: 24px; }
QComboBox QAbstractItemView::item:selected { background: @selection; color: @text; }
QCalendarWidget { background: @card; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: @card; border-bottom: 1px solid @border; }
QCalendarWidget QToolButton { background: transparent; color: @text; border: none; border-radius: 4px; padding: 5px 9px; margin: 2px; }
QCalendarWidget QToolButton:hover { background: @selection; }
QCalendarWidget QToolButton::menu-indicator { image: none; }
QCalendarWidget QAbstractItemView { background: @card; alternate-background-color: @card; color: @text; border: none; outline: none;
    selection-background-color: @accent; selection-color: @accentText; }

QPushButton { background: @card; color: @text; border: 1px solid @border; border-radius: 5px; padding: 5px 12px; }
QPushButton:hover { background: @selection; border-color: @accent; }
QPushButton:pressed { background: @zebra; border-color: @accent; }
QPushButton:focus { border: 2px solid @accent; padding: 4px 11px; }
QPushButton:disabled { color: @faded; background: transparent; border-color: @fadedBorder; }
QPushButton[primary="true"] { background: @accent; color: @accentText; border-color: @accent; }
QPushButton[primary="true"]:hover { background: @accentDeep; }
QPushButton[primary="true"]:focus { background: @accentFocused; border: 2px solid @text; }
QPushButton[primary="true"]:disabled { background: transparent; color: @faded; border-color: @fadedBorder; }

QCheckBox, QRadioButton { spacing: 7px; background: transparent; padding: 3px 2px; border: 1px solid transparent; border-radius: 4px; }
QCheckBox:focus, QRadioButton:focus { border: 1px solid @accent; }
QCheckBox::indicator, QRadioButton::indicator { width: 15px; height: 15px; border: 1px solid @quietText; background: @card; }
QCheckBox::indicator { border-radius: 4px; }
QRadioButton::indicator { border-radius: 8px; }
QCheckBox::indicator:checked { background: @mark; border-color: @mark; image: url(:/icons/check-mark.svg); }
QRadioButton::indicator:checked { background: @mark; border-color: @mark; image: url(:/icons/radio-dot.svg); }
QCheckBox:disabled, QRadioButton:disabled { color: @quietText; }

QLineEdit[dense="true"], QComboBox[dense="true"], QDateEdit[dense="true"] { padding: 0 3px; }
QPushButton[dense="true"] { padding: 0 5px; }
QTableView[dense="true"] QHeaderView::section { padding: 1px 4px; }
QCheckBox[dense="true"], QRadioButton[dense="true"] { spacing: 3px; padding: 0; }
QCheckBox[dense="true"]::indicator, QRadioButton[dense="true"]::indicator { width: 10px; height: 10px; }

QTableView { background: @card; alternate-background-color: @zebra; color: @text; border: 1px solid @border;
    border-radius: 6px; gridline-color: @fadedBorder; selection-background-color: @selection; selection-color: @text; outline: none; padding: 1px; }
QTableView:focus { border: 2px solid @accent; padding: 0; }
QTreeView:focus { border: 2px solid @accent; padding: 3px; }
QTableView::item { padding: 0 2px; border: none; }
QTableView::item:selected { background: @selection; color: @text; }
QHeaderView { background: transparent; border: none; }
QHeaderView::section { background: @lockedGround; color: @quietText; border: none; border-bottom: 1px solid @border; padding: 5px; }
QHeaderView::section:hover { background: @selection; }
QHeaderView::up-arrow { image: url(:/icons/chevron-up.svg); width: 11px; height: 11px; subcontrol-position: center right; right: 4px; }
QHeaderView::down-arrow { image: url(:/icons/chevron-down.svg); width: 11px; height: 11px; subcontrol-position: center right; right: 4px; }
QLabel[note="true"] { background: @accent; color: @accentText; border-radius: 5px; padding: 3px 9px; }
QTableCornerButton::section { background: @lockedGround; border: none; }
QTreeView { background: @card; color: @text; border: 1px solid @border; border-radius: 6px; outline: none; padding: 4px; }
QTreeView::item { padding: 0 2px; border-radius: 4px; }
QTreeView::item:hover { background: @zebra; }
QTreeView::item:selected { background: @selection; color: @text; }
QTreeView::branch { background: transparent; }
QTreeView::branch:has-children:closed { image: url(:/icons/branch-closed.svg); }
QTreeView::branch:has-children:open { image: url(:/icons/branch-open.svg); }

QFrame[statusbar="true"] { background: @card; border: none; border-top: 1px solid @border; }
QFrame[statusbar="true"] QLabel { color: @quietText; padding: 4px 10px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QDialogButtonBox QPushButton { min-width: 66px; }
QMenu { background: @card; color: @text; border: 1px solid @border; padding: 5px; }
QMenu::item { padding: 6px 26px 6px 10px; border-radius: 4px; }
QMenu::item:selected { background: @selection; color: @text; }
QMenu::icon { padding-left: 8px; }
QToolTip { background: @card; color: @text; border: 1px solid @border; padding: 4px; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 2px; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 2px; }
QScrollBar::handle { background: @border; border-radius: 4px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: @quietText; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)css";

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int a, int b) { return static_cast<int>(a * (1 - share) + b * share); };
    return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()),
                  mix(one.blue(), other.blue()));
}

QString StyleSheet(const Colours& c) {
    // The longer names first: "@accentText" begins with "@accent".
    const std::pair<const char*, QColor> names[] = {
        {"@accentText", c.accentText},
        {"@accentFocused", c.accentFocused},
        {"@accentDeep", Mixed(c.accent, c.text, 0.2)},
        {"@accent", c.accent},
        {"@fadedBorder", Mixed(c.border, c.window, 0.5)},
        {"@faded", Mixed(c.quietText, c.window, 0.35)},
        {"@window", c.window},
        {"@card", c.card},
        {"@border", c.border},
        {"@text", c.text},
        {"@quietText", c.quietText},
        {"@lockedGround", c.lockedGround},
        {"@zebra", c.zebra},
        {"@selection", c.selection},
        {"@mark", QColor(0x1F5FBF)}, // carries a white tick in both looks
    };
    QString sheet = QString::fromLatin1(Sheet);
    for (const auto& [name, colour] : names) sheet.replace(QLatin1String(name), colour.name());
    return sheet;
}

QPalette PaletteOf(const Colours& c) {
    QPalette palette;
    palette.setColor(QPalette::Window, c.window);
    palette.setColor(QPalette::WindowText, c.text);
    palette.setColor(QPalette::Base, c.card);
    palette.setColor(QPalette::AlternateBase, c.zebra);
    palette.setColor(QPalette::Text, c.text);
    palette.setColor(QPalette::Button, c.card);
    palette.setColor(QPalette::ButtonText, c.text);
    palette.setColor(QPalette::PlaceholderText, c.quietText);
    palette.setColor(QPalette::Highlight, c.accent);
    palette.setColor(QPalette::HighlightedText, c.accentText);
    palette.setColor(QPalette::Link, c.accent);
    palette.setColor(QPalette::ToolTipBase, c.card);
    palette.setColor(QPalette::ToolTipText, c.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, c.quietText);
    return palette;
}

QFont ReadableFont() {
    // Faces whose figures all have one width, so that amounts stand in columns.
    QFont font;
    font.setFamilies({QStringLiteral("Roboto"), QStringLiteral("Segoe UI"), QStringLiteral("Noto Sans"),
                      QStringLiteral("Open Sans"), QStringLiteral("DejaVu Sans"),
                      QStringLiteral("Sans Serif")});
    font.setPixelSize(14);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace

const Colours& CurrentColours() { return current; }

void ApplyStyle(QApplication& application) {
    ApplyStyle(application, application.palette().color(QPalette::Window).lightness() < 110);
}

void ApplyStyle(QApplication& application, bool dark) {
    LoadIcons();
    current = dark ? Dark : Light;
    application.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    application.setPalette(PaletteOf(current));
    application.setFont(ReadableFont());
    application.setStyleSheet(StyleSheet(current));
}

} // namespace varnik::ui
