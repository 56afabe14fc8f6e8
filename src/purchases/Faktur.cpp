#include "purchases/Faktur.h"

#include "data/Numbering.h"

namespace varnik {

using document::EntryMode;

namespace {

document::LineLayout Lines() {
    using forms::Align;
    return {{{"Product ID", Align::Left, 12},
             {"Description", Align::Left, 36},
             {"Qty", Align::Right, 8},
             {"UNIT", Align::Left, 8},
             {"Price", Align::Right, 12},
             {"Bruto", Align::Right, 14},
             {"Disc", Align::Right, 12},
             {"Total", Align::Right, 14},
             {"Qty/UM", Align::Right, 9}},
            {"", "", "", "", "", "0", "0", "0", "0"}};
}

constexpr document::SearchChoice Choices[] = {
    {"ID", " Where NoFaktur Like '%", "%' Order By KodeSup,TglFaktur,NoFaktur"},
    {"Purchases Date", " Where TglFaktur = datevalue ('", "') Order By KodeSup,TglFaktur,NoFaktur"},
    {"Supplier Name", " Where NamaSup Like  '%", "%' Order By KodeSup,TglFaktur,NoFaktur"},
    {"Supplier ID", " Where KodeSup Like  '%", "%' Order By KodeSup,TglFaktur,NoFaktur"},
    {"Current Balance", " Where Saldo >= ", " Order By KodeSup,TglFaktur,NoFaktur"},
};

document::SearchLayout Search() {
    using forms::Align;
    return {.select =
                "SELECT KodeSup, NamaSup, NoFaktur, TglFaktur, Total, Bayar,  Saldo FROM QryInvSupplier ",
            .choices = Choices,
            .columns = {{"Supplier ID", Align::Left, 10},
                        {"Supplier Name", Align::Left, 30},
                        {"Kode", Align::Left, 12},
                        {"Date", Align::Left, 10},
                        {"Po Amount", Align::Right, 12},
                        {"Payment", Align::Right, 12},
                        {"Balance", Align::Right, 12}},
            .failsAloud = true};
}

} // namespace

Faktur::Faktur(Services& services)
    : PurchaseScreen(services, "Faktur", "Purchases"),
      TxtNoFaktur(*this, "TxtNoFaktur", "Purchases No"),
      TxtTglFaktur(*this, "TxtTglFaktur", "Date"),
      txtFaksup(*this, "txtFaksup", "Supp Faktur"),
      TxtJTP(*this, "TxtJTP", "Due Date"),
      supplier_(*this),
      bttnSearch(*this, "bttnSearch(0)", "..."),
      line_(
          *this,
          {.code = "Proudct ID", .gross = "Bruto", .discount = "Disc (%)", .cancelButton = "bttnBatalLine"}),
      bttnSearchProduct(*this, "bttnSearch(1)", "..."),
      OrderGrid(*this, Lines()),
      boxes_(*this, document::Tax::None),
      frmCari(*this, Search()),
      GridCari(*this) {
    TxtNoFaktur.SetMaxLength(12);
    txtFaksup.SetMaxLength(30);
    line_.HoldSearch(bttnSearchProduct);
    bttnSearch.SetToolTip("List of suppliers");
    bttnSearch.SetTabStop(false);

    TypesCapitals({&TxtNoFaktur, &supplier_.TxtKodeSup, &line_.txtKodeBrg});
    MovesBackAlong({&TxtNoFaktur, &TxtTglFaktur, &txtFaksup, &TxtJTP, &supplier_.TxtKodeSup,
                    &supplier_.TxtNamaSup, &supplier_.TxtAlamat1, &supplier_.TxtAlamat2,
                    &supplier_.TxtAlamat3, &supplier_.txtket});
    MovesBackAlong({&line_.txtKodeBrg, &line_.TxtDiskripsi, &line_.txtQty, &line_.TxtSatuan, &line_.txtHarga,
                    &line_.TxtDis, &line_.bttnAddLine});

    TxtNoFaktur.onLeave = [this] { NumberLeft(); };
    supplier_.TxtKodeSup.onLeave = [this] { SupplierLeft(); };
    supplier_.TxtNamaSup.onLeave = [this] { NameLeft(); };
    bttnSearch.onClick = [this] { ListSuppliers(); };

    line_.txtKodeBrg.onLeave = [this] { CodeLeft(); };
    line_.TxtSatuan.onLeave = [this] { UnitLeft(); };
    // Wanted: the gross amount is rounded after the price and the discount, and not after the quantity.
    line_.txtQty.onLeave = [this] { ShowAmounts(""); };
    line_.txtHarga.onLeave = [this] { ShowAmounts("#,##0.#0"); };
    line_.TxtDis.onLeave = [this] { ShowAmounts("#,##0"); };
    line_.bttnAddLine.onClick = [this] { AddLine(); };
    line_.BatalLine.onClick = [this] { CancelLine(); };
    bttnSearchProduct.onClick = [this] { ListProducts(); };

    OrderGrid.onClick = [this] { OpenRow(); };
    frmCari.onExecute = [this] { frmCari.Execute(Data(), services_); };
    frmCari.onTake = [this] { TakeFound(); };
}

void Faktur::Load() {
    DocumentScreen::Load();
    ledger_.Open("SELECT * FROM Persediaan", Data());
    productTypes_.Open("SELECT * FROM JenisProduk  Order By KodeJenisProduk", Data());
    boxes_.Clear();
    ClearFaktur();
    line_.FrameIsiBarang.SetVisible(false);
    line_.bttnAddLine.SetEnabled(false);
}

void Faktur::Unload() {
    for (ado::Recordset* kept : {&ledger_, &productTypes_})
        if (kept->IsOpen()) kept->Close();
    DocumentScreen::Unload();
}

void Faktur::PreviewKeyDown(forms::Key& key) {
    using forms::KeyCode;
    DocumentScreen::PreviewKeyDown(key);
    forms::Control* const at = Focused();
    if (key.handled || !at || Browsing()) return;
    const auto act = [&](auto routine) {
        key.handled = true;
        (this->*routine)();
    };
    if (at == &OrderGrid && key.Is(KeyCode::Enter))
        act(&Faktur::OpenRow);
    else if (at == &OrderGrid && key.Is(KeyCode::Delete))
        act(&Faktur::DeleteRow);
    else if (at->Container() == &line_.FrameIsiBarang && key.Is(KeyCode::Escape))
        act(&Faktur::CancelLine);
    else if (at == &supplier_.TxtKodeSup && key.Is(KeyCode::Escape))
        act(&Faktur::CancelEntry);
    else if (AsksForList(key, supplier_.TxtKodeSup))
        act(&Faktur::ListSuppliers);
    else if (AsksForList(key, line_.txtKodeBrg))
        act(&Faktur::ListProducts);
}

// ---- The buttons ----

void Faktur::StartNew() {
    SetMode(EntryMode::New);
    ClearFaktur();
    line_.bttnAddLine.SetEnabled(true);
    navigation_.SetEnabled(false);
    ShowEntryFrame();
    TxtNoFaktur.SetText(data::NextNumber(services_, Document::Faktur));
    SetFocus(TxtNoFaktur);
}

void Faktur::StartDelete() {
    SetMode(EntryMode::Deleting);
    ClearOrderGrid();
    line_.bttnAddLine.SetEnabled(false);
    navigation_.SetEnabled(false);
    bttnSave.SetCaption("&Delete");
    ShowEntryFrame();
    SetFocus(TxtNoFaktur);
}

// Wanted: the caption of bttnSave stays, so that after a deletion was given up it still reads "&Delete".
void Faktur::CancelEntry() {
    SetMode(EntryMode::Browsing);
    sums_.JumTotal = sums_.JumNetto = 0;
    EntryEnded();
    ShowBrowseFrame();
}

bool Faktur::TestsPassed() {
    if (IsDate(TxtJTP.Text(), services_.regional)) return true;
    Say("Enter due date with valid date ...");
    return false;
}

bool Faktur::ReverseConfirmed() { return Ask("Are you sure you want delete this record ? "); }

void Faktur::EntryEnded() {
    line_.bttnAddLine.SetEnabled(false);
    line_.FrameIsiBarang.SetVisible(false);
    navigation_.SetEnabled(true);
    LoadFaktur(TxtNoFaktur.Text());
}

} // namespace varnik
