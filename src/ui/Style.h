#pragma once
// One calm look for every window: colours, type and the style sheet. Light, or dark where the machine is.

#include <QColor>
#include <QFont>

class QApplication;

namespace varnik::ui {

// Text stands at a contrast of 4.5:1 at least on every ground it is used on, the focus mark at 3:1.
struct Colours {
    QColor window, card, border, text, quietText, accent, accentText, accentFocused, lockedGround, zebra,
        selection, danger, warning;
};

const Colours& CurrentColours();

// Sets style, palette, font and style sheet of the whole program. Once, before the first window.
void ApplyStyle(QApplication& application);
void ApplyStyle(QApplication& application, bool dark);

} // namespace varnik::ui
