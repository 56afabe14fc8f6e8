#include "master/MasterButtons.h"

#include "master/MasterScreen.h"

namespace varnik {

MasterButtons::MasterButtons(MasterScreen& screen)
    : bttnAdd(screen, "bttnAdd", "&Add"),
      bttnEdit(screen, "bttnEdit", "&Edit"),
      bttnDelete(screen, "bttnDelete", "&Delete"),
      bttnFind(screen, "bttnFind", "&Find"),
      bttnPrint(screen, "bttnPrint", "&Print"),
      bttnOK(screen, "bttnOK", "Sa&ve"),
      bttnCancel(screen, "bttnCancel", "&Cancel"),
      bttnClose(screen, "bttnClose", "Cl&ose") {
    bttnOK.SetEnabled(false);
    bttnCancel.SetEnabled(false);
    screen.Has(*this);
}

void MasterButtons::Editing(bool on) {
    forms::Button* const idle[] = {&bttnAdd, &bttnEdit, &bttnDelete, &bttnFind, &bttnPrint, &bttnClose};
    forms::Button* const editing[] = {&bttnOK, &bttnCancel};
    const auto enable = [](auto& buttons, bool enabled) {
        for (forms::Button* button : buttons) button->SetEnabled(enabled);
    };
    forms::Screen& screen = bttnAdd.Owner();
    if (on) {
        enable(editing, true);
        enable(idle, false);
    } else {
        enable(idle, true);
        // The focus must not slide from a button that goes off to Close, where Enter would end the screen.
        if (screen.Focused() == &bttnOK || screen.Focused() == &bttnCancel) screen.SetFocus(bttnAdd);
        enable(editing, false);
    }
}

} // namespace varnik
