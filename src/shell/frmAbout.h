#pragma once
// About the program: version, company, system information, mail to support.

#include "platform/desktop/ProgramScreen.h"

#include <optional>

namespace varnik {

class frmAbout : public ProgramScreen {
public:
    explicit frmAbout(Services& services);
    void Load() override;

    forms::Image Image1{*this, "Image1"};
    forms::Label Label1{*this, "Label1"};
    forms::Label Lblversi1{*this, "Lblversi1"};
    forms::Label LblVersi2{*this, "LblVersi2"};
    forms::Label lb_email{*this, "lb_email", "support@varnik.example"};
    forms::Button cmdOK{*this, "cmdOK", "OK"};
    forms::Button cmdSysInfo{*this, "cmdSysInfo", "&System Info..."};

private:
    void StartSystemInformation();
    std::optional<std::string> SystemInformationTool() const;
};

} // namespace varnik
