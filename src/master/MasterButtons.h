#pragma once
// The eight buttons of a master screen. A screen declares them after its fields, so that the fields come
// first in tab order.

#include "platform/forms/Controls.h"

namespace varnik {

class MasterScreen;

struct MasterButtons {
    explicit MasterButtons(MasterScreen& screen);

    forms::Button bttnAdd, bttnEdit, bttnDelete, bttnFind, bttnPrint, bttnOK, bttnCancel, bttnClose;

    void Editing(bool on);
};

} // namespace varnik
