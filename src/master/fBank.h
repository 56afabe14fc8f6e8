#pragma once
// Cash boxes and bank accounts, which receipts and payments post to.

#include "master/MasterScreen.h"

namespace varnik {

class fBank : public MasterScreen {
public:
    explicit fBank(Services& services);

    forms::TextBox txtRekID{*this, "txtRekID", "Code "};
    forms::TextBox TxtNamaBank{*this, "TxtNamaBank", "Name Bank/Cash"};
    forms::TextBox txtNoRek{*this, "txtNoRek", "Account No"};
    forms::TextBox txtJenisRek{*this, "txtJenisRek", "Account Type"};
    forms::TextBox txtNamaPemilik{*this, "txtNamaPemilik", "Owner"};
    forms::TextBox txtSaldoAwal{*this, "txtSaldoAwal", "Begining Balance"};
    forms::TextBox txtSaldoAkhir{*this, "txtSaldoAkhir", "Final Balance"};
    forms::TextBox txtket{*this, "txtket", "Notes"};
    forms::CheckBox Check1{*this, "Check1", "Default"};
    MasterButtons buttons{*this};
    MasterSearch search{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;
};

} // namespace varnik
