// The way of a new invoice into the books: the header, the customer's balance, then line by line the goods,
// their lots and their cost. Nothing binds the steps together: what was written when the user aborts stays.

#include "sales/Invoice.h"

#include "stock/Lots.h"

#include <cmath>

namespace varnik {

namespace {

// What a column of this many characters can hold.
constexpr int WordsLength = 100;

} // namespace

void Invoice::PostInvoice() {
    const document::Hourglass hourglass(Desk());
    const std::string number = TxtNoInvoice.Text();
    const double tax = Number(TxtPPN); // as typed, not divided by 100
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Connection& connection = Data();
        ado::Recordset invoice, detail;
        step.Step(
            [&] { invoice.Open("Select  * From Invoice Where NoInvoice = '" + number + "'", connection); });
        step.AddRow(invoice, {
                                 {"NoInvoice", number},
                                 {"CusPO", txtCusPO.Text()},
                                 {"TglInvoice", TxtTglInvoice.Date()},
                                 {"TglJTP", TxtJTP.Text()},
                                 {"KodeCus", TxtKodeCus.Text()},
                                 // Wanted: the header's memo ends without the name that the stock rows carry.
                                 {"Ket", "Sales Inv No. " + number + " Cus. "},
                                 {"Bruto", sums_.SumBruto},
                                 {"Netto", sums_.SumNetto},
                                 {"PPN", sums_.SumPPN},
                                 {"Disc", sums_.SumDisc},
                                 {"Total", sums_.SumTotal},
                                 {"Bayar", sums_.SumBayar},
                                 {"Saldo", sums_.SumTotal - sums_.SumBayar},
                                 {"NoUser", Mid(number, 11, 2)},
                                 {"nPPN", tax},
                                 {"Terbilang",
                                  Left(Trim(AmountInWords(Trim(Masked(sums_.SumTotal, "#0")))), WordsLength)},
                             });
        PostCustomer(step, connection);
        step.Step([&] {
            detail.Open("Select  * From InvoiceDetail Where NoInvoice = '" + number + "'", connection);
        });
        for (int row = 1; row < OrderGrid.Rows(); ++row)
            if (Numeric(OrderGrid.Cell(row, 2)) && Numeric(OrderGrid.Cell(row, 4)))
                PostLine(step, connection, detail, row);
    });
}

// An unknown customer is created from what stands on the screen.
void Invoice::PostCustomer(Guard& step, ado::Connection& connection) {
    ado::Recordset customer;
    bool known = false;
    step.Step([&] {
        customer.Open("Select *  from Customer Where KodeCus ='" + TxtKodeCus.Text() + "'", connection);
    });
    step.Step([&] { known = !customer.Empty(); });
    if (known) {
        step.PutRow(customer, {{"SaldoAkhir", [&] {
                                    return Number(customer["SaldoAkhir"].Value()) + sums_.SumNetto +
                                           sums_.SumPPN;
                                }}});
        return;
    }
    step.Step([&] { customer.AddNew(); });
    step.Put(customer, {{"kodeCus", TxtKodeCus.Text()}, {"NamaCus", TxtNamaCus.Text()}});
    const std::pair<const char*, const forms::TextBox*> address[] = {
        {"Alamat_1", &TxtAlamat1}, {"Alamat_2", &TxtAlamat2}, {"Alamat_3", &TxtAlamat3}};
    for (const auto& [column, field] : address)
        if (!Trim(field->Text()).empty()) step.Put(customer, {{column, field->Text()}});
    step.PutRow(customer, {{"nDis", 0},
                           {"nwDis", 0},
                           {"nJTP", 0},
                           {"SaldoAwal", 0},
                           {"SaldoAkhir", sums_.SumTotal - sums_.SumBayar}});
}

void Invoice::PostLine(Guard& step, ado::Connection& connection, ado::Recordset& detail, int row) {
    const auto amount = [&](int column) {
        return Numeric(OrderGrid.Cell(row, column)) ? Cell(row, column) : 0;
    };
    const std::string code = OrderGrid.Cell(row, 0);
    const std::string unit = OrderGrid.Cell(row, 3);
    const double quantity = Cell(row, 2), perUnit = Cell(row, 8), base = quantity * perUnit;
    const double bruto = amount(5), discount = amount(6), price = amount(4);
    const double tax = Number(TxtPPN);
    const double total = bruto - discount;
    double share = 0, lineTax = 0;
    // A line without a price fails here.
    step.Step([&] { share = ado::Divide(discount, bruto); });
    // Wanted: the tax is the whole figure, not its hundredth, so a line's tax does not add up to the
    // header's.
    step.Step([&] { lineTax = ado::Divide(total, 1 + tax); });

    step.Step([&] { detail.AddNew(); });
    step.Put(detail, {
                         {"NoInvoice", TxtNoInvoice.Text()},
                         {"TglInvoice", TxtTglInvoice.Date()},
                         {"KodeCus", TxtKodeCus.Text()},
                         {"KodeBrg", code},
                         {"Diskripsi", OrderGrid.Cell(row, 1)},
                         {"Qty", quantity},
                         {"Satuan", unit},
                         {"Qty2", perUnit},
                         {"Harga", price},
                         {"Disc", discount},
                         {"Netto", total},
                         {"PPN", lineTax},
                         {"Total", total},
                         {"nDis", share * 100},
                         {"nPPN", tax},
                         {"HPP", 0},
                         {"HPPRATA", 0},
                     });

    ado::Recordset product;
    bool known = false, service = false;
    double onHand = 0;
    step.Step([&] { product.Open("Select * From Produk Where  KodeBrg='" + code + "'", connection); });
    step.Step([&] { known = !product.Empty(); });
    if (known) {
        step.Step([&] { service = Yes(product["Jasa"]); });
        if (!service) {
            step.Step([&] { onHand = Number(product["OnHand"].Value()); });
            step.Put(product, {{"QGudang", [&] { return Number(product["QGudang"].Value()) - base; }},
                               {"OnHand", onHand - base}});
        }
        // The last sale sets the selling price of a base unit; one that the column rounds to 0 gives way to
        // the price of the unit sold.
        double sellingPrice = perUnit == 0 ? price : price / perUnit;
        if (std::nearbyint(sellingPrice) == 0) sellingPrice = price;
        step.Put(product, {{"HargaJual", sellingPrice}});
        const auto fillUnit = [&](const char* name, const char* pecahan) {
            bool blank = false;
            step.Step([&] { blank = Trim(TextOf(product[name])).empty(); });
            if (blank) step.Put(product, {{name, unit}, {pecahan, perUnit}});
        };
        fillUnit("SatuanJual", "PecahanJual");
        fillUnit("Satuan", "Pecahan");
        step.Update(product);

        step.Put(detail, {{"HPPRATA", [&] { return Number(product["HPPRATA"].Value()) * base; }}});
        if (!service) {
            const stock::SaleLine line{.NoInvoice = TxtNoInvoice.Text(),
                                       .Tanggal = TxtTglInvoice.Date(),
                                       .NamaCus = TxtNamaCus.Text(),
                                       .KodeBrg = code,
                                       .NamaBrg = OrderGrid.Cell(row, 1),
                                       .JenisBrg = TextOf(product["JenisBrg"]),
                                       .Satuan = unit,
                                       .Qty = quantity,
                                       .Qty2 = perUnit,
                                       .OnHand = onHand};
            step.Put(detail, {{"HPP", stock::ConsumeLots(step, connection, line)}});
        }
        step.Put(detail, {{"Jasa", service}});
    }
    step.PutRow(detail, {{"QtyOrder", 0}, {"QtyRetur", 0}, {"Bruto", bruto}});
}

} // namespace varnik
