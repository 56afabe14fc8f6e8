#pragma once
// Products and services: three units with their prices, opening stock, cost and quantities. Postings move
// the quantities and costs elsewhere; this screen writes them only when a user saves.

#include "master/MasterScreen.h"

namespace varnik {

class fProduk : public MasterScreen {
public:
    explicit fProduk(Services& services);

    forms::TextBox txtKode{*this, "txtKode", "Product ID"};
    forms::CheckBox Check1{*this, "Check1", "&Service"};
    forms::TextBox txtNama{*this, "txtNama", "Product Description"};
    forms::TextBox TxtJenis{*this, "TxtJenis"};
    forms::ComboBox Combo1{*this, "Combo1", "Category"};
    forms::ComboBox TxtSatuan{*this, "TxtSatuan", "Unit Measure (UM)"};
    forms::TextBox txtPecahan{*this, "txtPecahan", "Qty Per UM"};
    forms::ComboBox TxtSatuanBeli{*this, "TxtSatuanBeli", "Purcahases Unit (PU)"};
    forms::TextBox TxtPecahanBeli{*this, "TxtPecahanBeli", "Qty Per (PU)"};
    forms::TextBox txtHargaBeli{*this, "txtHargaBeli", "Purchases Price"};
    forms::ComboBox TxtSatuanJual{*this, "TxtSatuanJual", "Selling Unit (SU)"};
    forms::TextBox TxtPecahanJual{*this, "TxtPecahanJual", "Qty Per SU"};
    forms::TextBox TxtHargaJual{*this, "TxtHargaJual", "Selling Price"};
    forms::TextBox TxtHPPRata{*this, "TxtHPPRata", "Item Price"};
    forms::TextBox txtQCounter{*this, "txtQCounter", "Q. Counter"};
    forms::TextBox TxtQGudang{*this, "TxtQGudang", "Q. Gudang"};
    forms::TextBox TxtOnHand{*this, "TxtOnHand", "Q. On Hand"};
    forms::TextBox TxtQAwal{*this, "TxtQAwal", "Opening Balance"};
    forms::TextBox txtOnOrder{*this, "txtOnOrder"};
    forms::ComboBox TxtKodeSup{*this, "TxtKodeSup", "Supplier ID"};
    forms::TextBox txtKodeRef{*this, "txtKodeRef", "Supplier Reference"};
    forms::TextBox txtket{*this, "txtket", "Notes"};
    MasterButtons buttons{*this};
    MasterSearch search{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;
    void FillLists() override;
    void RecordShown(ado::Recordset& row) override;
    void CodeLeft() override { SetFocus(Check1); }

private:
    bool Exists();
    void RefreshUnitLists();
    void SwitchService();
    void LeaveJenis();
    void LeaveCategory();
    void SumOnHand();
    std::string SupplierCode() const;
};

} // namespace varnik
