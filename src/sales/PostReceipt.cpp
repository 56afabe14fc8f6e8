// A receipt into the books, out of them again, and back onto the screen. Nothing binds the steps together:
// what was written when the user aborts stays.

#include "sales/BayarInvoice.h"

namespace varnik {

namespace {

// What the columns can hold.
constexpr int WordsLength = 100, MemoLength = 200, PaymentMemoLength = 100;

} // namespace

void BayarInvoice::PostReceipt() {
    const document::Hourglass hourglass(Desk());
    if (!AccountStands()) return;
    const double sum = lines_.Sum();
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        step.AddRow(vouchers_, {
                                   {"TglBKM", head_.txtTglJurnal.Date()},
                                   {"NoBKM", head_.txtNoBukti.Text()},
                                   {"CaraBayar", head_.TxtCaraBayar.Text()},
                                   {"Keterangan", Left(head_.TxtMemo.Text(), MemoLength)},
                                   {"Penerima", head_.TxtNamaPenerima.Text()},
                                   {"Penyetor", lines_.OrderGrid.Cell(1, document::PaymentLines::Partner)},
                                   {"RekID", AccountCode()},
                                   {"NamaBank", cheque_.TxtNamaBank.Text()},
                                   {"Debitur", cheque_.TxtPemilik.Text()},
                                   {"NoCek", cheque_.TxtNoCek.Text()},
                                   {"Jumlah", sum},
                                   {"Terbilang", Left(Trim(AmountInWords(Masked(sum, "#0"))), WordsLength)},
                                   {"TglSetor", head_.txtTglJurnal.Date()},
                                   {"TglJTP", cheque_.TxtTglJTP.Date()},
                                   {"TglClear", cheque_.TxtTglJTP.Date()},
                                   {"Clear", false},
                                   {"Setor", false},
                               });
        for (int row = 1; row < lines_.OrderGrid.Rows(); ++row)
            if (lines_.IsPayment(row)) PostPayment(step, row);
    });
}

void BayarInvoice::PostPayment(Guard& step, int row) {
    const std::string number = lines_.OrderGrid.Cell(row, document::PaymentLines::Number),
                      code = lines_.OrderGrid.Cell(row, document::PaymentLines::Code);
    step.AddRow(payments_, {{"NoInvoice", number},
                            {"TglBKM", head_.txtTglJurnal.Date()},
                            {"NoBKM", head_.txtNoBukti.Text()},
                            {"KodeCus", code},
                            {"CaraBayar", head_.TxtCaraBayar.Text()},
                            {"Memo", Left(head_.TxtMemo.Text(), PaymentMemoLength)},
                            {"Jumlah", lines_.AmountOf(row)}});
    // Wanted: the balances move by the amount rounded to a whole number, the receipt keeps its fraction. A
    // cheque counts as money at once.
    const std::string amount = Masked(lines_.AmountOf(row), "#0");
    const auto execute = [&](const std::string& sql) { step.Step([&] { Data().Execute(sql); }); };
    execute("UPDATE INVOICE Set Saldo =Saldo - " + amount + ",Bayar = Bayar +  " + amount +
            " Where NoInvoice='" + number + "'");
    execute("UPDATE CUSTOMER Set Saldoakhir = Saldoakhir - " + amount + " Where KodeCus ='" + code + "'");
    execute("UPDATE BANK Set Saldoakhir = Saldoakhir + " + amount + " Where RekID  ='" + AccountCode() + "'");
}

bool BayarInvoice::DeleteReceipt() {
    const std::string number = Trim(head_.txtNoBukti.Text());
    const auto unknown = [this] {
        Say("Unable to find record ...\"");
        return false;
    };
    if (number.empty()) return unknown();
    const document::Hourglass hourglass(Desk());
    bool gone = false;
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        bool found = false, frozen = false;
        std::string account;
        step.Step([&] { found = document::StandOn(vouchers_, "NoBKM='" + number + "'"); });
        if (!found) {
            unknown();
            return;
        }
        // What was paid in or has cleared stays.
        step.Step([&] { frozen = Yes(vouchers_["Setor"]) || Yes(vouchers_["Clear"]); });
        if (frozen) return Say("Unable to delete record ...");
        step.Step([&] { account = TextOf(vouchers_["RekID"]); });
        step.Step([&] {
            vouchers_.Delete();
            gone = true;
        });
        step.Step([&] { vouchers_.Requery(); });
        step.Step([&] { payments_.Requery(); });
        step.Step([&] { payments_.Filter("NoBKM ='" + number + "'"); });
        const auto execute = [&](const std::string& sql) { step.Step([&] { Data().Execute(sql); }); };
        while (!payments_.Eof()) {
            std::string amount = "0", invoice, code;
            step.Step([&] { amount = SqlNumber(NullToNumber(payments_["Jumlah"], services_.regional)); });
            step.Step([&] { invoice = TextOf(payments_["NoInvoice"]); });
            step.Step([&] { code = TextOf(payments_["KodeCus"]); });
            // Wanted: what the invoice has been paid is not lowered, so it can never be deleted again; and
            // the customer goes down a second time instead of back up.
            execute("UPDATE Invoice Set Saldo = Saldo +  " + amount + " Where NoInvoice ='" + invoice + "'");
            execute("UPDATE Bank  Set SaldoAkhir = SaldoAkhir -  " + amount + " Where RekID  ='" + account +
                    "'");
            execute("UPDATE Customer Set SaldoAkhir = SaldoAkhir -  " + amount + " Where KodeCus ='" + code +
                    "'");
            step.Step([&] { payments_.Delete(); });
            step.Step([&] { payments_.MoveNext(); });
        }
    });
    Resume([&] { payments_.Filter(""); });
    return gone;
}

void BayarInvoice::LoadReceipt(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset receipt;
        step.Step([&] {
            receipt.Open(
                "Select NoBKM,TglBKM,CaraBayar,Keterangan,RekID,NamaBank, NoCek,Debitur,TglJTP,NoInvoice,"
                "Jumlah,KodeCus,NamaCus,Penerima From QryCustomerReceive Where noBKM = '" +
                    number + "' Order By NoInvoice",
                Data(), ado::CursorType::Static);
        });
        if (!receipt.IsOpen() || receipt.Empty()) return;
        const auto text = [&](const char* column) { return TextOf(receipt[column]); };
        step.Step([&] { ClearReceipt(); });
        step.Step([&] { head_.txtNoBukti.SetText(text("NoBKM")); });
        step.Step([&] { head_.txtTglJurnal.SetDate(receipt["TglBKM"].Value().Date()); });
        step.Step([&] { head_.TxtCaraBayar.SetText(text("CaraBayar")); });
        step.Step([&] { head_.TxtMemo.SetText(text("Keterangan")); });
        step.Step([&] { head_.TxtNamaPenerima.SetText(text("Penerima")); });
        step.Step([&] {
            const std::string account = text("RekID");
            head_.TxtRekening.SetText(document::StandOn(accounts_, "RekID ='" + account + "'") ? AccountItem()
                                                                                               : account);
        });
        step.Step([&] { cheque_.TxtNamaBank.SetText(text("NamaBank")); });
        step.Step([&] { cheque_.TxtNoCek.SetText(text("NoCek")); });
        step.Step([&] { cheque_.TxtPemilik.SetText(text("Debitur")); });
        step.Step([&] { cheque_.TxtTglJTP.SetDate(receipt["TglJTP"].Value().Date()); });
        // Wanted: the lines are added as if typed, so the memo names each invoice once more.
        while (!receipt.Eof()) {
            step.Step([&] {
                lines_.ClearLine();
                lines_.TxtNumber.SetText(text("NoInvoice"));
                lines_.TxtJumlah.SetText(
                    Masked(NullToNumber(receipt["Jumlah"], services_.regional), "#,##0.#0"));
                lines_.TxtCode.SetText(text("KodeCus"));
                lines_.TxtPartner.SetText(text("NamaCus"));
                lines_.Add(head_.TxtMemo);
            });
            step.Step([&] { receipt.MoveNext(); });
        }
    });
}

} // namespace varnik
