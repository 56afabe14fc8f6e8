#include "sales/InvoiceRetur.h"

#include "data/Numbering.h"
#include "sales/SalesLines.h"

namespace varnik {

using document::EntryMode;

namespace {

constexpr document::SearchChoice Invoices[] = {
    {"Invoice No", " Where Invoice.NoInvoice Like '%",
     "%' Order By Customer.KodeCus,Invoice.TglInvoice,Invoice.NoInvoice"},
    {"Invoice Date", " Where Invoice.TglInvoice = datevalue ('",
     "') Order By Customer.KodeCus,Invoice.TglInvoice,Invoice.NoInvoice"},
    {"Customer Name", " Where Customer.NamaCus Like  '%",
     "%' Order By Customer.KodeCus,Invoice.TglInvoice,Invoice.NoInvoice"},
    {"Customer Code", " Where Customer.KodeCus Like  '%",
     "%' Order By Customer.KodeCus,Invoice.TglInvoice,Invoice.NoInvoice"},
};

constexpr document::SearchChoice Returns[] = {
    {"Returns Id", " Where InvoiceRetur.ReturID Like '%",
     "%' Order By Customer.KodeCus,InvoiceRetur.TglRetur,InvoiceRetur.ReturID"},
    {"Returns Date", " Where InvoiceRetur.TglRetur = datevalue ('",
     "') Order By Customer.KodeCus,InvoiceRetur.TglRetur,InvoiceRetur.ReturID"},
    {"Customer Name", " Where Customer.NamaCus Like  '%",
     "%' Order By Customer.KodeCus,InvoiceRetur.TglRetur,InvoiceRetur.ReturID"},
    {"Customer Code", " Where Customer.KodeCus Like  '%",
     "%' Order By Customer.KodeCus,InvoiceRetur.TglRetur,InvoiceRetur.ReturID"},
};

constexpr int NumberColumn = 2; // of both searches

document::SearchLayout SearchOf(std::string_view select, std::span<const document::SearchChoice> choices,
                                std::vector<forms::GridColumn> numberAndDate,
                                std::vector<forms::GridColumn> amounts) {
    std::vector<forms::GridColumn> columns{{"Cus ID", forms::Align::Left, 12},
                                           {"Name Of Customer", forms::Align::Left, 26}};
    columns.insert(columns.end(), numberAndDate.begin(), numberAndDate.end());
    columns.insert(columns.end(), amounts.begin(), amounts.end());
    return {select, choices, std::move(columns)};
}

document::SearchLayout InvoiceSearch() {
    using forms::Align;
    return SearchOf("SELECT Customer.KodeCus, Customer.NamaCus, Invoice.NoInvoice, Invoice.TglInvoice, "
                    "Invoice.Bruto, Invoice.Disc, Invoice.Netto, Invoice.PPN, Invoice.Total, Invoice.Bayar, "
                    "Invoice.Saldo  FROM Customer INNER JOIN Invoice ON Customer.KodeCus = Invoice.KodeCus ",
                    Invoices, {{"Invoice ID", Align::Left, 14}, {"Inv Date", Align::Left, 12}},
                    {{"Bruto", Align::Right, 11},
                     {"Disc", Align::Right, 9},
                     {"Netto", Align::Right, 11},
                     {"Tax", Align::Right, 9},
                     {"Amount", Align::Right, 11},
                     {"Payment", Align::Right, 11},
                     {"Balance", Align::Right, 11}});
}

document::SearchLayout ReturnSearch() {
    using forms::Align;
    return SearchOf(
        "SELECT Customer.KodeCus, Customer.NamaCus, InvoiceRetur.ReturID, InvoiceRetur.TglRetur, "
        "InvoiceRetur.NoInvoice, InvoiceRetur.Bruto, InvoiceRetur.Disc, InvoiceRetur.Netto, "
        "InvoiceRetur.PPN, InvoiceRetur.Total  FROM Customer INNER JOIN InvoiceRetur ON "
        "Customer.KodeCus = InvoiceRetur.KodeCus ",
        Returns,
        {{"Returns ID", Align::Left, 14}, {"Date", Align::Left, 12}, {"Invoice ID", Align::Left, 14}},
        {{"Bruto", Align::Right, 11},
         {"Disc", Align::Right, 9},
         {"Netto", Align::Right, 11},
         {"Tax", Align::Right, 9},
         {"Amount", Align::Right, 11}});
}

} // namespace

InvoiceRetur::InvoiceRetur(Services& services)
    : DocumentScreen(services, "InvoiceRetur", "Seles Returns"),
      TxtReturID(*this, "TxtReturID", "Returns ID"),
      TxtTglRetur(*this, "TxtTglRetur", "Date"),
      TxtNoInvoice(*this, "TxtNoInvoice", "Invoice ID"),
      TxtTglInvoice(*this, "TxtTglInvoice", "Invoice Date"),
      TxtKodeCus(*this, "TxtKodeCus", "Customer ID"),
      TxtNamaCus(*this, "TxtNamaCus", "Name"),
      TxtAlamat(*this, "TxtAlamat", "Address"),
      TxtPPN(*this, "TxtPPN", "Tax (%)"),
      txtket(*this, "txtket", "Notes"),
      Combo1(*this, "Combo1", "Reason"),
      bttnSearch(*this, "bttnSearch", "..."),
      line_(*this, {.discount = "Disc (%)"}),
      OrderGrid(*this, SalesLines("QTY @")),
      boxes_(*this),
      frmCari(*this, InvoiceSearch()),
      FrmCari2(*this, ReturnSearch(), document::SecondSearch) {
    for (forms::TextBox* number : {&TxtReturID, &TxtNoInvoice}) number->SetMaxLength(12);
    TxtTglRetur.SetMaxLength(10);
    TxtPPN.SetRightAligned(true);
    txtket.SetMaxLength(100);
    Combo1.SetMaxLength(50);
    Combo1.AddItem("RUSAK");
    // What comes with the invoice is shown, not typed.
    for (forms::TextBox* shown :
         {&TxtTglInvoice, &TxtKodeCus, &TxtNamaCus, &TxtAlamat, &line_.txtKodeBrg, &line_.TxtDiskripsi}) {
        shown->SetLocked(true);
        shown->SetTabStop(false);
    }
    line_.TxtSatuan.SetLocked(true);
    line_.TxtSatuan.SetTabStop(false);
    bttnSearch.SetToolTip("List of invoices");
    bttnSearch.SetTabStop(false);
    TxtNoInvoice.SetToolTip("F5, or Enter on an empty number, lists the invoices");

    TypesCapitals({&TxtReturID, &TxtNoInvoice, &Combo1});
    MovesBackAlong({&TxtReturID, &TxtTglRetur, &TxtNoInvoice, &TxtPPN, &txtket, &Combo1});
    MovesBackAlong({&line_.txtQty, &line_.txtHarga, &line_.TxtDis, &line_.bttnAddLine});

    TxtReturID.onLeave = [this] { NumberLeft(); };
    TxtNoInvoice.onLeave = [this] { InvoiceLeft(); };
    TxtPPN.onLeave = [this] {
        if (Mode() == EntryMode::New) RecalcTotals();
    };
    for (forms::TextBox* amount : {&line_.txtQty, &line_.txtHarga, &line_.TxtDis})
        amount->onChange = [this] { AmountTyped(); };
    line_.bttnAddLine.onClick = [this] { AddLine(); };
    line_.BatalLine.onClick = [this] { CancelLine(); };
    OrderGrid.onClick = [this] { OpenRow(); };
    bttnSearch.onClick = [this] { frmCari.Open(); };
    frmCari.onExecute = [this] { frmCari.Execute(Data(), services_); };
    frmCari.onTake = [this] { TakeInvoice(); };
    FrmCari2.onExecute = [this] { FrmCari2.Execute(Data(), services_); };
    FrmCari2.onTake = [this] { TakeRetur(); };
}

void InvoiceRetur::Load() {
    DocumentScreen::Load();
    ClearRetur();
    bttnSearch.SetEnabled(false);
}

void InvoiceRetur::PreviewKeyDown(forms::Key& key) {
    using forms::KeyCode;
    DocumentScreen::PreviewKeyDown(key);
    forms::Control* const at = Focused();
    if (key.handled || !at || Mode() != EntryMode::New) return;
    key.handled = true;
    if (at == &OrderGrid && key.Is(KeyCode::Enter))
        OpenRow();
    else if (at == &OrderGrid && key.Is(KeyCode::Delete))
        BlankRow();
    else if (at->Container() == &line_.FrameIsiBarang && key.Is(KeyCode::Escape))
        CancelLine();
    else if (AsksForList(key, TxtNoInvoice))
        frmCari.Open();
    else
        key.handled = false;
}

// ---- The buttons ----

void InvoiceRetur::StartNew() {
    SetMode(EntryMode::New);
    ShowEntryFrame();
    ClearRetur();
    bttnSearch.SetEnabled(true);
    TxtReturID.SetText(data::NextNumber(services_, Document::InvoiceRetur));
    SetFocus(TxtReturID);
}

void InvoiceRetur::StartDelete() {
    SetMode(EntryMode::Deleting);
    ShowEntryFrame();
    OrderGrid.ClearGrid();
    bttnSave.SetCaption("&Delete");
    SetFocus(TxtReturID);
}

void InvoiceRetur::CancelEntry() {
    SetMode(EntryMode::Browsing);
    bttnSave.SetCaption("&Save");
    EntryEnded();
    // A new return whose number has no row stays on the screen until the next action.
    LoadRetur(TxtReturID.Text());
    ShowBrowseFrame();
}

void InvoiceRetur::EntryEnded() {
    line_.FrameIsiBarang.SetVisible(false);
    bttnSearch.SetEnabled(false);
}

bool InvoiceRetur::TestsPassed() {
    const auto holds = [this](bool good, const std::string& message) {
        if (!good) Say(message);
        return good;
    };
    const auto filled = [](const forms::TextBox& field) { return !Trim(field.Text()).empty(); };
    const auto isDate = [this](const forms::TextBox& field) {
        return IsDate(field.Text(), services_.regional);
    };
    const std::string noDate =
        "Enter  date of transaction with valid date" + std::string(CrLf) + "Using  dd-mm-yyyy format...";
    return holds(filled(TxtReturID), "The ID should not be empty. Enter a value ...") &&
           holds(isDate(TxtTglRetur), noDate) &&
           holds(filled(TxtNoInvoice), "Invoice number must not blank ...") &&
           holds(isDate(TxtTglInvoice), noDate) && holds(filled(TxtKodeCus), "Please type customer id...");
}

// ---- The header ----

void InvoiceRetur::NumberLeft() {
    if (Browsing()) return;
    const std::string id = TxtReturID.Text();
    if (Trim(id).empty()) {
        Say("The ID should not be empty. Enter a value ...");
        SetFocus(TxtReturID);
        return;
    }
    ado::Recordset retur;
    const bool found = Found(retur, "Select * From InvoiceRetur Where  ReturID ='" + id + "'");
    if (Mode() == EntryMode::New) {
        if (!found) return;
        Say("The ID already exist ..");
        SetFocus(TxtReturID);
    } else if (found) {
        LoadRetur(id);
    } else {
        Say("Unable to find record ...");
        CancelEntry();
    }
}

void InvoiceRetur::InvoiceLeft() {
    const std::string number = Trim(TxtNoInvoice.Text());
    // Passing through the field keeps the lines that were cut down.
    if (Mode() != EntryMode::New || number.empty() || number == source_) return;
    LoadInvoiceForRetur(number);
    if (source_ == number) return;
    Say("Invoice with this number is not found ...");
    SetFocus(TxtNoInvoice);
}

void InvoiceRetur::TakeInvoice() {
    const std::string number = frmCari.Chosen(NumberColumn);
    frmCari.Close();
    if (number.empty() || Mode() != EntryMode::New) return;
    LoadInvoiceForRetur(number);
    SetFocus(OrderGrid);
}

void InvoiceRetur::TakeRetur() {
    const std::string id = FrmCari2.Chosen(NumberColumn);
    FrmCari2.Close();
    if (!id.empty()) LoadRetur(id);
}

void InvoiceRetur::ClearRetur() {
    TxtTglRetur.SetText(Shown(Today()));
    for (forms::TextControl* text :
         std::initializer_list<forms::TextControl*>{&TxtReturID, &TxtNoInvoice, &TxtTglInvoice, &TxtKodeCus,
                                                    &TxtNamaCus, &TxtAlamat, &txtket, &Combo1})
        text->SetText("");
    TxtPPN.SetText("0");
    boxes_.Clear();
    line_.Check2.SetChecked(false);
    line_.ClearLine();
    line_.FrameIsiBarang.SetVisible(false);
    sums_ = {};
    source_.clear();
    OrderGrid.ClearGrid();
}

DateTime InvoiceRetur::ReturnDate() const {
    return ParseDate(TxtTglRetur.Text(), services_.regional).value_or(Today());
}

} // namespace varnik
