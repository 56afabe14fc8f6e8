// The header of a purchase, its look-up lists, and the search for one that stands.

#include "purchases/Faktur.h"

namespace varnik {

using document::EntryMode;

void Faktur::NumberLeft() {
    if (Browsing()) return;
    const std::string number = TxtNoFaktur.Text();
    if (Trim(number).empty()) {
        Say("The ID should not be empty ...");
        SetFocus(TxtNoFaktur);
        return;
    }
    ado::Recordset purchase;
    const bool found = Found(purchase, "Select * from Faktur Where NoFaktur ='" + number + "'");
    const bool isNew = Mode() == EntryMode::New;
    if (found) {
        if (isNew) Say("Purchases number found...");
        LoadFaktur(number);
    } else {
        // Wanted: coming back to a free number wipes what was entered under it.
        ClearFaktur();
        if (!isNew) {
            Say("Purchases number not found ...");
            bttnSave.SetCaption("&Save");
        }
    }
    bttnSave.SetEnabled(found != isNew);
    if (MovingOn()) SetFocus(TxtTglFaktur);
}

void Faktur::SupplierLeft() {
    if (Browsing() || GridCari.Visible()) return;
    const std::string code = Trim(supplier_.TxtKodeSup.Text());
    ado::Recordset supplier;
    const bool found = Found(supplier, "Select * from Supplier Where KodeSup='" + code + "'");
    supplier_.ClearName();
    if (!found) return;
    ShowSupplier(supplier);
    if (MovingOn()) SetFocus(OrderGrid);
}

void Faktur::ShowSupplier(ado::Recordset& supplier) {
    supplier_.TxtAlamat1.SetText(TextOf(supplier["Alamat_1"]));
    supplier_.TxtAlamat2.SetText(TextOf(supplier["Alamat_2"]));
    supplier_.TxtAlamat3.SetText(TextOf(supplier["Alamat_3"]));
    supplier_.TxtNamaSup.SetText(TextOf(supplier["NamaSup"]));
    supplier_.TxtKodeSup.SetText(TextOf(supplier["KodeSup"]));
    const int days = static_cast<int>(Amount(supplier, "nJTP"));
    TxtJTP.SetText(SqlDate(AddDays(TxtTglFaktur.Date(), days)));
    supplier_.txtket.SetText("Purchases No. " + Trim(TxtNoFaktur.Text()) + " Sup. " +
                             Trim(supplier_.TxtKodeSup.Text()) + " " + Trim(supplier_.TxtNamaSup.Text()));
}

void Faktur::NameLeft() {
    const std::string name = supplier_.TxtNamaSup.Text();
    if (Browsing() || GridCari.Visible() || Trim(name).empty()) return;
    ado::Recordset supplier;
    if (Found(supplier, "Select * from Supplier Where NamaSup='" + name + "'")) {
        ShowSupplier(supplier);
        return;
    }
    ado::RowList alike;
    Resume([&] {
        alike = ReadList(
            services_, "Select * from Supplier Where NamaSup Like '%" + name + "%' Order By NamaSup,KodeSup ",
            Data());
    });
    if (alike.Count() == 0) return;
    const auto line = [this](const std::vector<Value>& row) { return TextOf(row[0]) + "." + TextOf(row[1]); };
    GridCari.Open(alike, line, supplier_.TxtKodeSup, [this, alike](const std::string&) {
        const std::vector<Value> row = alike.Row(GridCari.Row());
        if (row.empty()) return; // deleted meanwhile
        supplier_.TxtKodeSup.SetText(TextOf(row[0]));
        SupplierLeft();
        SetFocus(OrderGrid);
    });
}

void Faktur::ClearFaktur() {
    TxtTglFaktur.SetDate(Today());
    TxtJTP.SetText(SqlDate(Today()));
    for (forms::TextBox* text : {&txtFaksup, &supplier_.TxtKodeSup, &supplier_.txtket}) text->SetText("");
    supplier_.ClearName();
    line_.Check2.SetChecked(false);
    line_.ClearLine();
    // Wanted: the gross and the discount of the purchase before stay, in the sums and in their boxes.
    sums_.JumNetto = sums_.JumTotal = sums_.JumBayar = sums_.JumSaldo = 0;
    boxes_.TxtJumNetto.SetText("0");
    boxes_.txtJumTotal.SetText("0");
    ClearOrderGrid();
}

// ---- Lists ----

void Faktur::ListSuppliers() {
    if (Browsing()) return;
    const std::string name = Trim(supplier_.TxtNamaSup.Text());
    OpenList(GridCari,
             name.empty() ? "Select KodeSup, NamaSup From Supplier Order By KodeSup"
                          : "Select KodeSup, NamaSup From Supplier Where NamaSup Like '%" + name +
                                "%' Order By KodeSup",
             supplier_.TxtKodeSup, [this] {
                 SupplierLeft();
                 SetFocus(OrderGrid);
             });
}

void Faktur::ListProducts() {
    if (Browsing()) return;
    const std::string description = Trim(line_.TxtDiskripsi.Text());
    OpenList(GridCari,
             description.empty() ? "Select KodeBrg, NamaBrg From Produk Order By KodeBrg "
                                 : "Select KodeBrg, NamaBrg From Produk Where NamaBrg Like '%" + description +
                                       "%' Order By KodeBrg ",
             line_.txtKodeBrg, [this] {
                 ChooseProduct();
                 SetFocus(line_.txtQty);
             });
}

void Faktur::TakeFound() {
    constexpr int NumberColumn = 2;
    const std::string number = frmCari.Chosen(NumberColumn);
    if (!number.empty()) {
        ClearFaktur();
        TxtNoFaktur.SetText(number);
        LoadFaktur(number);
    }
    frmCari.Close();
}

} // namespace varnik
