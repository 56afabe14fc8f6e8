#pragma once
// Customers: addresses, terms and the running receivable, which a user may overwrite here.

#include "master/MasterScreen.h"

namespace varnik {

class fCustomer : public MasterScreen {
public:
    explicit fCustomer(Services& services);

    forms::TextBox txtKode{*this, "txtKode", "Customer ID"};
    forms::TextBox txtNama{*this, "txtNama", "Name Of Customer"};
    forms::TextBox TxtJenis{*this, "TxtJenis", "Customer Type"};
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::TextBox txtAlamat_1{*this, "txtAlamat_1", "Address"};
    forms::TextBox txtAlamat_2{*this, "txtAlamat_2"};
    forms::TextBox txtAlamat_3{*this, "txtAlamat_3"};
    forms::TextBox txtKota{*this, "txtKota", "City"};
    forms::TextBox txtTelp{*this, "txtTelp", "Telp"};
    forms::TextBox txtFax{*this, "txtFax", "Fax."};
    forms::TextBox txtContax{*this, "txtContax", "Contax Person"};
    forms::TextBox txtJabatan{*this, "txtJabatan", "Position"};
    forms::TextBox txtnDis{*this, "txtnDis"};
    forms::TextBox txtnwDis{*this, "txtnwDis"};
    forms::TextBox txtnJTP{*this, "txtnJTP", "Terms"};
    forms::TextBox TxtNPWP{*this, "TxtNPWP", "Tax ID"};
    forms::TextBox txtSaldoAwal{*this, "txtSaldoAwal", "Opening Balance"};
    forms::TextBox txtSaldoAkhir{*this, "txtSaldoAkhir", "Final Balance"};
    forms::TextBox txtket{*this, "txtket", "Notes"};
    MasterButtons buttons{*this};
    MasterSearch search{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;
    void FillLists() override;
    void RecordShown(ado::Recordset& row) override;

private:
    bool Exists();
    void LeaveJenis();
    void LeaveTypeName();
};

} // namespace varnik
