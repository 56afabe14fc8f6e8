#include "document/Navigation.h"

#include "platform/forms/Screen.h"

namespace varnik::document {

Navigation::Navigation(forms::Screen& screen, forms::Frame& frame)
    : bttnFirst(screen, "bttnFirst", "|<"),
      bttnPrev(screen, "bttnPrev", "<"),
      bttnNext(screen, "bttnNext", ">"),
      bttnLast(screen, "bttnLast", ">|") {
    frame.Hold({&bttnFirst, &bttnPrev, &bttnNext, &bttnLast});
    const auto bind = [this](forms::Button& button, const char* hint, Move move) {
        button.SetToolTip(hint);
        button.onClick = [this, move] {
            if (onMove) onMove(move);
        };
    };
    bind(bttnFirst, "First document", &ado::Recordset::MoveFirst);
    bind(bttnPrev, "Document before", &ado::Recordset::MovePrevious);
    bind(bttnNext, "Document after", &ado::Recordset::MoveNext);
    bind(bttnLast, "Last document", &ado::Recordset::MoveLast);
}

void Navigation::SetEnabled(bool enabled) {
    for (forms::Button* button : {&bttnFirst, &bttnPrev, &bttnNext, &bttnLast}) button->SetEnabled(enabled);
}

bool Navigation::Walk(ado::Recordset& rows, Move move) {
    if (rows.Empty()) rows.Requery();
    if (rows.Empty()) return false;
    const bool outside = (rows.Eof() && move == &ado::Recordset::MoveNext) ||
                         (rows.Bof() && move == &ado::Recordset::MovePrevious);
    if (!outside) (rows.*move)();
    if (rows.Eof()) rows.MoveLast();
    if (rows.Bof()) rows.MoveFirst();
    return true;
}

} // namespace varnik::document
