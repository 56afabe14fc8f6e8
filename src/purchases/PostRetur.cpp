// The way of a return into the books: it is taken off what the supplier is owed and off the purchase, as if
// it had been paid; then the goods leave stock and lot. Nothing asks whether as much was bought.

#include "purchases/FakturRetur.h"

namespace varnik {

void FakturRetur::PostRetur() {
    if (ReturnNumber().empty() || PurchaseNumber().empty()) return;
    if (!Ask("Are you sure you want  to save this pusrchases returns ? ")) return;
    const document::Hourglass hourglass(Desk());
    const std::string number = TxtNoFaktur.Text();
    Guarded([&](Guard& step) {
        if (Seek(step, returns_, "NoFaktur='" + number + "'")) return Say(number + " have in records..");
        if (!Seek(step, purchases_, "NoFaktur='" + PurchaseNumber() + "'"))
            return Say("Purcahses returns with this number is not found ...");
        if (!Seek(step, suppliers_, "KodeSup='" + supplier_.TxtKodeSup.Text() + "'"))
            return Say("Item with this code is not found ...");
        step.PutRow(suppliers_,
                    {{"SaldoAkhir", [&] { return Amount(suppliers_, "SaldoAkhir") - sums_.JumTotal; }}});
        step.PutRow(purchases_, {{"Bayar", [&] { return Amount(purchases_, "Bayar") + sums_.JumTotal; }},
                                 {"Saldo", [&] { return Amount(purchases_, "Saldo") - sums_.JumTotal; }}});
        step.AddRow(returns_, {{"NoFaktur", number},
                               {"NoPO", txtNoPO.Text()},
                               {"TglFaktur", TxtTglFaktur.Text()},
                               {"TglPO", TxtTglPO.Text()},
                               {"KodeSup", supplier_.TxtKodeSup.Text()},
                               {"Ket", supplier_.txtket.Text()},
                               {"bruto", sums_.JumBruto},
                               {"Netto", sums_.JumNetto},
                               {"Disc", sums_.JumDisc},
                               {"Total", sums_.JumTotal},
                               {"Bayar", 0},
                               {"Saldo", sums_.JumTotal},
                               {"NoUser", Mid(number, 11, 2)},
                               {"TglCetak", TxtTglFaktur.Text()}});
        for (int row = 1; row < OrderGrid.Rows(); ++row)
            if (OrderGrid.IsFilled(row)) PostLine(step, row);
    });
}

void FakturRetur::PostLine(Guard& step, int row) {
    const purchases::PurchaseLine line = LineOf(OrderGrid, row);
    const bool known = Seek(step, products_, "KodeBrg='" + line.KodeBrg + "'");
    step.AddRow(returnLines_, {{"NoFaktur", TxtNoFaktur.Text()},
                               {"TglFaktur", TxtTglFaktur.Text()},
                               {"KodeBrg", line.KodeBrg},
                               {"Diskripsi", line.Diskripsi},
                               {"Qty", line.Qty},
                               {"Satuan", line.Satuan},
                               {"Harga", line.Harga},
                               {"Disc", line.Disc},
                               {"Total", line.Total},
                               {"Qty2", line.Qty2}});
    if (!known) return;
    const auto value = [&](const char* column) { return Amount(products_, column); };
    double cost = 0, average = 0;
    bool service = false;
    step.Step([&] { cost = line.Cost(); });
    step.Step([&] {
        const double onHand = value("OnHand"), present = value("HPPRATA");
        const double out = line.Costed() * cost;
        average = onHand <= 0 ? 0 : present;
        // A return that is dearer than what is on hand leaves the average as it is.
        if (onHand - line.Costed() > 0 && onHand * present - out > 0)
            average = purchases::AverageCost(onHand, present, -out, -line.Costed());
    });
    step.Step([&] { service = Yes(products_["Jasa"]); });
    if (service) return;
    step.PutRow(products_, {{"QGudang", [&] { return value("QGudang") - line.Base(); }},
                            {"OnHand", [&] { return value("OnHand") - line.Base(); }},
                            {"HPPRata", average}});
    // Wanted: the return's own number is looked for, where the deletion looks for the purchase's; so the
    // purchase's ledger row stays, and another of that number is lowered.
    RaiseLedgerRow(step, TxtNoFaktur.Text(), line.KodeBrg, -line.Base());
    RaiseLot(step, line.KodeBrg, -line.Base());
    stock::Movement movement = MovementOf(step, products_, line);
    movement.NoJurnal = stock::movement::PurchaseReturn;
    movement.NoRef = TxtNoFaktur.Text();
    movement.Tanggal = ReturnDate();
    movement.Memo = supplier_.txtket.Text();
    movement.Qty1 = -line.Base();
    movement.Harga1 = cost;
    stock::AddMovement(step, ledger_, movement);
}

void FakturRetur::RaiseLedgerRow(Guard& step, const std::string& number, const std::string& code,
                                 double base) {
    ado::Recordset row;
    bool found = false;
    step.Step([&] {
        row.Open("Select * from Persediaan Where  NoJurnal = '11' and NoRef =  '" + number +
                     "' and KodeBrg = '" + code + "' ",
                 Data());
    });
    step.Step([&] { found = !row.Empty(); });
    if (found) step.PutRow(row, {{"QtySisa", [&] { return Amount(row, "QtySisa") + base; }}});
}

void FakturRetur::RaiseLot(Guard& step, const std::string& code, double base) {
    bool found = false;
    step.Step([&] {
        lots_.Filter("NoFaktur  ='" + PurchaseNumber() + "' and KodeBrg = '" + code + "'");
        found = !lots_.Eof();
    });
    if (found)
        step.PutRow(lots_, {{"QtySisa", [&] { return Amount(lots_, "QtySisa") + base; }},
                            {"QtyRetur", [&] { return Amount(lots_, "QtyRetur") - base; }}});
}

} // namespace varnik
