#include "purchases/BayarFaktur.h"

#include "data/Numbering.h"

namespace varnik {

using document::EntryMode;

namespace {

constexpr document::PaymentLineTexts LineTexts{.number = {"TxtNoFaktur", "Purchase ID"},
                                               .code = {"TxtKodeSup", "Supplier ID"},
                                               .partner = {"TxtNamaSup", "Supplier Name"},
                                               .headings = {"ID #", "AMOUNT", "CODE", "SUPPLIER NAME"},
                                               .memoStart = "PAYMENT TO ",
                                               .memoNumber = " Po No."};

constexpr document::SearchChoice PurchaseChoices[] = {
    {"Purchase ID", " Where NoFaktur Like '%", "%' And Saldo >0 Order By KodeSup,TglFaktur,NoFaktur"},
    {"Purchase Date", " Where TglFaktur = datevalue ('",
     "') And Saldo >0 Order By KodeSup,TglFaktur,NoFaktur"},
    {"Supplier  Name", " Where NamaSup Like  '%", "%' And Saldo >0 Order By KodeSup,TglFaktur,NoFaktur"},
    {"Supplier ID", " Where KodeSup Like  '%", "%' And Saldo >0 Order By KodeSup,TglFaktur,NoFaktur"},
    {"Balance", " Where Saldo >= ", " Order By KodeSup,TglFaktur,NoFaktur"},
};

document::SearchLayout OpenPurchases() {
    using forms::Align;
    return {.select = "SELECT KodeSup, NamaSup, NoFaktur, TglFaktur, Bruto, Disc, Netto, 0 as PPN, Total, "
                      "Bayar, Saldo FROM QryInvSupplier ",
            .choices = PurchaseChoices,
            .columns = {{"Supp ID", Align::Left, 10},
                        {"Supplier Name", Align::Left, 26},
                        {"Purchases ID", Align::Left, 12},
                        {"Purchases Date", Align::Left, 12},
                        {"Bruto", Align::Right, 11},
                        {"Disc", Align::Right, 9},
                        {"Netto", Align::Right, 11},
                        {"Tax", Align::Right, 8},
                        {"Total", Align::Right, 11},
                        {"Payment", Align::Right, 11},
                        {"Balance", Align::Right, 11}},
            .failsAloud = true};
}

// Wanted: the payment's date is not searched for but the purchase's, in a statement without its closing
// bracket, which fails.
constexpr document::SearchChoice PaymentChoices[] = {
    {"Payment ID", " Where NoBKK Like '%", "%' Order By KodeSup,NoBKK,NoFaktur"},
    {"Payment Date", " Where TglFaktur = datevalue ('", "' Order By KodeSup,NoBKK,NoFaktur"},
    {"Supplier Name", " Where NamaSup Like  '%", "%' Order By KodeSup,NoBKK,NoFaktur"},
    {"Supplier ID", " Where KodeSup Like  '%", "%' Order By KodeSup,NoBKK,NoFaktur"},
    {"Purchases ID", " Where NoFaktur Like '%", "%' Order By KodeSup,NoBKK,NoFaktur"},
};

document::SearchLayout Payments() {
    using forms::Align;
    return {.select = "SELECT KodeSup, NamaSup, NoBKK,TglBKK, NoFaktur, TglFaktur,Jumlah ,RekID,NamaBank, "
                      "NoCek,TglJTP FROM QrySupplierReceive ",
            .choices = PaymentChoices,
            .columns = {{"Supp ID", Align::Left, 10},
                        {"Supplier Name", Align::Left, 26},
                        {"Payment ID", Align::Left, 12},
                        {"Amount Date", Align::Left, 12},
                        {"Purchases ID", Align::Left, 12},
                        {"Purchases Date", Align::Left, 12},
                        {"Tot. Amount", Align::Right, 12},
                        {"Bank ID", Align::Left, 8},
                        {"Bank Account/Cash", Align::Left, 20},
                        {"Cheque Number", Align::Left, 14},
                        {"Due Date", Align::Left, 12}},
            .failsAloud = true};
}

} // namespace

BayarFaktur::BayarFaktur(Services& services)
    : DocumentScreen(services, "BayarFaktur", "Supplier Payments - Varnik"),
      head_(*this, "Paid To"),
      cheque_(*this),
      lines_(*this, LineTexts, services.regional),
      Command1(*this, "Command1", "..."),
      frmCari(*this, OpenPurchases()),
      FrmCari2(*this, Payments(), document::SecondSearch) {
    Command1.SetToolTip("Open purchases");
    Command1.SetTabStop(false);
    head_.TxtRekening.SetToolTip("The account's code is three characters, the first");
    MovesBackAlong({&head_.txtNoBukti, &head_.txtTglJurnal, &head_.TxtCaraBayar, &head_.TxtRekening,
                    &head_.TxtNamaPenerima, &head_.TxtMemo, &cheque_.TxtNamaBank, &cheque_.TxtNoCek,
                    &cheque_.TxtPemilik, &cheque_.TxtTglJTP, &lines_.TxtNumber, &lines_.TxtJumlah,
                    &lines_.TxtCode, &lines_.TxtPartner, &lines_.bttnAddLine});

    head_.txtNoBukti.onLeave = [this] { NumberLeft(); };
    head_.TxtCaraBayar.onLeave = [this] {
        if (Mode() == EntryMode::New) MethodLeft();
    };
    head_.TxtRekening.onChange = [this] { AccountTyped(); };
    head_.TxtRekening.onLeave = [this] { AccountLeft(); };
    lines_.TxtNumber.onLeave = [this] { PurchaseLeft(); };
    lines_.TxtCode.onLeave = [this] { SupplierLeft(); };
    lines_.bttnAddLine.onClick = [this] {
        if (lines_.Add(head_.TxtMemo)) SetFocus(lines_.TxtNumber);
    };
    lines_.OrderGrid.onClick = [this] {
        if (!Browsing()) lines_.TakeBack();
    };
    Command1.onClick = [this] { frmCari.Open(); };
    frmCari.onExecute = [this] { frmCari.Execute(Data(), services_); };
    frmCari.onTake = [this] { TakePurchase(); };
    FrmCari2.onExecute = [this] { FrmCari2.Execute(Data(), services_); };
    FrmCari2.onTake = [this] { TakePayment(); };
}

void BayarFaktur::Load() {
    DocumentScreen::Load();
    purchases_.Open("SELECT * FROM Faktur", Data());
    payments_.Open("SELECT * FROM FakturBayar", Data());
    accounts_.Open("SELECT * FROM Bank Order By RekID", Data());
    suppliers_.Open("SELECT * FROM Supplier", Data());
    vouchers_.Open("SELECT * FROM BKK", Data());
    head_.ListMethods(Sess());
    head_.ListAccounts(accounts_, [this] { return AccountItem(accounts_); });
    ClearPayment();
}

void BayarFaktur::Unload() {
    for (ado::Recordset* kept : {&purchases_, &payments_, &accounts_, &suppliers_, &vouchers_})
        if (kept->IsOpen()) kept->Close();
    DocumentScreen::Unload();
}

void BayarFaktur::PreviewKeyDown(forms::Key& key) {
    DocumentScreen::PreviewKeyDown(key);
    if (key.handled || Browsing() || Focused() != &lines_.OrderGrid) return;
    // Wanted: a removed line stays in the total until the next one is added.
    if (key.Is(forms::KeyCode::Delete))
        lines_.OrderGrid.RemoveCurrentRow();
    else if (key.Is(forms::KeyCode::Enter)) {
        lines_.TakeBack();
        SetFocus(lines_.TxtNumber);
    } else
        return;
    key.handled = true;
}

// ---- The buttons ----

void BayarFaktur::StartNew() {
    SetMode(EntryMode::New);
    ClearPayment();
    lines_.bttnAddLine.SetEnabled(true);
    ShowEntryFrame();
    head_.txtNoBukti.SetText(data::NextNumber(services_, Document::BayarFaktur));
    SetFocus(head_.txtNoBukti);
}

void BayarFaktur::StartDelete() {
    if (!Ask("Are you sure will delete receipt no " + head_.txtNoBukti.Text())) return;
    ReversePayment();
    ado::SyncWritten();
    ClearPayment();
    bttnSave.SetCaption("&Save");
}

void BayarFaktur::CancelEntry() {
    bttnSave.SetCaption("&Save");
    SetMode(EntryMode::Browsing);
    EntryEnded();
    LoadPayment(head_.txtNoBukti.Text());
    ShowBrowseFrame();
}

void BayarFaktur::EntryEnded() { lines_.bttnAddLine.SetEnabled(false); }

bool BayarFaktur::TestsPassed() {
    const auto refuse = [this](const char* message) {
        Say(message);
        return false;
    };
    if (lines_.Sum() <= 0) return refuse("Amount of payment should  not be zero ...");
    if (Trim(head_.TxtCaraBayar.Text()).empty()) return refuse("Payment type not selected...");
    if (!lines_.AmountsAreNumeric()) return refuse("Enter Sum up payment with numeric value ...");
    if (head_.PaysCash(Sess())) {
        if (Trim(head_.TxtRekening.Text()).empty()) return refuse("The account should not be empty...");
        return StandOnAccount() || refuse("Unable to find record ...");
    }
    const auto blank = [](const forms::TextBox& field) { return Trim(field.Text()).empty(); };
    if (blank(cheque_.TxtNamaBank)) return refuse("The acccount should not be empty ...");
    if (blank(cheque_.TxtNoCek)) return refuse("The number of cheque  should not be empty ...");
    if (blank(cheque_.TxtPemilik)) return refuse("The ownner of bank[s] should not be empty ...");
    return true;
}

void BayarFaktur::TakePurchase() {
    constexpr int CodeColumn = 0, NumberColumn = 2;
    const std::string number = frmCari.Chosen(NumberColumn);
    if (!number.empty()) {
        lines_.TxtCode.SetText(frmCari.Chosen(CodeColumn));
        lines_.TxtNumber.SetText(number);
        SupplierLeft();
        PurchaseLeft();
    }
    frmCari.Close();
}

void BayarFaktur::TakePayment() {
    constexpr int NumberColumn = 2;
    const std::string number = FrmCari2.Chosen(NumberColumn);
    if (!number.empty()) {
        head_.txtNoBukti.SetText(number);
        NumberLeft();
    }
    FrmCari2.Close();
}

void BayarFaktur::Print() {
    const document::Hourglass hourglass(Desk());
    ReportRequest request = ReportOf("\\BKK.rpt");
    request.Connect = Sess().ConnectionString;
    request.SQLQuery =
        "SELECT    QrySupplierReceive.KodeSup , QrySupplierReceive.NoBKK, QrySupplierReceive.TglBKK, "
        "QrySupplierReceive.RekID, QrySupplierReceive.NamaBank, QrySupplierReceive.Penerima, "
        "QrySupplierReceive.Jumlah, QrySupplierReceive.CaraBayar, QrySupplierReceive.Keterangan, "
        "QrySupplierReceive.NoCek, QrySupplierReceive.NamaSup, QrySupplierReceive.NoFakSup "
        " From    QrySupplierReceive QrySupplierReceive  Where NoBKK ='" +
        head_.txtNoBukti.Text() + "'";
    Desk().LaunchReport(request);
}

} // namespace varnik
