#pragma once
// Customer types: a code and a name.

#include "master/MasterScreen.h"

namespace varnik {

class frmJenisCustomer : public MasterScreen {
public:
    explicit frmJenisCustomer(Services& services);
    void Unload() override;

    forms::TextBox txtKode{*this, "txtKode", "Code"};
    forms::TextBox txtNama{*this, "txtNama", "Customer Type"};
    MasterButtons buttons{*this};
    MasterList list{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;
};

} // namespace varnik
