// The way of a new purchase into the books: the supplier's balance, the header, then line by line the lot,
// the stock and its cost, and the ledger. Nothing binds the steps together: what was written when the user
// aborts stays.

#include "purchases/Faktur.h"

namespace varnik {

void Faktur::PostFaktur() {
    const document::Hourglass hourglass(Desk());
    const std::string number = TxtNoFaktur.Text(), code = supplier_.TxtKodeSup.Text();
    Guarded([&](Guard& step) {
        ado::Recordset supplier, purchase, detail;
        bool known = false;
        step.Step(
            [&] { supplier.Open("Select * from Supplier Where KodeSup='" + Trim(code) + "'", Data()); });
        step.Step([&] { known = !supplier.Empty(); });
        if (!known) return Say("Supplier " + code + " not found...", Icon::Information);
        std::string name;
        step.Step([&] { name = Trim(TextOf(supplier["NamaSup"])); });
        step.PutRow(supplier,
                    {{"SaldoAkhir", [&] { return Amount(supplier, "SaldoAkhir") + sums_.JumTotal; }}});

        const std::string here = " Where NoFaktur ='" + Trim(number) + "'";
        step.Step([&] { purchase.Open("Select * from Faktur" + here, Data()); });
        step.AddRow(purchase, {{"NoFaktur", number},
                               {"NoFakSup", txtFaksup.Text()},
                               {"TglFaktur", TxtTglFaktur.Date()},
                               {"TglJTP", TxtJTP.Text()},
                               {"KodeSup", code},
                               {"Ket", supplier_.txtket.Text()},
                               {"bruto", sums_.JumBruto},
                               {"Netto", sums_.JumNetto},
                               {"Disc", sums_.JumDisc},
                               {"Total", sums_.JumTotal},
                               {"Bayar", 0},
                               {"Saldo", sums_.JumTotal},
                               {"NoUser", Mid(number, 11, 2)}});
        step.Step([&] { detail.Open("Select * from FakturDetail" + here, Data()); });
        for (int row = 1; row < OrderGrid.Rows(); ++row)
            if (IsLine(OrderGrid, row))
                PostLine(step, detail, row, "Purchases No. " + number + " Sup. " + name);
    });
}

// The line is a lot from here on: QtySisa is what sales may draw from it.
void Faktur::PostLine(Guard& step, ado::Recordset& detail, int row, const std::string& memo) {
    const purchases::PurchaseLine line = Line(row);
    step.Step([&] { detail.AddNew(); });
    step.Put(detail, {{"NoFaktur", TxtNoFaktur.Text()},
                      {"TglFaktur", TxtTglFaktur.Date()},
                      {"KodeSup", supplier_.TxtKodeSup.Text()},
                      {"KodeBrg", line.KodeBrg},
                      {"Diskripsi", line.Diskripsi},
                      {"Qty", line.Qty},
                      {"Satuan", line.Satuan},
                      {"Harga", line.Harga},
                      {"Disc", line.Disc},
                      {"Total", line.Total},
                      {"Qty2", line.Qty2},
                      {"QtySisa", line.Base()},
                      {"QtyOrder", line.Base()},
                      {"QtyRetur", 0}});
    ado::Recordset product;
    bool known = false;
    step.Step(
        [&] { product.Open("Select * From Produk Where KodeBrg='" + Trim(line.KodeBrg) + "'", Data()); });
    step.Step([&] { known = !product.Empty(); });
    if (known) PostStock(step, product, line, memo);
    step.Update(detail);
}

void Faktur::PostStock(Guard& step, ado::Recordset& product, const purchases::PurchaseLine& line,
                       const std::string& memo) {
    const auto number = [&](const char* column) { return Amount(product, column); };
    double cost = 0, average = 0;
    bool service = false;
    step.Step([&] { cost = line.Cost(); });
    step.Step([&] {
        average =
            purchases::AverageCost(number("OnHand"), number("HPPRATA"), line.Costed() * cost, line.Costed());
    });
    step.Step([&] { service = Yes(product["Jasa"]); });
    if (!service) {
        step.Put(product, {{"OnHand", [&] { return number("OnHand") + line.Base(); }},
                           {"QGudang", [&] { return number("QGudang") + line.Base(); }},
                           {"HPPRata", average},
                           {"HargaBeli", cost},
                           {"HPPAkhir", cost}});
        bool firstCost = false;
        step.Step([&] { firstCost = number("HPPAwal") == 0; });
        if (firstCost) step.Put(product, {{"HPPAwal", cost}});
    }
    // The first purchase names the units that were left blank.
    const auto fillUnit = [&](const char* name, const char* pecahan) {
        bool blank = false;
        step.Step([&] { blank = Trim(TextOf(product[name])).empty(); });
        if (blank) step.Put(product, {{name, line.Satuan}, {pecahan, line.Qty2}});
    };
    fillUnit("SatuanBeli", "PecahanBeli");
    fillUnit("Satuan", "Pecahan");
    step.PutRow(product, {{"HargaBeli", cost}});
    if (service) return;
    stock::Movement movement = MovementOf(step, product, line);
    movement.NoJurnal = stock::movement::Purchase;
    movement.NoRef = TxtNoFaktur.Text();
    movement.Tanggal = TxtTglFaktur.Date();
    movement.Memo = memo;
    // Wanted: the quantity is that of the line's unit, the open rest is in base units.
    movement.Qty1 = line.Qty;
    movement.Harga1 = cost;
    movement.QtySisa = line.Base();
    stock::AddMovement(step, ledger_, movement);
}

} // namespace varnik
