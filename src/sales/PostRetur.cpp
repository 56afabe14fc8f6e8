// A return into the books, and out of them again. Nothing binds the steps together: what was written when the
// user aborts stays.

#include "sales/InvoiceRetur.h"

#include "stock/Lots.h"

namespace varnik {

void InvoiceRetur::PostRetur() {
    const document::Hourglass hourglass(Desk());
    const std::string id = TxtReturID.Text(), invoice = TxtNoInvoice.Text();
    const double rate = document::Rate(Number(TxtPPN));
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset retur, detail;
        step.Step([&] { retur.Open("Select * From InvoiceRetur Where  ReturID ='" + id + "'", Data()); });
        step.AddRow(retur, {{"ReturID", id},
                            {"NoInvoice", invoice},
                            {"TglRetur", ReturnDate()},
                            {"TglInvoice", TxtTglInvoice.Text()},
                            {"KodeCus", TxtKodeCus.Text()},
                            {"Ket", txtket.Text()},
                            {"bruto", sums_.SumBruto},
                            {"Netto", sums_.SumNetto},
                            {"PPN", sums_.SumPPN},
                            {"Disc", sums_.SumDisc},
                            {"Total", sums_.SumTotal},
                            {"Bayar", 0},
                            {"Saldo", sums_.SumTotal},
                            {"NoUser", Mid(id, 11, 2)},
                            {"nPPN", rate * 100},
                            {"Ket2", Upper(Trim(Combo1.Text()))},
                            {"Tglcetak", TxtTglInvoice.Text()}});
        // A return counts as a payment.
        const std::string total = SqlNumber(sums_.SumTotal);
        step.Step([&] {
            Data().Execute("Update Invoice Set Bayar=Bayar + " + total + " , Saldo = Saldo - " + total +
                           " Where NoInvoice = '" + invoice + "'");
        });
        step.Step([&] {
            Data().Execute("Update Customer Set SaldoAkhir =SaldoAkhir - " + total + " Where KodeCus = '" +
                           TxtKodeCus.Text() + "'");
        });
        step.Step(
            [&] { detail.Open("Select * From InvoiceReturDetail Where  ReturID ='" + id + "'", Data()); });
        for (int row = 1; row < OrderGrid.Rows(); ++row)
            if (Numeric(OrderGrid.Cell(row, 2)) && Numeric(OrderGrid.Cell(row, 4)) &&
                Numeric(OrderGrid.Cell(row, 8)) && Cell(row, 2) > 0)
                PostLine(step, detail, row);
    });
}

void InvoiceRetur::PostLine(Guard& step, ado::Recordset& detail, int row) {
    const auto amount = [&](int column) {
        return Numeric(OrderGrid.Cell(row, column)) ? Cell(row, column) : 0;
    };
    const std::string code = OrderGrid.Cell(row, 0), name = OrderGrid.Cell(row, 1);
    const double quantity = Cell(row, 2), perUnit = Cell(row, 8), base = quantity * perUnit;
    const double discount = amount(6), total = amount(5) - discount;
    const double rate = document::Rate(Number(TxtPPN)), netto = total / (1 + rate);
    step.Step([&] { detail.AddNew(); });
    step.Put(detail, {{"ReturID", TxtReturID.Text()},
                      {"TglRetur", ReturnDate()},
                      {"KodeBrg", code},
                      {"Diskripsi", name},
                      {"Qty", quantity},
                      {"Satuan", OrderGrid.Cell(row, 3)},
                      {"Harga", amount(4)},
                      {"Qty2", perUnit},
                      {"Disc", discount},
                      {"Netto", netto},
                      {"PPN", netto * rate},
                      {"Total", total},
                      // Wanted: the discount is an amount and is stored as the percentage too.
                      {"nDis", document::Rate(discount) * 100},
                      {"nPPN", rate * 100}});

    ado::Recordset product;
    bool known = false, service = true;
    double onHand = 0, cost = 0;
    step.Step([&] { product.Open("Select * From Produk Where  KodeBrg='" + code + "'", Data()); });
    step.Step([&] { known = !product.Empty(); });
    if (known) step.Step([&] { service = Yes(product["Jasa"]); });
    if (!service) {
        const auto number = [&](const char* column) {
            return NullToNumber(product[column], services_.regional);
        };
        step.Step([&] { onHand = number("OnHand"); });
        step.PutRow(product, {{"QGudang", [&] { return number("QGudang") + base; }},
                              {"OnHand", [&] { return number("OnHand") + base; }}});
        const stock::ReturnLine line{.ReturID = TxtReturID.Text(),
                                     .Tanggal = ReturnDate(),
                                     .NoInvoice = TxtNoInvoice.Text(),
                                     .KodeBrg = code,
                                     .NamaBrg = name,
                                     .Qty = quantity,
                                     .Qty2 = perUnit,
                                     .OnHand = onHand};
        cost = stock::ReturnLots(step, Data(), line, product);
    }
    step.PutRow(detail, {{"HPP", cost}});
}

void InvoiceRetur::DeleteRetur() {
    const document::Hourglass hourglass(Desk());
    const std::string id = Trim(TxtReturID.Text());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset retur, detail;
        bool found = false;
        step.Step([&] { retur.Open("Select * From InvoiceRetur Where  ReturID ='" + id + "'", Data()); });
        step.Step([&] { found = Carries(retur, "ReturID", id); });
        if (!found) return Say("Unable to find record ...");
        std::string invoice, code, total;
        step.Step([&] { invoice = TextOf(retur["NoInvoice"]); });
        step.Step([&] { code = TextOf(retur["KodeCus"]); });
        step.Step([&] { total = MaskedInSql(NullToNumber(retur["Total"], services_.regional)); });
        // Wanted: the balance gets the truth value of a comparison, and from 1,000 on a comma as the
        // separator of the mask makes both statements fail.
        step.Step([&] {
            Data().Execute("Update Invoice Set Bayar=Bayar - " + total + " , Saldo = Saldo =" + total +
                           " Where NoInvoice = '" + invoice + "'");
        });
        step.Step([&] {
            Data().Execute("Update Customer Set SaldoAkhir =SaldoAkhir + " + total + " Where KodeCus = '" +
                           code + "'");
        });
        step.Step(
            [&] { detail.Open("Select * From InvoiceReturDetail Where  ReturID ='" + id + "'", Data()); });
        const std::string memo = "Sales Returns (DELETED) No. " + id + " Cus. " + Trim(TxtNamaCus.Text());
        while (detail.IsOpen() && !detail.Eof()) DeleteLine(step, detail, invoice, memo);
        step.Step([&] { retur.Delete(); });
    });
}

void InvoiceRetur::DeleteLine(Guard& step, ado::Recordset& detail, const std::string& invoice,
                              const std::string& memo) {
    std::string code;
    double base = 0, onHand = 0;
    bool known = false, service = false;
    ado::Recordset product;
    const auto number = [&](ado::Recordset& rows, const char* column) {
        return NullToNumber(rows[column], services_.regional);
    };
    step.Step([&] { code = TextOf(detail["KodeBrg"]); });
    step.Step([&] { base = number(detail, "Qty") * number(detail, "Qty2"); });
    step.Step([&] { product.Open("Select * From Produk Where  KodeBrg='" + code + "'", Data()); });
    step.Step([&] { known = !product.Empty(); });
    // A product that is gone since then fails here.
    step.Step([&] { service = Yes(product["Jasa"]); });
    if (known && !service) {
        step.Step([&] { onHand = number(product, "OnHand"); });
        step.PutRow(product, {{"QGudang", [&] { return number(product, "QGudang") - base; }},
                              {"OnHand", [&] { return number(product, "OnHand") - base; }}});
    }
    if (!service)
        stock::ReverseReturnLots(step, Data(),
                                 {.ReturID = Trim(TxtReturID.Text()),
                                  .Tanggal = ReturnDate(),
                                  .NoInvoice = invoice,
                                  .Memo = memo,
                                  .KodeBrg = code,
                                  .OnHand = onHand},
                                 product);
    step.Step([&] { detail.Delete(); });
    step.Step([&] { detail.MoveNext(); });
}

} // namespace varnik
