#include "ui/QtText.h"

#include <QKeyEvent>

namespace varnik::ui {

namespace {

const QDate Epoch(1970, 1, 1);

struct KeyPair {
    int qt;
    forms::KeyCode code;
};
constexpr KeyPair KeyPairs[] = {
    {Qt::Key_Return, forms::KeyCode::Enter},  {Qt::Key_Enter, forms::KeyCode::Enter},
    {Qt::Key_Tab, forms::KeyCode::Tab},       {Qt::Key_Backtab, forms::KeyCode::Tab},
    {Qt::Key_Escape, forms::KeyCode::Escape}, {Qt::Key_Backspace, forms::KeyCode::Backspace},
    {Qt::Key_Delete, forms::KeyCode::Delete}, {Qt::Key_Insert, forms::KeyCode::Insert},
    {Qt::Key_Home, forms::KeyCode::Home},     {Qt::Key_End, forms::KeyCode::End},
    {Qt::Key_Up, forms::KeyCode::Up},         {Qt::Key_Down, forms::KeyCode::Down},
    {Qt::Key_Left, forms::KeyCode::Left},     {Qt::Key_Right, forms::KeyCode::Right},
    {Qt::Key_PageUp, forms::KeyCode::PageUp}, {Qt::Key_PageDown, forms::KeyCode::PageDown},
};

} // namespace

QString PlainCaption(const std::string& caption) {
    QString text = ToQt(caption);
    text.remove(QLatin1Char('&'));
    text = text.simplified();
    while (text.endsWith(QLatin1Char(':'))) text = text.chopped(1).trimmed();
    return text;
}

QDate ToQt(DateTime date) { return Epoch.addDays(date.day); }

DateTime FromQt(const QDate& date, std::int32_t second) {
    return DateTime{static_cast<std::int32_t>(Epoch.daysTo(date)), second};
}

std::optional<forms::Key> ToKey(const QKeyEvent& event) {
    forms::Key key;
    key.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    key.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    key.alt = event.modifiers().testFlag(Qt::AltModifier);
    for (const KeyPair& pair : KeyPairs) {
        if (pair.qt != event.key()) continue;
        key.code = pair.code;
        key.shift = key.shift || event.key() == Qt::Key_Backtab;
        return key;
    }
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12) {
        key.code =
            static_cast<forms::KeyCode>(static_cast<int>(forms::KeyCode::F1) + event.key() - Qt::Key_F1);
        return key;
    }
    const QList<uint> typed = event.text().toUcs4();
    if (typed.size() == 1 && typed[0] >= 32 && typed[0] != 127) {
        // Some systems send a third-level character as Ctrl and Alt with the character's text.
        if (key.ctrl && key.alt) key.ctrl = key.alt = false;
        key.character = typed[0];
        return key;
    }
    if ((key.ctrl || key.alt) && event.key() >= Qt::Key_Space && event.key() <= Qt::Key_AsciiTilde) {
        key.character = static_cast<char32_t>(event.key());
        if (!key.shift && key.character >= U'A' && key.character <= U'Z') key.character += U'a' - U'A';
        return key;
    }
    return std::nullopt;
}

} // namespace varnik::ui
