#include "sales/Invoice.h"

#include "data/Numbering.h"
#include "sales/Bayar.h"
#include "sales/SalesLines.h"

namespace varnik {

using document::EntryMode;

namespace {

constexpr document::SearchChoice Choices[] = {
    {"Invoice Number", " Where NoInvoice Like '%", "%' Order By KodeCus,TglInvoice,NoInvoice"},
    {"Invoice Date", " Where TglInvoice = datevalue ('", "') Order By KodeCus,TglInvoice,NoInvoice"},
    {"Name of Customer", " Where NamaCus Like  '%", "%' Order By KodeCus,TglInvoice,NoInvoice"},
    {"Customer ID", " Where KodeCus Like  '%", "%' Order By KodeCus,TglInvoice,NoInvoice"},
    {"Current Balance", " Where Saldo >=   ", " Order By KodeCus,TglInvoice,NoInvoice"},
};

document::SearchLayout Search() {
    using forms::Align;
    return {"SELECT KodeCus, NamaCus, NoInvoice, TglInvoice,  Netto, PPN, Total, Bayar, Saldo "
            "FROM QryInvCustomer ",
            Choices,
            {{"Cus ID", Align::Left, 13},
             {"Name Of Customer", Align::Left, 24},
             {"Invoice ID", Align::Left, 15},
             {"Inv Date", Align::Left, 12},
             {"Netto", Align::Right, 12},
             {"Tax", Align::Right, 11},
             {"Amount", Align::Right, 12},
             {"Payment", Align::Right, 12},
             {"Balance", Align::Right, 12}}};
}

} // namespace

Invoice::Invoice(Services& services)
    : DocumentScreen(services, "Invoice", "Sales - Varnik"),
      TxtNoInvoice(*this, "TxtNoInvoice", "Invoice ID"),
      TxtTglInvoice(*this, "TxtTglInvoice", "Date"),
      txtCusPO(*this, "txtCusPO", "Customer PO"),
      TxtJTP(*this, "TxtJTP", "Due Date"),
      TxtPPN(*this, "TxtPPN", "Tax (%)"),
      TxtKodeCus(*this, "TxtKodeCus", "&Customer ID"),
      TxtNamaCus(*this, "TxtNamaCus", "Name"),
      TxtAlamat1(*this, "TxtAlamat1", "Address"),
      TxtAlamat2(*this, "TxtAlamat2"),
      TxtAlamat3(*this, "TxtAlamat3"),
      line_(*this),
      bttnSearch(*this, "bttnSearch", "..."),
      OrderGrid(*this, SalesLines("QTY/UNIT")),
      boxes_(*this),
      TxtSaldo(*this, "TxtSaldo", "Balance :"),
      bttnBayar(*this, "bttnBayar", "&Receipt"),
      frmCari(*this, Search()),
      GridCari(*this) {
    FrameBawah.Hold({&bttnBayar});
    line_.HoldSearch(bttnSearch);
    document::MakeAmountBox(TxtSaldo);
    TxtPPN.SetRightAligned(true);
    TxtNoInvoice.SetMaxLength(12);
    txtCusPO.SetMaxLength(30);
    TxtKodeCus.SetMaxLength(10);
    for (forms::TextBox* text : {&TxtNamaCus, &TxtAlamat1, &TxtAlamat2, &TxtAlamat3}) text->SetMaxLength(50);
    TxtKodeCus.SetToolTip("F5, or Enter on an empty code, lists the customers");

    TypesCapitals({&TxtNoInvoice, &txtCusPO, &TxtKodeCus, &line_.txtKodeBrg});
    MovesBackAlong({&TxtNoInvoice, &TxtTglInvoice, &txtCusPO, &TxtJTP, &TxtPPN, &TxtKodeCus, &TxtNamaCus,
                    &TxtAlamat1, &TxtAlamat2, &TxtAlamat3});
    MovesBackAlong({&line_.txtKodeBrg, &line_.TxtDiskripsi, &line_.txtQty, &line_.TxtSatuan, &line_.txtHarga,
                    &line_.TxtDis, &line_.bttnAddLine});

    TxtNoInvoice.onChange = [this] { NumberTyped(); };
    TxtNoInvoice.onLeave = [this] { NumberLeft(); };
    TxtJTP.onLeave = [this] { DueDateLeft(); };
    TxtPPN.onLeave = [this] { TaxLeft(); };
    TxtKodeCus.onLeave = [this] { CustomerLeft(); };
    TxtNamaCus.onLeave = [this] { NameLeft(); };

    line_.txtKodeBrg.onChange = [this] { CodeTyped(); };
    line_.txtKodeBrg.onLeave = [this] { CodeLeft(); };
    line_.txtQty.onChange = [this] { QuantityTyped(); };
    line_.txtHarga.onChange = [this] { PriceTyped(); };
    line_.TxtDis.onChange = [this] { DiscountTyped(); };
    line_.TxtDis.onLeave = [this] { DiscountLeft(); };
    line_.bttnAddLine.onClick = [this] { AddLine(); };
    line_.BatalLine.onClick = [this] { CancelLine(); };
    bttnSearch.onClick = [this] { ListProducts(); };

    OrderGrid.onDoubleClick = [this] { TakeLineBack(); };
    bttnBayar.onClick = [this] { OpenReceipt(); };
    frmCari.onExecute = [this] { frmCari.Execute(Data(), services_); };
    frmCari.onTake = [this] { TakeFound(); };
}

void Invoice::Load() {
    DocumentScreen::Load();
    productTypes_.Open("SELECT * FROM JenisProduk  Order By KodeJenisProduk", Data());
    ledger_.Open("SELECT * FROM Persediaan ", Data());
    ledgerOfSales_.Open("SELECT * FROM PersediaanJual ", Data());
    ClearInvoice();
    line_.bttnAddLine.SetVisible(false);
}

void Invoice::Unload() {
    for (ado::Recordset* kept : {&productTypes_, &ledger_, &ledgerOfSales_})
        if (kept->IsOpen()) kept->Close();
    DocumentScreen::Unload();
}

// Wanted: another size of the screen brings other headings.
void Invoice::Resized() {
    OrderGrid.WriteHeadings({"ID", "DISCRIPTION", "QTY", "UNIT", "PRICE", "BRUTO", "DIS", "TOTAL", "QTY @"});
}

void Invoice::PreviewKeyDown(forms::Key& key) {
    using forms::KeyCode;
    DocumentScreen::PreviewKeyDown(key);
    forms::Control* const at = Focused();
    if (key.handled || !at || Browsing()) return;
    // The Enter that ends a code whose last character has already moved on to the quantity stays there.
    const bool endsTheCode = codeHit_ && at == &line_.txtQty && key.Is(KeyCode::Enter);
    codeHit_ = false;
    const auto act = [&](auto routine) {
        key.handled = true;
        (this->*routine)();
    };
    if (endsTheCode)
        key.handled = true;
    else if (at == &OrderGrid && key.Is(KeyCode::Enter))
        act(&Invoice::TakeLineBack);
    else if (at == &OrderGrid && key.Is(KeyCode::Delete))
        act(&Invoice::BlankRow);
    else if (at->Container() == &line_.FrameIsiBarang && key.Is(KeyCode::Escape))
        act(&Invoice::CancelLine);
    else if (AsksForList(key, TxtKodeCus))
        act(&Invoice::ListCustomers);
    else if (AsksForList(key, line_.txtKodeBrg))
        act(&Invoice::ListProducts);
}

// ---- The buttons ----

void Invoice::StartNew() {
    SetMode(EntryMode::New);
    ShowEntryFrame();
    ClearInvoice();
    unknownCustomer_.reset();
    line_.bttnAddLine.SetCaption("&Add");
    line_.bttnAddLine.SetVisible(true);
    sums_ = {};
    TxtNoInvoice.SetText(data::NextNumber(services_, Document::Invoice));
    SetFocus(TxtNoInvoice);
}

void Invoice::StartDelete() {
    SetMode(EntryMode::Deleting);
    ShowEntryFrame();
    OrderGrid.ClearGrid();
    bttnSave.SetCaption("&Delete");
    SetFocus(TxtNoInvoice);
}

void Invoice::CancelEntry() {
    SetMode(EntryMode::Browsing);
    bttnSave.SetCaption("&Save");
    line_.bttnAddLine.SetVisible(false);
    line_.FrameIsiBarang.SetVisible(false);
    sums_.SumTotal = sums_.SumPPN = sums_.SumNetto = 0;
    // A new invoice whose number has no row stays on the screen until the next action.
    LoadInvoice(TxtNoInvoice.Text());
    ShowBrowseFrame();
}

bool Invoice::TestsPassed() {
    // Wanted: the number and the customer are asked for being unset, which a text never is. A blank number
    // is met as its field is left, a blank customer by nothing. The date of a date picker is one always.
    if (Trim(TxtNoInvoice.Text()).empty()) return false;
    // The customer's code has just called the focus back: it is unknown and has to be looked at first.
    if (Focused() == &TxtKodeCus) return false;
    if (IsDate(TxtJTP.Text(), services_.regional)) return true;
    Say("Format of date not valid " + std::string(CrLf) + "Using format : " + Shown(Today()));
    return false;
}

void Invoice::EntryEnded() { line_.bttnAddLine.SetVisible(false); }

void Invoice::OpenReceipt() {
    if (!Sess().RightTambah || !(sums_.SumBayar < sums_.SumTotal)) return;
    bttnBayar.SetEnabled(false);
    Desk().ShowModal(std::make_unique<Bayar>(services_, Trim(TxtNoInvoice.Text())), [this] {
        bttnBayar.SetEnabled(true);
        if (bttnBayar.CanFocus()) SetFocus(bttnBayar);
    });
}

// ---- The header: each field goes on to the one after it ----

void Invoice::NumberTyped() {
    ado::Recordset invoice;
    if (Found(invoice, "Select  * From Invoice Where NoInvoice = '" + TxtNoInvoice.Text() + "'"))
        LoadInvoice(TxtNoInvoice.Text());
}

void Invoice::NumberLeft() {
    if (Browsing()) return;
    const std::string number = TxtNoInvoice.Text();
    if (Trim(number).empty()) {
        Say("Invoice number must not blank ...");
        SetFocus(TxtNoInvoice);
        return;
    }
    ado::Recordset invoice;
    const bool found = Found(invoice, "Select  * From Invoice Where NoInvoice = '" + number + "'");
    const bool isNew = Mode() == EntryMode::New;
    if (found) {
        LoadInvoice(number);
        if (!isNew) return;
        Say("Invoice with this number is found ...");
        CancelEntry();
    } else if (isNew) {
        bttnSave.SetEnabled(true);
    } else {
        Say("Invoice with this number is not found ...");
        bttnSave.SetCaption("&Save");
        CancelEntry();
    }
}

void Invoice::DueDateLeft() {
    if (Browsing()) return;
    if (Trim(TxtJTP.Text()).empty())
        Say("Due date is not valid...");
    else if (!IsDate(TxtJTP.Text(), services_.regional))
        Say("Date format is not valid" + std::string(CrLf) + "Example : " + Shown(Today()));
    else
        return;
    SetFocus(TxtJTP);
}

void Invoice::TaxLeft() {
    if (!Browsing()) RecalcFromGrid();
}

void Invoice::CustomerLeft() {
    if (Browsing() || GridCari.Visible()) return;
    const std::string code = Trim(TxtKodeCus.Text());
    // A code that stays as it is after it was called back to once is meant: a customer to be.
    if (unknownCustomer_ == code) return;
    ClearCustomer();
    ado::Recordset customer;
    if (!Found(customer, "Select * from Customer Where KodeCus='" + code + "'")) {
        unknownCustomer_ = code;
        if (bttnSave.Enabled()) SetFocus(TxtKodeCus);
        return;
    }
    unknownCustomer_.reset();
    ShowCustomer(customer);
    // The first line opens as soon as it is known who buys.
    if (Mode() == EntryMode::New && OrderGrid.LastRow() == 1 && !line_.IsShown()) {
        OpenEmptyLine();
        if (MovingOn()) SetFocus(line_.txtKodeBrg);
    }
}

void Invoice::ShowCustomer(ado::Recordset& customer) {
    TxtAlamat1.SetText(TextOf(customer["Alamat_1"]));
    TxtAlamat2.SetText(TextOf(customer["Alamat_2"]));
    TxtAlamat3.SetText(TextOf(customer["Alamat_3"]));
    TxtNamaCus.SetText(TextOf(customer["NamaCus"]));
    // Wanted: the customer's discounts are not read, they reach no line.
    const int days = static_cast<int>(Number(customer["nJTP"].Value()));
    TxtJTP.SetText(Shown(AddDays(TxtTglInvoice.Date(), days)));
}

void Invoice::NameLeft() {
    if (Browsing() || GridCari.Visible() || !Trim(TxtKodeCus.Text()).empty()) return;
    const std::string name = Trim(TxtNamaCus.Text());
    // A blank name too asks who it is, when the person goes on by the keyboard.
    if (name.empty()) {
        if (MovingOn()) ListCustomers();
        return;
    }
    ado::Recordset customer;
    Found(customer, "Select * from Customer Where NamaCus='" + name + "'");
    if (customer.IsOpen() && customer.RecordCount() == 1) {
        TxtKodeCus.SetText(TextOf(customer["KodeCus"]));
        CustomerLeft();
        return;
    }
    constexpr int CodeWidth = 15;
    ado::RowList alike;
    Resume([&] {
        alike = ReadList(services_, "Select * from Customer Where NamaCus Like '%" + name + "%'", Data());
    });
    if (alike.Count() == 0) return;
    const auto line = [this](const std::vector<Value>& row) {
        return PadRight(TextOf(row[0]), CodeWidth) + '\t' + TextOf(row[2]);
    };
    GridCari.Open(alike, line, TxtKodeCus, [this](const std::string& code) {
        TxtKodeCus.SetText(code);
        CustomerLeft();
    });
}

void Invoice::ClearCustomer() {
    for (forms::TextBox* text : {&TxtNamaCus, &TxtAlamat1, &TxtAlamat2, &TxtAlamat3}) text->SetText("");
}

void Invoice::ClearInvoice() {
    TxtTglInvoice.SetDate(Today());
    TxtJTP.SetText(Shown(Today()));
    txtCusPO.SetText("");
    TxtKodeCus.SetText("");
    ClearCustomer();
    TxtPPN.SetText("0");
    TxtSaldo.SetText("0");
    boxes_.Clear();
    line_.Check2.SetChecked(false);
    line_.ClearLine();
    line_.FrameIsiBarang.SetVisible(false);
    sums_ = {};
    OrderGrid.ClearGrid();
}

} // namespace varnik
