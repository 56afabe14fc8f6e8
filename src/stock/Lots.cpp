#include "stock/Lots.h"

#include "common/Numbers.h"
#include "common/Text.h"

namespace varnik::stock {
namespace {

// What is left of a quantity after taking all of it may be the dust of binary fractions.
constexpr double Dust = 1e-9;

// Numbers come plain from the database; the machine's settings play no part.
double Amount(ado::Recordset& rows, const char* column) {
    static const Regional plain;
    return NullToNumber(rows[column].Value(), plain);
}

std::string TextOf(ado::Recordset& rows, const char* column) {
    static const Regional plain;
    return NullToText(rows[column].Value(), plain);
}

// The row that a look-up found, its column raised by an amount. Nothing when it found none.
void Raise(Guard& step, ado::Recordset& found, const char* column, double amount) {
    bool any = false;
    step.Step([&] { any = !found.Empty(); });
    if (any) step.PutRow(found, {{column, [&] { return Amount(found, column) + amount; }}});
}

// What a sale drew from one lot, as PersediaanJual and PersediaanRetur keep it.
struct Draw {
    double quantity = 0, price = 0;
    std::string purchase;

    // Three steps; what one passes over keeps the value of the row before.
    void Read(Guard& step, ado::Recordset& rows) {
        step.Step([&] { quantity = Amount(rows, "Qty"); });
        step.Step([&] { price = Amount(rows, "Harga"); });
        step.Step([&] { purchase = TextOf(rows, "NoPO"); });
    }
};

// Walks rows in the order of entry. A row that the body moves off or deletes is not visited again.
template <typename Body>
void ForEachRow(Guard& step, ado::Recordset& rows, const Body& body) {
    const auto remain = [&] {
        bool more = false;
        step.Step([&] { more = !rows.Eof(); });
        return more;
    };
    while (remain()) {
        if (!body()) return;
        bool moved = false;
        step.Step([&] {
            rows.MoveNext();
            moved = true;
        });
        if (!moved) return; // passed over: the walk cannot go on
    }
}

} // namespace

double ConsumeLots(Guard& step, ado::Connection& connection, const SaleLine& line) {
    double wanted = line.Qty * line.Qty2, cost = 0, running = line.OnHand;
    double open = 0, unit = 0, taken = 0;
    ado::Recordset lots, ledger, drawn;
    step.Step([&] {
        lots.Open("Select  * From FakturDetail Where KodeBrg = '" + line.KodeBrg + "' and QtySisa > 0",
                  connection);
    });
    step.Step([&] {
        drawn.Open("Select * from PersediaanJual Where NoInvoice ='" + line.NoInvoice + "' and KodeBrg ='" +
                       line.KodeBrg + "'",
                   connection);
    });

    const Movement sale{.NoJurnal = movement::Sale,
                        .NoRef = line.NoInvoice,
                        .Tanggal = line.Tanggal,
                        .Memo = "Sales Inv No. " + line.NoInvoice + " Cus. " + Trim(line.NamaCus),
                        .goods = {line.KodeBrg, line.NamaBrg, line.JenisBrg, line.Satuan, line.Qty2}};
    const auto addMovement = [&] {
        Movement row = sale;
        row.Qty2 = taken;
        row.Harga2 = unit;
        row.Saldo = running;
        AddMovement(step, ledger, row);
    };
    const auto rememberLot = [&] {
        step.AddRow(drawn, {{"NoInvoice", line.NoInvoice},
                            {"Tanggal", line.Tanggal},
                            {"NoPO", lots["NoFaktur"]},
                            {"KodeBrg", lots["KodeBrg"]},
                            {"Qty", taken},
                            {"Harga", unit}});
    };

    // What is left of the lot in hand; false when another station drew from it meanwhile, so that it holds
    // less than was taken. The lot then shows what it holds.
    const auto saveRest = [&](double rest) {
        bool saved = true;
        step.Put(lots, {{"QtySisa", rest}});
        step.Step([&] { saved = lots.UpdateAboveZero(); });
        return saved;
    };
    // Takes from the lot in hand what it shows to be open; false when another station was faster, and then
    // nothing of it stands.
    const auto draw = [&] {
        const double before = running;
        const bool enough = open > wanted;
        taken = enough ? wanted : open;
        running -= taken;
        OpenFirstLedgerRow(step, connection, line.KodeBrg, ledger);
        std::optional<ado::Bookmark> first;
        Resume([&] { first = ledger.GetBookmark(); }); // none is open
        Raise(step, ledger, "QtySisa", -taken);
        if (enough) {
            if (saveRest(open - wanted)) {
                addMovement();
                rememberLot();
                return true;
            }
        } else {
            rememberLot();
            addMovement();
            if (saveRest(0)) return true;
            step.Step([&] { drawn.Delete(); });
            step.Step([&] { ledger.Delete(); });
        }
        running = before;
        if (!first) return false;
        step.Step([&] { ledger.SetBookmark(*first); });
        Raise(step, ledger, "QtySisa", taken);
        return false;
    };

    if (!lots.IsOpen()) return cost;
    ForEachRow(step, lots, [&] {
        if (wanted <= Dust) return false;
        for (;;) {
            step.Step([&] { open = Amount(lots, "QtySisa"); });
            if (open <= 0) return true;
            step.Step([&] {
                unit = ado::Divide(Amount(lots, "Total"), Amount(lots, "Qty") * Amount(lots, "Qty2"));
            });
            if (draw()) break;
        }
        cost += taken * unit;
        wanted -= taken;
        return true;
    });
    return cost;
}

void RestoreLots(Guard& step, ado::Connection& connection, const RestoredLine& line,
                 ado::Recordset& product) {
    double running = line.OnHand;
    Draw draw;
    ado::Recordset drawn, ledger;
    step.Step([&] {
        drawn.Open("Select * from PersediaanJual Where NoInvoice ='" + line.NoInvoice + "' and KodeBrg ='" +
                       line.KodeBrg + "'",
                   connection);
    });
    step.Step([&] { ledger.Open("Select * from Persediaan", connection); });

    if (!drawn.IsOpen()) return;
    ForEachRow(step, drawn, [&] {
        draw.Read(step, drawn);
        running += draw.quantity;
        AddMovement(step, ledger,
                    {.NoJurnal = movement::SaleDeleted,
                     .NoRef = line.NoInvoice,
                     .Tanggal = line.Tanggal,
                     .Memo = line.Memo,
                     .goods = GoodsOf(step, line.KodeBrg, product),
                     .Qty1 = draw.quantity,
                     .Harga1 = draw.price,
                     .Saldo = running});
        ado::Recordset lot, entry;
        step.Step([&] {
            lot.Open("Select * from FakturDetail Where NoFaktur='" + draw.purchase + "' and KodeBrg ='" +
                         line.KodeBrg + "'",
                     connection);
        });
        Raise(step, lot, "QtySisa", draw.quantity);
        // The lot's own row this time, where the sale lowered the product's first open one.
        step.Step([&] {
            entry.Open("Select * from Persediaan Where KodeBrg = '" + line.KodeBrg +
                           "' and NoJurnal='11' and NoRef = '" + draw.purchase + "'",
                       connection);
        });
        Raise(step, entry, "QtySisa", draw.quantity);
        step.Step([&] { drawn.Delete(); });
        return true;
    });
}

double ReturnLots(Guard& step, ado::Connection& connection, const ReturnLine& line, ado::Recordset& product) {
    double wanted = line.Qty * line.Qty2, cost = 0, running = line.OnHand;
    Draw draw;
    ado::Recordset drawn, ledger;
    step.Step([&] {
        drawn.Open("Select * From PersediaanJual  Where  NoInvoice ='" + line.NoInvoice + "' and KodeBrg ='" +
                       line.KodeBrg + "' ",
                   connection);
    });
    step.Step([&] { ledger.Open("Select * from Persediaan", connection); });

    if (!drawn.IsOpen()) return cost;
    ForEachRow(step, drawn, [&] {
        if (wanted <= Dust) return false;
        draw.Read(step, drawn);
        // A row that an earlier return emptied stays: it gives back nothing, and that is written down too.
        const double given = std::min(draw.quantity, wanted);
        wanted -= given;
        running += given;
        step.Step([&] {
            connection.Execute("Update FakturDetail Set QtySisa =QtySisa + " + SqlNumber(given) +
                               " Where (NoFaktur='" + draw.purchase + "')  and (KodeBrg = '" + line.KodeBrg +
                               "')");
        });
        step.Step([&] {
            connection.Execute("Update InvoiceDetail Set QtyRetur = QtyRetur + " + SqlNumber(given) +
                               " Where (NoInvoice='" + line.NoInvoice + "')  and (KodeBrg = '" +
                               line.KodeBrg + "')");
        });
        ado::Recordset returned;
        step.Step([&] {
            returned.Open("Select * From PersediaanRetur  Where  ReturID='" + line.ReturID + "'", connection);
        });
        step.AddRow(returned, {{"ReturID", line.ReturID},
                               {"Tanggal", line.Tanggal},
                               {"NoInvoice", line.NoInvoice},
                               {"NoPO", draw.purchase},
                               {"KodeBrg", line.KodeBrg},
                               {"Qty", given},
                               {"Harga", draw.price}});
        // On the side of goods out, with a negative quantity: the stock reports sum it so.
        Goods goods = GoodsOf(step, line.KodeBrg, product);
        goods.NamaBrg = line.NamaBrg;
        AddMovement(step, ledger,
                    {.NoJurnal = movement::SaleReturn,
                     .NoRef = line.ReturID,
                     .Tanggal = line.Tanggal,
                     .Memo = "Sales Returns No " + line.ReturID,
                     .goods = goods,
                     .Qty2 = -given,
                     .Harga2 = draw.price,
                     .Saldo = running});
        cost += given * draw.price;
        step.PutRow(drawn, {{"Qty", draw.quantity - given}});
        return true;
    });
    return cost;
}

void ReverseReturnLots(Guard& step, ado::Connection& connection, const ReversedReturnLine& line,
                       ado::Recordset& product) {
    double running = line.OnHand;
    Draw draw;
    std::string code;
    ado::Recordset returned, ledger;
    step.Step([&] {
        returned.Open("Select * From PersediaanRetur  Where  ReturID='" + line.ReturID + "'", connection);
    });
    step.Step([&] { ledger.Open("Select * from Persediaan", connection); });

    if (!returned.IsOpen()) return;
    ForEachRow(step, returned, [&] {
        step.Step([&] { code = TextOf(returned, "KodeBrg"); });
        if (!EqualsNoCase(code, line.KodeBrg)) return true; // another line's goods
        draw.Read(step, returned);
        running -= draw.quantity;
        ado::Recordset drawn, lot, sold;
        step.Step([&] {
            drawn.Open("Select * From PersediaanJual  Where  NoInvoice ='" + line.NoInvoice +
                           "' and KodeBrg ='" + line.KodeBrg + "' and  NoPo ='" + draw.purchase + "'",
                       connection);
        });
        Raise(step, drawn, "Qty", draw.quantity);
        step.Step([&] {
            lot.Open("Select * From FakturDetail  Where  NoFaktur='" + draw.purchase + "' and KodeBrg = '" +
                         line.KodeBrg + "'",
                     connection);
        });
        Raise(step, lot, "QtySisa", -draw.quantity);
        step.Step([&] {
            sold.Open("Select * From InvoiceDetail Where  NoInvoice='" + line.NoInvoice +
                          "'  and KodeBrg = '" + line.KodeBrg + "'",
                      connection);
        });
        Raise(step, sold, "QtyOrder", -draw.quantity); // not QtyRetur, which the return raised
        AddMovement(step, ledger,
                    {.NoJurnal = movement::SaleReturnDeleted,
                     .NoRef = line.ReturID,
                     .Tanggal = line.Tanggal,
                     .Memo = line.Memo,
                     .goods = GoodsOf(step, line.KodeBrg, product),
                     .Qty2 = draw.quantity,
                     .Harga2 = draw.price,
                     .Saldo = running});
        step.Step([&] { returned.Delete(); });
        return true;
    });
}

} // namespace varnik::stock
