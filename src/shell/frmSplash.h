#pragma once
// Covers the building of the main window.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class frmSplash : public ProgramScreen {
public:
    explicit frmSplash(Services& services);
    void Load() override { SetCaptions(); }
    void Activate() override { SetCaptions(); }

    forms::Image imgLogo{*this, "imgLogo"};
    forms::Label lblProductName{*this, "lblProductName"};
    forms::Label Label1{*this, "Label1", "Sales, purchases, stock and cash of a small business"};
    forms::Label Lblversi1{*this, "Lblversi1"};
    forms::Label LblVersi2{*this, "LblVersi2"};

private:
    void SetCaptions();
};

} // namespace varnik
