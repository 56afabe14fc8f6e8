// The way back of a posted purchase: line by line the stock, its average cost and the open quantity of the
// ledger are taken off again, the lot goes, and the header last. A failing statement is passed over
// silently. Wanted: nothing asks whether the purchase was paid, returned or sold from, and prices, units and
// the supplier's balance stay as the purchase left them.

#include "purchases/Faktur.h"

namespace varnik {

void Faktur::ReverseFaktur(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    if (Trim(TxtNoFaktur.Text()).empty()) return Say("The Id should not be empty ...");
    Guard guard(Desk(), "");
    guard.SkipFailures();
    guard.Run([&](Guard& step) {
        const std::string here = " Where NoFaktur ='" + Trim(number) + "'";
        ado::Recordset purchase, detail;
        bool found = false;
        step.Step([&] { purchase.Open("Select * from Faktur" + here, Data()); });
        step.Step([&] { found = Carries(purchase, "NoFaktur", number); });
        if (!found) return Say("Purchases id. " + number + " not found...");
        std::string code;
        step.Step([&] { code = TextOf(purchase["KodeSup"]); });
        // Wanted: the stray quote and blank stay, so the statement fails and the balance keeps the purchase.
        step.Step([&] {
            Data().Execute("UPDATE SUPPLIER SET  SaldoAkhir = SaldoAkhir -  " +
                           MaskedInSql(Amount(purchase, "Total")) + "' Where KodeSup = ' " + code + "'");
        });
        const std::string memo = "Purchases (DELETED) Po No. " + Trim(number) + " Sup. " + code + " " +
                                 Trim(supplier_.TxtNamaSup.Text());
        step.Step([&] { detail.Open("Select * from FakturDetail" + here, Data()); });
        while (detail.IsOpen() && !detail.Eof()) {
            ReverseLine(step, detail, number, memo);
            step.Step([&] { detail.Delete(); });
            bool moved = false;
            step.Step([&] {
                detail.MoveNext();
                moved = true;
            });
            if (!moved) break;
        }
        step.Step([&] { purchase.Delete(); });
    });
}

void Faktur::ReverseLine(Guard& step, ado::Recordset& detail, const std::string& number,
                         const std::string& memo) {
    purchases::PurchaseLine line;
    step.Step([&] {
        line = {.KodeBrg = TextOf(detail["KodeBrg"]),
                .Diskripsi = TextOf(detail["Diskripsi"]),
                .Satuan = TextOf(detail["satuan"]),
                .Qty = Amount(detail, "Qty"),
                .Qty2 = Amount(detail, "Qty2"),
                .Total = Amount(detail, "Total")};
    });
    ado::Recordset product;
    bool known = false, service = false;
    step.Step([&] { product.Open("Select * From Produk Where KodeBrg='" + line.KodeBrg + "'", Data()); });
    step.Step([&] { known = !product.Empty(); });
    if (!known) return;

    const auto value = [&](const char* column) { return Amount(product, column); };
    double cost = 0, average = 0;
    const double quantity = line.Costed();
    step.Step([&] { cost = line.Cost(); });
    step.Step([&] {
        if (value("OnHand") - quantity > 0)
            average = purchases::AverageCost(value("OnHand"), value("HPPRATA"), -quantity * cost, -quantity);
    });
    step.Step([&] { service = Yes(product["Jasa"]); });
    if (service) return;
    step.PutRow(product, {{"QGudang", [&] { return value("QGudang") - line.Base(); }},
                          {"OnHand", [&] { return value("OnHand") - line.Base(); }},
                          {"HPPRata", average}});
    step.Step([&] {
        Data().Execute(" Update Persediaan Set QtySisa = QtySisa - " + SqlNumber(line.Base()) +
                       " Where NoJurnal ='11' and NoRef  ='" + Trim(number) + "' and KodeBrg = '" +
                       line.KodeBrg + "'");
    });
    // Wanted: on the date that the screen shows, which is not the purchase's.
    stock::Movement movement = MovementOf(step, product, line);
    movement.NoJurnal = stock::movement::PurchaseDeleted;
    movement.NoRef = TxtNoFaktur.Text();
    movement.Tanggal = TxtTglFaktur.Date();
    movement.Memo = memo;
    movement.Qty1 = -line.Base();
    movement.Harga1 = cost;
    stock::AddMovement(step, ledger_, movement);
}

} // namespace varnik
