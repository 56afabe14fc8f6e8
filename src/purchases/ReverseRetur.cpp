// The way back of a return: the purchase owes again, the supplier is owed again, and the goods of the lines
// on the screen come back to stock, lot and ledger.

#include "purchases/FakturRetur.h"

namespace varnik {

void FakturRetur::ReverseRetur() {
    const std::string number = ReturnNumber();
    if (number.empty()) return;
    if (!Ask(number + " will be delete ? ")) return;
    const document::Hourglass hourglass(Desk());
    Guarded([&](Guard& step) {
        if (!Seek(step, returns_, "NoFaktur='" + number + "'") ||
            !Seek(step, purchases_, "NoFaktur='" + PurchaseNumber() + "'"))
            return Say("Purchases returns with this number is not found ...");
        double total = 0;
        step.Step([&] { total = Amount(returns_, "Total"); });
        step.PutRow(purchases_, {{"Bayar", [&] { return Amount(purchases_, "Bayar") - total; }},
                                 {"Saldo", [&] { return Amount(purchases_, "Saldo") + total; }}});
        step.Step([&] { returns_.Delete(); });
        if (!Seek(step, suppliers_, "KodeSup='" + supplier_.TxtKodeSup.Text() + "'"))
            return Say("Item with this code is not found ...");
        step.PutRow(suppliers_,
                    {{"SaldoAkhir", [&] { return Amount(suppliers_, "SaldoAkhir") + sums_.JumTotal; }}});
        step.Step([&] { returnLines_.Filter("NoFaktur ='" + number + "'"); });
        while (!returnLines_.Eof()) {
            step.Step([&] { returnLines_.Delete(); });
            step.Step([&] { returnLines_.MoveNext(); });
        }
        for (int row = 1; row < OrderGrid.Rows(); ++row)
            if (OrderGrid.IsFilled(row)) ReverseLine(step, row, "PURCAHSES RETURN (DELETE) NO " + number);
        ClearRetur();
    });
}

void FakturRetur::ReverseLine(Guard& step, int row, const std::string& memo) {
    const purchases::PurchaseLine line = LineOf(OrderGrid, row);
    if (!Seek(step, products_, "KodeBrg='" + line.KodeBrg + "'")) return;
    const auto value = [&](const char* column) { return Amount(products_, column); };
    double cost = 0, average = 0;
    bool service = false;
    step.Step([&] { cost = line.Cost(); });
    step.Step([&] {
        average =
            purchases::AverageCost(value("OnHand"), value("HPPRATA"), line.Costed() * cost, line.Costed());
    });
    step.Step([&] { service = Yes(products_["Jasa"]); });
    if (service) return;
    step.PutRow(products_, {{"QGudang", [&] { return value("QGudang") + line.Base(); }},
                            {"OnHand", [&] { return value("OnHand") + line.Base(); }},
                            {"HPPRata", average}});
    RaiseLedgerRow(step, PurchaseNumber(), line.KodeBrg, line.Base());
    stock::Movement movement = MovementOf(step, products_, line);
    movement.NoJurnal = stock::movement::PurchaseReturnDeleted;
    movement.NoRef = ReturnNumber();
    movement.Tanggal = ReturnDate();
    movement.Memo = memo;
    movement.Qty1 = line.Base();
    movement.Harga1 = cost;
    stock::AddMovement(step, ledger_, movement);
    RaiseLot(step, line.KodeBrg, line.Base());
}

} // namespace varnik
