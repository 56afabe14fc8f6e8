#include "purchases/FakturRetur.h"

#include "data/Numbering.h"

namespace varnik {

using document::EntryMode;

namespace {

document::LineLayout Lines() {
    using forms::Align;
    return {{{"ID", Align::Left, 12},
             {"DISCRIPTION", Align::Left, 36},
             {"QTY", Align::Right, 8},
             {"UNIT", Align::Left, 8},
             {"PRICE", Align::Right, 12},
             {"BRUTO", Align::Right, 14},
             {"DIS", Align::Right, 12},
             {"TOTAL", Align::Right, 14},
             {"QTY @", Align::Right, 9}},
            {"", "", "", "", "", "0", "0", "0", "0"}};
}

} // namespace

FakturRetur::FakturRetur(Services& services)
    : PurchaseScreen(services, "FakturRetur", "Purchases Return"),
      TxtNoFaktur(*this, "TxtNoFaktur", "Return No"),
      TxtTglFaktur(*this, "TxtTglFaktur", "Date"),
      txtNoPO(*this, "txtNoPO", "Purchases No"),
      TxtTglPO(*this, "TxtTglPO", "Purchases Date"),
      supplier_(*this, "txtAlamat2"),
      line_(*this, {.gross = "Bruto", .discount = "Disc (%)", .cancelButton = "bttnBatalLine"}),
      OrderGrid(*this, Lines()),
      boxes_(*this, document::Tax::None) {
    for (forms::TextBox* number : {&TxtNoFaktur, &txtNoPO}) number->SetMaxLength(12);
    for (forms::TextBox* date : {&TxtTglFaktur, &TxtTglPO}) date->SetMaxLength(10);
    TypesCapitals({&TxtNoFaktur, &txtNoPO, &supplier_.TxtKodeSup, &line_.txtKodeBrg});
    MovesBackAlong({&TxtNoFaktur, &TxtTglFaktur, &txtNoPO, &TxtTglPO, &supplier_.TxtKodeSup,
                    &supplier_.TxtNamaSup, &supplier_.TxtAlamat1, &supplier_.TxtAlamat2,
                    &supplier_.TxtAlamat3, &supplier_.txtket});
    MovesBackAlong({&line_.txtKodeBrg, &line_.TxtDiskripsi, &line_.txtQty, &line_.TxtSatuan, &line_.txtHarga,
                    &line_.TxtDis, &line_.bttnAddLine});

    TxtNoFaktur.onLeave = [this] { NumberLeft(); };
    txtNoPO.onChange = [this] { purchaseTyped_ = true; };
    txtNoPO.onLeave = [this] { PurchaseLeft(); };
    TxtTglPO.onLeave = [this] { PurchaseDateLeft(); };
    supplier_.TxtKodeSup.onLeave = [this] {
        if (!Browsing()) SupplierLeft();
    };
    line_.txtQty.onChange = [this] { QuantityTyped(); };
    line_.bttnAddLine.onClick = [this] { AddLine(); };
    line_.BatalLine.onClick = [this] { CancelLine(); };
    OrderGrid.onClick = [this] { OpenRow(); };
    navigation_.onMove = [this](document::Navigation::Move move) { Move(move); };
}

void FakturRetur::Load() {
    DocumentScreen::Load();
    const auto open = [this](ado::Recordset& rows, const char* table) {
        rows.Open(std::string("SELECT * FROM ") + table, Data());
    };
    open(suppliers_, "Supplier");
    open(products_, "Produk");
    open(purchases_, "Faktur");
    open(lots_, "FakturDetail");
    open(returns_, "FakturRetur");
    open(returnLines_, "FakturReturDetail");
    open(supplierLookUp_, "Supplier");
    open(ledger_, "Persediaan");
    open(productTypes_, "JenisProduk  Order By KodeJenisProduk");
    ClearRetur();
    line_.bttnAddLine.SetEnabled(false);
}

void FakturRetur::Unload() {
    for (ado::Recordset* kept : {&suppliers_, &products_, &purchases_, &lots_, &returns_, &returnLines_,
                                 &supplierLookUp_, &ledger_, &productTypes_})
        if (kept->IsOpen()) kept->Close();
    DocumentScreen::Unload();
}

void FakturRetur::PreviewKeyDown(forms::Key& key) {
    using forms::KeyCode;
    DocumentScreen::PreviewKeyDown(key);
    forms::Control* const at = Focused();
    if (key.handled || !at || Browsing()) return;
    key.handled = true;
    if (at == &OrderGrid && key.Is(KeyCode::Enter))
        OpenRow();
    else if (at == &OrderGrid && key.Is(KeyCode::Delete))
        DeleteRow();
    else if (at->Container() == &line_.FrameIsiBarang && key.Is(KeyCode::Escape))
        CancelLine();
    else if (at == &line_.txtQty && key.Is(KeyCode::Enter)) {
        QuantityTyped();
        SetFocus(line_.bttnAddLine);
    } else
        key.handled = false;
}

// ---- The buttons ----

void FakturRetur::StartNew() {
    SetMode(EntryMode::New);
    ClearRetur();
    line_.bttnAddLine.SetEnabled(true);
    navigation_.SetEnabled(false);
    ShowEntryFrame();
    TxtNoFaktur.SetText(data::NextNumber(services_, Document::FakturRetur));
    SetFocus(TxtNoFaktur);
}

void FakturRetur::StartDelete() {
    SetMode(EntryMode::Deleting);
    navigation_.SetEnabled(false);
    bttnSave.SetCaption("&Delete");
    ShowEntryFrame();
    SetFocus(TxtNoFaktur);
}

void FakturRetur::CancelEntry() {
    SetMode(EntryMode::Browsing);
    Guarded([&](Guard& step) {
        ShowReturnLines(step, "#,##0.#0");
        if (Seek(step, returns_, "NoFaktur = '" + ReturnNumber() + "'"))
            ShowReturn(step);
        else
            ClearRetur();
    });
    EntryEnded();
    ShowBrowseFrame();
}

void FakturRetur::EntryEnded() {
    line_.FrameIsiBarang.SetVisible(false);
    line_.bttnAddLine.SetEnabled(false);
    navigation_.SetEnabled(true);
}

void FakturRetur::Find() {
    Guarded([&](Guard& step) {
        step.Step([&] { returns_.Requery(); });
        const std::string number = ReturnNumber();
        bool found = Seek(step, returns_, "NoFaktur = '" + number + "'");
        if (!found && !number.empty()) found = Seek(step, returns_, "NoFaktur LIKE '*" + number + "*'");
        if (found) return ShowReturn(step);
        ClearRetur();
        Say("The number searched still be empty or not found.  Please type the  number  for searching ...",
            Icon::None, "Not Found ");
    });
}

// Beyond either end the row at that end stays.
void FakturRetur::Move(document::Navigation::Move move) {
    Guarded([&](Guard& step) {
        bool any = false;
        step.Step([&] { any = document::Navigation::Walk(returns_, move); });
        if (!any) return ClearRetur();
        ShowReturn(step);
    });
}

void FakturRetur::Print() {
    const document::Hourglass hourglass(Desk());
    ReportRequest request = ReportOf("\\PORetur.rpt");
    request.SQLQuery = " SELECT      NoFaktur, TglFaktur, KodeBrg, Qty, Satuan, Total2, NamaSup, Alamat_1, "
                       "Alamat_2, Alamat_3, Kota, NamaBrg, KodeSup, Ket2 FROM QryPORetur Where Nofaktur = '" +
                       ReturnNumber() + "'";
    request.SetTitles(1, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2, Sess().CompanyLine3);
    Desk().LaunchReport(request);
}

// Wanted: number, purchase and supplier are not tested for blanks here.
bool FakturRetur::TestsPassed() {
    const auto isDate = [this](const forms::TextBox& field, const char* message, const char* example) {
        if (IsDate(field.Text(), services_.regional)) return true;
        Say(message + std::string(CrLf) + example + Shown(Today()));
        return false;
    };
    return isDate(TxtTglFaktur, "Invalid date formats", "example ") &&
           isDate(TxtTglPO, "Invalid date format", "Example ");
}

} // namespace varnik
