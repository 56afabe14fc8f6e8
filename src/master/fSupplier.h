#pragma once
// Suppliers: addresses, terms and the running payable. The one master screen without a main recordset: the
// code in the box is its only position, and all writing goes through a recordset.

#include "master/MasterScreen.h"

namespace varnik {

class fSupplier : public MasterScreen {
public:
    explicit fSupplier(Services& services);

    forms::TextBox txtKode{*this, "txtKode", "Supplier ID"};
    forms::TextBox txtNama{*this, "txtNama", "Supplier Name"};
    forms::TextBox txtAlamat_1{*this, "txtAlamat_1", "Address"};
    forms::TextBox txtAlamat_2{*this, "txtAlamat_2"};
    forms::TextBox txtAlamat_3{*this, "txtAlamat_3"};
    forms::TextBox txtKota{*this, "txtKota", "City"};
    forms::TextBox txtTelp{*this, "txtTelp", "Telp No"};
    forms::TextBox txtFax{*this, "txtFax", "Fax No"};
    forms::TextBox txtContax{*this, "txtContax", "Contax Person"};
    forms::TextBox txtJabatan{*this, "txtJabatan", "Position"};
    forms::TextBox txtnDis{*this, "txtnDis"};
    forms::TextBox txtnwDis{*this, "txtnwDis"};
    forms::TextBox txtnJTP{*this, "txtnJTP", "Terms"};
    forms::TextBox txtSaldoAwal{*this, "txtSaldoAwal", "Opening Balance"};
    forms::TextBox txtSaldoAkhir{*this, "txtSaldoAkhir", "Final Balance"};
    forms::TextBox txtket{*this, "txtket", "Note"};
    MasterButtons buttons{*this};
    MasterSearch search{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;

private:
    std::string Select() const { return "Select * From Supplier Where KodeSup = " + Quoted(Trim(Code())); }
    void WriteFields(ado::Recordset& supplier);
};

} // namespace varnik
