#include "cashbook/OtherReceive.h"

namespace varnik {

namespace {

constexpr cashbook::CashTexts Texts{
    .document = Document::OtherReceive,
    .payee = "Received From",
    .table = "BKM ",
    .number = "NoBKM",
    .accounts = "Select RekID, NamaBank,NoRek,NoRek ,NamaPemilik From QryDaftarKasBank Order By RekID",
    .numberStands = "The ID already exist",
    .unknown = "Unable to find record...",
    .unknownNow = "Unable to find record ...",
    .noAccount = "Account cash or bank should not be empty ...",
    .strangeAccount = "Account Cash or bank not registered ...",
    .noCheque = "Number cheque should not be empty...",
};

constexpr document::SearchChoice Choices[] = {
    {"Receipt ID", " Where noBKM Like '%", "%' Order By TglBKM, NoBKM "},
    {"Receipt Date", " Where TglBKM = datevalue ('", "') Order By TglBKM, NoBKM "},
    {"Cash Or Bank", " Where NamaBank Like  '%", "%' Order By TglBKM, NoBKM "},
    {"Memo", " Where Keterangan Like  '%", "%' Order By TglBKM, NoBKM "},
};

document::SearchLayout Search() {
    using forms::Align;
    return {.select = " SELECT NoBKM, TglBKM, Keterangan,  Jumlah  ,RekID,  NamaBank,  NoRek,  Penyetor From "
                      "QryBKM ",
            .choices = Choices,
            .columns = {{"Receipt ID", Align::Left, 14},
                        {"Date", Align::Left, 11},
                        {"Memo", Align::Left, 34},
                        {"Amount", Align::Right, 14},
                        {"Account", Align::Left, 10},
                        {"Cash Or Bank", Align::Left, 20},
                        {"Account No", Align::Left, 16},
                        {"Received From", Align::Left, 24}},
            .mask = "#,##0.#0"};
}

} // namespace

OtherReceive::OtherReceive(Services& services)
    : CashVoucher(services, "OtherReceive", "Other Receipts - Varnik", Texts),
      TxtJumlah(*this, "TxtJumlah", "Amount"),
      frmCari(*this, Search()) {
    cashbook::TypesAmount(TxtJumlah);
    TxtJumlah.onLeave = [this] { TxtJumlah.SetText(Masked(Number(TxtJumlah), "#,##0.#0")); };
    MovesBack({&TxtJumlah});
    Serve(frmCari);
}

void OtherReceive::ClearReceipt() {
    ClearHead();
    TxtJumlah.SetText("0");
}

bool OtherReceive::TestsPassed() {
    return Passes(Number(TxtJumlah) > 0, "Amount equal to zero", TxtJumlah) && MethodGiven() && MeansStand();
}

void OtherReceive::PostReceipt() {
    const document::Hourglass hourglass(Desk());
    const double Jumlah = Number(TxtJumlah);
    const std::string RekID = AccountCode();
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        // Wanted: the balance moves by the amount rounded to a whole number, the receipt keeps its fraction.
        step.Step([&] {
            Data().Execute("Update Bank Set SaldoAkhir = SaldoAkhir + " + Masked(Jumlah, "#0") +
                           " Where RekID ='" + RekID + "'");
        });
        step.AddRow(vouchers_, {{"TglBKM", head_.txtTglJurnal.Date()},
                                {"NoBKM", head_.txtNoBukti.Text()},
                                {"CaraBayar", head_.TxtCaraBayar.Text()},
                                {"Keterangan", head_.TxtMemo.Text()},
                                {"Penyetor", head_.TxtNamaPenerima.Text()},
                                {"RekID", RekID},
                                {"NoCek", TxtNoCek.Text()},
                                {"Jumlah", Jumlah},
                                {"Terbilang", WordsOf(Jumlah)},
                                {"TglSetor", head_.txtTglJurnal.Date()},
                                {"TglJtp", TxtTglJTP.Date()},
                                {"TglClear", TxtTglJTP.Date()},
                                {"Setor", false},
                                {"Clear", false}});
    });
}

void OtherReceive::Reverse() {
    DeleteReceipt();
    ClearReceipt();
}

void OtherReceive::DeleteReceipt() {
    const std::string number = head_.txtNoBukti.Text();
    if (Trim(number).empty()) return Say("Enter receipt id for deleting");
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset receipt;
        bool found = false;
        step.Step([&] {
            receipt.Open("Select * From BKM Where  NoBKM ='" + number + "'", Data());
            found = Carries(receipt, "NoBKM", number);
        });
        if (!found) return Say("Unable to find record ...");
        // Wanted: from a thousand on the amount carries a group separator, which the statement cannot hold
        // where that is a comma; and no blank stands before Where.
        step.Step([&] {
            Data().Execute("Update Bank Set SaldoAkhir = SaldoAkhir - " +
                           MaskedInSql(NullToNumber(receipt["Jumlah"], services_.regional)) +
                           "Where RekID ='" + TextOf(receipt["RekID"]) + "'");
        });
        step.Step([&] { receipt.Delete(); });
    });
}

void OtherReceive::LoadReceipt(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset receipt;
        step.Step([&] {
            receipt.Open("SELECT NoBKM, TglBKM,  CaraBayar, Keterangan, RekID, NoCek, Jumlah, Penyetor, "
                         "Terbilang, TglJTP,  NamaBank From QryBKM Where NoBKM ='" +
                             number + "'",
                         Data(), ado::CursorType::Static);
        });
        if (!receipt.IsOpen() || receipt.Empty()) return;
        ClearReceipt();
        ShowHead(step, receipt, "TglBKM", "Penyetor");
        step.Step([&] {
            TxtJumlah.SetText(Masked(NullToNumber(receipt["Jumlah"], services_.regional), "#,##0.#0"));
        });
    });
}

void OtherReceive::Print() {
    std::string number = head_.txtNoBukti.Text();
    if (Trim(number).empty()) Resume([&] { number = TextOf(vouchers_["NoBKM"]); });
    ReportRequest request = ReportOf("\\BKM2.rpt");
    request.Connect = Sess().ConnectionString;
    request.SQLQuery = "SELECT NoBKM, TglBKM, CaraBayar, Keterangan,RekID,NoCek,Jumlah,Penyetor,NamaBank,"
                       "NoRek From  qryBKM Where NoBKM ='" +
                       number + "'";
    request.SetTitles(0, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2, Sess().CompanyLine3);
    request.WindowState = 0; // alone among all prints
    Desk().LaunchReport(request);
}

} // namespace varnik
