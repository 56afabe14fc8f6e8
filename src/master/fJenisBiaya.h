#pragma once
// Cost types: a code and a name.

#include "master/MasterScreen.h"

namespace varnik {

class fJenisBiaya : public MasterScreen {
public:
    explicit fJenisBiaya(Services& services);

    forms::TextBox txtKode{*this, "txtKode", "Code"};
    forms::TextBox txtNama{*this, "txtNama", "Cost Category"};
    MasterButtons buttons{*this};
    MasterList list{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;
    void Find() override;
};

} // namespace varnik
