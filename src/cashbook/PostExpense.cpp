// A payment into the books, out of them again, and back onto the screen. Nothing binds the steps together:
// what was written when the user aborts stays.

#include "cashbook/OtherPayment.h"

namespace varnik {

using cashbook::CostLines;

void OtherPayment::PostPayment() {
    const document::Hourglass hourglass(Desk());
    const double JumBayar = lines_.JumBayar();
    const std::string RekID = AccountCode();
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        bool found = false;
        step.Step([&] { found = StandOnAccount(); });
        if (!found) return Say("Account cash or bank not found ...");
        step.PutRow(accounts_,
                    {{"SaldoAkhir",
                      [&] { return NullToNumber(accounts_["SaldoAkhir"], services_.regional) - JumBayar; }}});
        for (int row = 1; row < lines_.OrderGrid.Rows(); ++row) {
            if (lines_.AmountOf(row) <= 0) continue;
            step.AddRow(vouchers_, {{"TglBKK", head_.txtTglJurnal.Date()},
                                    {"NoBKK", head_.txtNoBukti.Text()},
                                    {"CaraBayar", head_.TxtCaraBayar.Text()},
                                    {"Keterangan", head_.TxtMemo.Text()},
                                    {"Penerima", head_.TxtNamaPenerima.Text()},
                                    {"RekID", RekID},
                                    {"NoCek", TxtNoCek.Text()},
                                    {"Jumlah", JumBayar}, // wanted: of the whole payment, in every row
                                    {"KodeBiaya", lines_.OrderGrid.Cell(row, CostLines::Cost)},
                                    {"KodeJenisBiaya", lines_.OrderGrid.Cell(row, CostLines::Type)},
                                    {"JumlahBiaya", lines_.AmountOf(row)},
                                    {"Terbilang", WordsOf(JumBayar)},
                                    {"TglJtp", TxtTglJTP.Date()}});
        }
    });
}

void OtherPayment::ReversePayment() {
    const std::string number = Trim(head_.txtNoBukti.Text());
    if (number.empty()) return Say("Enter  the id of payment,please ... ");
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        bool found = false;
        step.Step([&] { found = document::StandOn(vouchers_, "NoBKK ='" + number + "'"); });
        if (!found) return Say("Item with this code is not found ... ");
        double Jumlah = 0;
        bool known = false;
        step.Step([&] { Jumlah = NullToNumber(vouchers_["Jumlah"], services_.regional); });
        step.Step(
            [&] { known = document::StandOn(accounts_, "RekId ='" + TextOf(vouchers_["RekID"]) + "'"); });
        if (known)
            step.PutRow(accounts_, {{"SaldoAkhir", [&] {
                                         return NullToNumber(accounts_["SaldoAkhir"], services_.regional) +
                                                Jumlah;
                                     }}});
        // Wanted: the row found, and that one only. The other lines of the payment stay, and each further
        // deletion of the number gives the account the whole payment once more.
        step.Step([&] { vouchers_.Delete(); });
    });
}

void OtherPayment::LoadPayment(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset rows;
        step.Step([&] {
            rows.Open("SELECT NoBKK, TglBKK,  CaraBayar, Keterangan, RekID, NoCek, Jumlah, Penerima, "
                      "Terbilang, TglJTP, KodeBiaya, JumlahBiaya,Diskripsi,  NamaBank, NoRek, NamaPemilik, "
                      "KodejenisBiaya From QryBKK Where NoBKK ='" +
                          number + "'",
                      Data(), ado::CursorType::Static);
        });
        if (!rows.IsOpen() || rows.Empty()) return;
        ClearVoucher();
        ShowHead(step, rows, "TglBKK", "Penerima");
        while (!rows.Eof()) {
            step.Step([&] {
                lines_.Append(TextOf(rows["KodeBiaya"]), TextOf(rows["KodejenisBiaya"]),
                              TextOf(rows["Diskripsi"]),
                              NullToNumber(rows["JumlahBiaya"], services_.regional));
            });
            step.Step([&] { rows.MoveNext(); });
        }
    });
}

} // namespace varnik
