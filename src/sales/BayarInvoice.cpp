#include "sales/BayarInvoice.h"

#include "data/Numbering.h"

namespace varnik {

using document::EntryMode;

namespace {

constexpr document::PaymentLineTexts Lines{
    .number = {"TxtNoInvoice", "Invoice ID"},
    .code = {"TxtKodeCus", "Customer ID"},
    .partner = {"TxtNamaCus", "Customer Name"},
    .headings = {"INV #", "AMOUNT", "CODE", "CUSTOMER NAME"},
    .memoStart = "Receipt From ",
    .memoNumber = " Inv No.",
    .updateKeepsNumber = true,
};

constexpr document::SearchChoice OpenInvoices[] = {
    {"INVOICE NO", " Where NoInvoice Like '%", "%' And Saldo >0 Order By KodeCus,TglInvoice,NoInvoice"},
    {"INVOICE DATE", " Where TglInvoice = datevalue ('",
     "') And Saldo >0 Order By KodeCus,TglInvoice,NoInvoice"},
    {"CUSTOMER NAME", " Where NamaCus Like  '%", "%' And Saldo >0 Order By KodeCus,TglInvoice,NoInvoice"},
    {"CUSTOMER CODE", " Where KodeCus Like  '%", "%' And Saldo >0 Order By KodeCus,TglInvoice,NoInvoice"},
    {"BALANCE", " Where Saldo >= ", " Order By KodeCus,TglInvoice,NoInvoice"},
};

document::SearchLayout InvoiceSearch() {
    using forms::Align;
    return {"SELECT KodeCus, NamaCus, NoInvoice, TglInvoice, Bruto, Disc, Netto, PPN, Total, Bayar, Saldo "
            "FROM QryInvCustomer ",
            OpenInvoices,
            {{"Cus ID", Align::Left, 12},
             {"Name Of Customer", Align::Left, 26},
             {"Invoice ID", Align::Left, 14},
             {"Inv Date", Align::Left, 12},
             {"Bruto", Align::Right, 11},
             {"Disc", Align::Right, 9},
             {"Netto", Align::Right, 11},
             {"Tax", Align::Right, 9},
             {"Amount", Align::Right, 11},
             {"Payment", Align::Right, 11},
             {"Balance", Align::Right, 11}}};
}

// Wanted: the date of payment looks at the date of the invoice.
constexpr document::SearchChoice Receipts[] = {
    {"RECEIPT NO", " Where NoBKM Like '%", "%' Order By KodeCus,NoBKM,NoInvoice"},
    {"PAYMENT DATE", " Where TglInvoice = datevalue('", "') Order By KodeCus,NoBKM,NoInvoice"},
    {"CUSTOMER NAME", " Where NamaCus Like  '%", "%' Order By KodeCus,NoBKM,NoInvoice"},
    {"CUSTOMER CODE", " Where KodeCus Like  '%", "%' Order By KodeCus,NoBKM,NoInvoice"},
    {"INVOICE NO", " Where NoInvoice Like '%", "%' Order By KodeCus,NoBKM,NoInvoice"},
    {"INVOICE DATE", " Where TglInvoice = datevalue ('", "') Order By KodeCus,NoBKM,NoInvoice"},
};

document::SearchLayout ReceiptSearch() {
    using forms::Align;
    return {.select = "SELECT KodeCus, NamaCus, NoBKM,TglBKM, NoInvoice, TglInvoice,Jumlah ,RekID,NamaBank, "
                      "NoCek,TglJTP FROM QryCustomerReceive ",
            .choices = Receipts,
            .columns = {{"Cus ID", Align::Left, 12},
                        {"Name Of Customer", Align::Left, 26},
                        {"Receipt ID", Align::Left, 14},
                        {"Paid On", Align::Left, 12},
                        {"Invoice ID", Align::Left, 14},
                        {"Inv Date", Align::Left, 12},
                        {"Amount", Align::Right, 11},
                        {"Account", Align::Left, 8},
                        {"Cash or Bank", Align::Left, 18},
                        {"Cheque No", Align::Left, 12},
                        {"Due Date", Align::Left, 12}}};
}

} // namespace

BayarInvoice::BayarInvoice(Services& services)
    : DocumentScreen(services, "BayarInvoice", "Customer Receipts - Varnik"),
      head_(*this, "Received By"),
      cheque_(*this),
      lines_(*this, Lines, services.regional),
      Command1(*this, "Command1", "..."),
      frmCari(*this, InvoiceSearch()),
      FrmCari2(*this, ReceiptSearch(), document::SecondSearch) {
    head_.TxtRekening.SetToolTip("The account's code is one character, the first");
    Command1.SetToolTip("List of open invoices");
    Command1.SetTabStop(false);
    lines_.TxtNumber.SetToolTip("F5, or Enter on an empty number, lists the open invoices");
    for (forms::TextBox* shown : {&lines_.TxtCode, &lines_.TxtPartner}) shown->SetTabStop(false);

    MovesBackAlong({&head_.txtNoBukti, &head_.txtTglJurnal, &head_.TxtCaraBayar, &head_.TxtRekening,
                    &head_.TxtNamaPenerima, &head_.TxtMemo, &cheque_.TxtNamaBank, &cheque_.TxtNoCek,
                    &cheque_.TxtPemilik, &cheque_.TxtTglJTP, &lines_.TxtNumber, &lines_.TxtJumlah,
                    &lines_.bttnAddLine});

    head_.txtNoBukti.onLeave = [this] { NumberLeft(); };
    head_.TxtCaraBayar.onLeave = [this] { MethodLeft(); };
    lines_.TxtNumber.onLeave = [this] { InvoiceLeft(); };
    lines_.bttnAddLine.onClick = [this] {
        if (!Browsing() && lines_.Add(head_.TxtMemo)) SetFocus(lines_.TxtNumber);
    };
    lines_.OrderGrid.onRowChange = [this] {
        if (!Browsing()) lines_.TakeBack();
    };
    Command1.onClick = [this] { frmCari.Open(); };
    frmCari.onExecute = [this] { frmCari.Execute(Data(), services_); };
    frmCari.onTake = [this] { TakeInvoice(); };
    FrmCari2.onExecute = [this] { FrmCari2.Execute(Data(), services_); };
    FrmCari2.onTake = [this] { TakeReceipt(); };
}

void BayarInvoice::Load() {
    DocumentScreen::Load();
    invoices_.Open("SELECT * FROM Invoice", Data());
    payments_.Open("SELECT * FROM InvoiceBayar", Data());
    accounts_.Open("SELECT * FROM Bank Order By RekID", Data());
    customers_.Open("SELECT * FROM Customer", Data());
    vouchers_.Open("SELECT * FROM BKM", Data());
    head_.ListMethods(Sess());
    head_.ListAccounts(accounts_, [this] { return AccountItem(); });
    ClearReceipt();
    lines_.bttnAddLine.SetEnabled(false);
}

void BayarInvoice::Unload() {
    for (ado::Recordset* kept : {&invoices_, &payments_, &accounts_, &customers_, &vouchers_})
        if (kept->IsOpen()) kept->Close();
    DocumentScreen::Unload();
}

void BayarInvoice::PreviewKeyDown(forms::Key& key) {
    DocumentScreen::PreviewKeyDown(key);
    if (key.handled || Browsing()) return;
    if (AsksForList(key, lines_.TxtNumber)) {
        key.handled = true;
        frmCari.Open();
    } else if (Focused() == &lines_.OrderGrid && key.Is(forms::KeyCode::Enter)) {
        key.handled = true;
        lines_.TakeBack();
        SetFocus(lines_.OrderGrid.IsFilled(lines_.OrderGrid.Row()) ? lines_.TxtJumlah : lines_.TxtNumber);
    }
}

// ---- The buttons ----

void BayarInvoice::StartNew() {
    SetMode(EntryMode::New);
    ShowEntryFrame();
    ClearReceipt();
    lines_.bttnAddLine.SetEnabled(true);
    head_.txtNoBukti.SetText(data::NextNumber(services_, Document::BayarInvoice));
    SetFocus(head_.txtNoBukti);
}

void BayarInvoice::StartDelete() {
    if (!Ask("Are you sure you want delete receipt no " + head_.txtNoBukti.Text())) return;
    const bool gone = DeleteReceipt();
    ado::SyncWritten();
    if (!gone) return;
    ClearReceipt();
    head_.txtNoBukti.SetText("");
}

void BayarInvoice::CancelEntry() {
    SetMode(EntryMode::Browsing);
    bttnSave.SetCaption("&Save");
    lines_.bttnAddLine.SetEnabled(false);
    // A new receipt whose number has no row stays on the screen until the next action.
    LoadReceipt(head_.txtNoBukti.Text());
    ShowBrowseFrame();
}

void BayarInvoice::Print() {
    ReportRequest request = ReportOf("\\BKM2.rpt");
    request.SQLQuery = "SELECT NoBKM, TglBKM, CaraBayar, Keterangan,RekID,NoCek,Jumlah,Penyetor,NamaBank,"
                       "NoRek From  qryBKM Where NoBKM ='" +
                       head_.txtNoBukti.Text() + "'";
    Desk().LaunchReport(request);
}

bool BayarInvoice::TestsPassed() {
    const auto holds = [this](bool good, const char* message) {
        if (!good) Say(message);
        return good;
    };
    // The dates of date pickers are dates always.
    if (!holds(lines_.Sum() > 0, "Amount of payment still zero...") ||
        !holds(!Trim(head_.TxtCaraBayar.Text()).empty(), "Payment type should not be empty ...") ||
        !holds(lines_.AmountsAreNumeric(), "Enter amount with a numeric values ... "))
        return false;
    if (!head_.PaysCash(Sess())) return ChequeTestsPassed();
    bool found = false;
    if (!holds(!Trim(head_.TxtRekening.Text()).empty(), "Cash or bank account should not be empty ..."))
        return false;
    Resume([&] { found = document::StandOn(accounts_, "RekID ='" + AccountCode() + "'"); });
    return holds(found, "Unable to find record ...");
}

bool BayarInvoice::ChequeTestsPassed() {
    const auto filled = [this](const forms::TextBox& field, const char* message) {
        if (!Trim(field.Text()).empty()) return true;
        Say(message);
        return false;
    };
    // The account is looked for while the receipt can still be mended; without it nothing would be posted.
    return filled(cheque_.TxtNamaBank, "bank should not be empty ...") &&
           filled(cheque_.TxtNoCek, "Cheque number should not be empty ......") &&
           filled(cheque_.TxtPemilik, "Ownner account should not be empty ...") && AccountStands();
}

// Wanted: the message ends with a quotation mark.
bool BayarInvoice::AccountStands() {
    bool found = false;
    Resume([&] { found = document::StandOn(accounts_, "RekID ='" + AccountCode() + "'"); });
    if (!found) Say("Unable to find record ...\"");
    return found;
}

// ---- The fields ----

std::string BayarInvoice::AccountItem() {
    return TextOf(accounts_["RekID"]) + " / " + TextOf(accounts_["NamaBank"]) + " - " +
           TextOf(accounts_["NoRek"]);
}

// Wanted: the account is read by one character, so a code of more is never found.
std::string BayarInvoice::AccountCode() const { return Left(Trim(head_.TxtRekening.Text()), 1); }

void BayarInvoice::ClearReceipt() {
    head_.Clear(Today());
    cheque_.Clear(Today());
    lines_.Clear();
}

void BayarInvoice::NumberLeft() {
    const std::string number = Trim(head_.txtNoBukti.Text());
    bool found = false;
    Resume([&] { found = !number.empty() && document::StandOn(vouchers_, "NoBKM ='" + number + "'"); });
    if (!found) return;
    LoadReceipt(number);
    if (Mode() != EntryMode::New) return;
    Say("Receipt with this number already exist ...");
    CancelEntry();
}

// Cash is due on the day it comes.
void BayarInvoice::MethodLeft() {
    if (!Browsing() && head_.PaysCash(Sess())) cheque_.TxtTglJTP.SetDate(head_.txtTglJurnal.Date());
}

void BayarInvoice::InvoiceLeft() {
    const std::string number = Trim(lines_.TxtNumber.Text());
    if (Browsing() || number.empty() || lines_.IsOfCurrentRow(number)) return;
    for (forms::TextBox* text : {&lines_.TxtCode, &lines_.TxtPartner}) text->SetText("");
    lines_.TxtJumlah.SetText("0");
    Resume([&] {
        if (!document::StandOn(invoices_, "NoInvoice='" + number + "'")) return;
        lines_.TxtJumlah.SetText(Masked(NullToNumber(invoices_["Saldo"], services_.regional), "#,##0.#0"));
        lines_.TxtCode.SetText(TextOf(invoices_["KodeCus"]));
        if (document::StandOn(customers_, "KodeCus='" + lines_.TxtCode.Text() + "'"))
            lines_.TxtPartner.SetText(TextOf(customers_["NamaCus"]));
    });
}

// ---- The searches ----

void BayarInvoice::TakeInvoice() {
    constexpr int NumberColumn = 2;
    const std::string number = frmCari.Chosen(NumberColumn);
    frmCari.Close();
    if (number.empty() || Browsing()) return;
    lines_.bttnAddLine.SetCaption("&Add");
    lines_.TxtNumber.SetText(number);
    InvoiceLeft();
    SetFocus(lines_.TxtJumlah);
}

void BayarInvoice::TakeReceipt() {
    constexpr int NumberColumn = 2;
    const std::string number = FrmCari2.Chosen(NumberColumn);
    FrmCari2.Close();
    if (number.empty()) return;
    head_.txtNoBukti.SetText(number);
    LoadReceipt(number);
}

} // namespace varnik
