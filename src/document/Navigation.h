#pragma once
// The four buttons that walk through the documents of a table while browsing.

#include "platform/ado/Ado.h"
#include "platform/forms/Controls.h"

#include <functional>

namespace varnik::document {

class Navigation {
public:
    using Move = void (ado::Recordset::*)();

    // The buttons stand with those of browsing in `frame`.
    Navigation(forms::Screen& screen, forms::Frame& frame);

    void SetEnabled(bool enabled);
    // Moves within the rows; at an end it stays on the last or first one. False when there is none.
    static bool Walk(ado::Recordset& rows, Move move);

    std::function<void(Move)> onMove;

private:
    forms::Button bttnFirst, bttnPrev, bttnNext, bttnLast;
};

} // namespace varnik::document
