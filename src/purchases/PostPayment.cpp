// A payment into the books, back from them, and on the screen. The books move by the amount of a line in
// whole units of money while voucher and line keep the decimals; the way back gives the decimals too, and
// leaves what is paid on the purchase. Both are wanted.

#include "purchases/BayarFaktur.h"

namespace varnik {

using document::StandOn;

namespace {

// What the columns of these texts can hold: a long memo must not stop a payment halfway.
constexpr int MemoLength = 100, WordsLength = 100;

struct NamedValue {
    const char* column;
    Value value;
};

// Adds a row. One that the table refuses leaves nothing behind.
void AddRow(ado::Recordset& rows, const std::vector<NamedValue>& values) {
    rows.AddNew();
    try {
        for (const NamedValue& each : values) rows[each.column] = each.value;
        rows.Update();
    } catch (...) {
        rows.CancelUpdate();
        throw;
    }
}

} // namespace

void BayarFaktur::PostPayment() {
    if (!StandOnAccount()) return Say("Account with this code is not found ...");
    const document::Hourglass hourglass(Desk());
    const double total = lines_.Sum();
    AddRow(vouchers_, {{"TglBKK", head_.txtTglJurnal.Date()},
                       {"NoBKK", head_.txtNoBukti.Text()},
                       {"CaraBayar", head_.TxtCaraBayar.Text()},
                       {"Keterangan", Left(head_.TxtMemo.Text(), MemoLength)},
                       {"Penerima", head_.TxtNamaPenerima.Text()},
                       {"RekID", AccountCode()},
                       {"NoCek", cheque_.TxtNoCek.Text()},
                       {"Jumlah", total},
                       {"Terbilang", Left(Trim(AmountInWords(Trim(Masked(total, "#0")))), WordsLength)},
                       {"TglJtp", cheque_.TxtTglJTP.Date()},
                       {"JumlahBiaya", total}});
    for (int row = 1; row < lines_.OrderGrid.Rows(); ++row)
        if (lines_.IsPayment(row)) PostLine(row);
}

void BayarFaktur::PostLine(int row) {
    const std::string purchase = lines_.OrderGrid.Cell(row, document::PaymentLines::Number),
                      supplier = lines_.OrderGrid.Cell(row, document::PaymentLines::Code);
    const double paid = lines_.AmountOf(row);
    AddRow(payments_, {{"NoFaktur", purchase},
                       {"TglBKK", head_.txtTglJurnal.Date()},
                       {"NoBKK", head_.txtNoBukti.Text()},
                       {"KodeSup", supplier},
                       {"CaraBayar", head_.TxtCaraBayar.Text()},
                       {"Memo", Left(head_.TxtMemo.Text(), MemoLength)},
                       {"Jumlah", paid}});
    const std::string amount = Masked(paid, "#0");
    Data().Execute("UPDATE Faktur Set Saldo =Saldo - " + amount + ",Bayar = Bayar +  " + amount +
                   " Where NoFaktur='" + purchase + "'");
    Data().Execute("UPDATE Supplier Set Saldoakhir = Saldoakhir - " + amount + " Where KodeSup ='" +
                   supplier + "'");
    Data().Execute("UPDATE BANK Set Saldoakhir = Saldoakhir - " + amount + " Where RekID  ='" +
                   AccountCode() + "'");
}

void BayarFaktur::ReversePayment() {
    const std::string number = Trim(head_.txtNoBukti.Text());
    if (number.empty()) return Say("Receipts with this number not found  ...");
    if (!StandOn(vouchers_, "NoBKK='" + number + "'")) return;
    const document::Hourglass hourglass(Desk());
    const std::string account = TextOf(vouchers_["RekID"]);
    vouchers_.Delete();
    for (payments_.Filter("NoBKK ='" + number + "'"); !payments_.Eof(); payments_.MoveNext()) {
        ReverseLine(account);
        payments_.Delete();
    }
    payments_.Filter("");
    ClearPayment();
}

void BayarFaktur::ReverseLine(const std::string& account) {
    const std::string amount = SqlNumber(NullToNumber(payments_["Jumlah"], services_.regional));
    Data().Execute("UPDATE Faktur Set Saldo = Saldo +  " + amount + " Where NoFaktur ='" +
                   TextOf(payments_["NoFaktur"]) + "'");
    Data().Execute("UPDATE Bank  Set SaldoAkhir = SaldoAkhir +  " + amount + " Where RekID  ='" + account +
                   "'");
    Data().Execute("UPDATE Supplier Set SaldoAkhir = SaldoAkhir +  " + amount + " Where KodeSup ='" +
                   TextOf(payments_["KodeSup"]) + "'");
}

// Each line goes through the entry line, as it was entered. Wanted: so the memo gains the numbers of the
// purchases once more with every load.
void BayarFaktur::LoadPayment(const std::string& number) {
    ClearPayment();
    ado::Recordset rows("Select NoBKK,TglBKK,CaraBayar,Keterangan,RekID,NamaBank, "
                        "NoCek,TglJTP,NoFaktur,Jumlah,KodeSup,NamaSup,Penerima From QrySupplierReceive Where "
                        "noBKK = '" +
                            number + "' Order By NoFaktur",
                        Data(), ado::CursorType::Static);
    if (rows.Empty()) return;
    const auto text = [&](const char* column) { return TextOf(rows[column]); };
    head_.txtNoBukti.SetText(text("NoBKK"));
    head_.txtTglJurnal.SetDate(rows["TglBKK"].Value().Date());
    head_.TxtCaraBayar.SetText(text("CaraBayar"));
    head_.TxtMemo.SetText(text("Keterangan"));
    head_.TxtRekening.SetText(text("RekID"));
    head_.TxtNamaPenerima.SetText(text("Penerima"));
    MethodLeft();
    cheque_.TxtNamaBank.SetText(text("NamaBank"));
    cheque_.TxtNoCek.SetText(text("NoCek"));
    if (rows["TglJTP"].Value().IsDate()) cheque_.TxtTglJTP.SetDate(rows["TglJTP"].Value().Date());
    for (; !rows.Eof(); rows.MoveNext()) {
        lines_.TxtNumber.SetText(text("NoFaktur"));
        lines_.TxtJumlah.SetText(Masked(NullToNumber(rows["Jumlah"], services_.regional), "#,##0.#0"));
        lines_.TxtCode.SetText(text("KodeSup"));
        lines_.TxtPartner.SetText(text("NamaSup"));
        lines_.bttnAddLine.SetCaption("&Add");
        lines_.Add(head_.TxtMemo);
    }
}

} // namespace varnik
