#pragma once
// The four texts that head every report: one row of the table Company, mirrored in the session.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class Company : public ProgramScreen {
public:
    explicit Company(Services& services);
    void Load() override;

    forms::TextBox txtNama{*this, "txtNama", "Company &Name"};
    forms::TextBox txtket{*this, "txtket", "&Description"};
    forms::TextBox TxtAlamat1{*this, "TxtAlamat1", "Address &1"};
    forms::TextBox TxtAlamat2{*this, "TxtAlamat2", "Address &2"};
    forms::Button Command1{*this, "Command1", "&Save"};
    forms::Button Command2{*this, "Command2", "E&xit"};

private:
    void SaveCompany();
};

} // namespace varnik
