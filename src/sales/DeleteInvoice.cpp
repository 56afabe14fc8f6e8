// The way back of a posted invoice: the row goes first, then the balance, the stock and the lots of every
// line are given back. Selling price and units stay as the sale set them, and so do its ledger rows.

#include "sales/Invoice.h"

#include "stock/Lots.h"

namespace varnik {

void Invoice::DeleteInvoice() {
    const document::Hourglass hourglass(Desk());
    const std::string number = Trim(TxtNoInvoice.Text());
    const std::string memo =
        "Sales (DELETED) Inv No. " + number + " Cus. " + Trim(TxtNamaCus.Text()) + " " + TxtKodeCus.Text();
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Connection& connection = Data();
        ado::Recordset invoice, customer, detail;
        bool found = false;
        step.Step(
            [&] { invoice.Open("Select * From Invoice Where noINvoice = '" + number + "'", connection); });
        step.Step([&] { found = Carries(invoice, "NoInvoice", number); });
        if (!found) return Say("Invoice with this number is not found ...");
        // A receipt and a return both raise what is paid.
        double paid = 0;
        step.Step([&] { paid = Number(invoice["Bayar"].Value()); });
        if (paid > 0) return Say("Payment for this invoice is not zero ...");

        std::string customerCode;
        step.Step([&] { customerCode = TextOf(invoice["KodeCus"]); });
        step.Step([&] { invoice.Delete(); });

        found = false;
        step.Step([&] {
            customer.Open("Select * from Customer Where KodeCus='" + customerCode + "'", connection);
        });
        step.Step([&] { found = !customer.Empty(); });
        if (found)
            step.PutRow(customer, {{"SaldoAkhir", [&] {
                                        return Number(customer["SaldoAkhir"].Value()) - sums_.SumTotal;
                                    }}});

        step.Step([&] {
            detail.Open("Select  * From InvoiceDetail Where NoInvoice = '" + number + "'", connection);
        });
        while (detail.IsOpen() && !detail.Eof()) DeleteLine(step, connection, detail, memo);
    });
}

void Invoice::DeleteLine(Guard& step, ado::Connection& connection, ado::Recordset& detail,
                         const std::string& memo) {
    std::string code;
    double base = 0, onHand = 0;
    ado::Recordset product;
    bool known = false, service = false;
    step.Step([&] { code = TextOf(detail["KodeBrg"]); });
    step.Step([&] { base = Number(detail["Qty"].Value()) * Number(detail["Qty2"].Value()); });
    step.Step([&] { product.Open("Select * From Produk Where  KodeBrg='" + code + "'", connection); });
    step.Step([&] { known = !product.Empty(); });
    // A product that is gone since then fails here.
    step.Step([&] { service = Yes(product["Jasa"]); });
    if (known && !service) {
        step.Step([&] { onHand = Number(product["OnHand"].Value()); });
        step.PutRow(product, {{"QGudang", [&] { return Number(product["QGudang"].Value()) + base; }},
                              {"OnHand", onHand + base}});
    }
    if (!service) {
        stock::RestoredLine line{.NoInvoice = Trim(TxtNoInvoice.Text()),
                                 .Tanggal = TxtTglInvoice.Date(),
                                 .Memo = memo,
                                 .KodeBrg = code,
                                 .OnHand = onHand};
        stock::RestoreLots(step, connection, line, product);
    }
    step.Step([&] { detail.Delete(); });
    step.Step([&] { detail.MoveNext(); });
}

} // namespace varnik
