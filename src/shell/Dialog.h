#pragma once
// A small confirmation with two buttons; either closes it.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class Dialog : public ProgramScreen {
public:
    explicit Dialog(Services& services) : ProgramScreen(services, "Dialog", "Varnik") {
        OKButton.onClick = [this] { Close(); };
        CancelButton.onClick = [this] { Close(); };
        SetDefault(&OKButton);
        SetCancel(&CancelButton);
    }

    forms::Button OKButton{*this, "OKButton", "OK"};
    forms::Button CancelButton{*this, "CancelButton", "Cancel"};
};

} // namespace varnik
