// A return on the screen and on paper, and the invoice that a new one returns from.

#include "sales/InvoiceRetur.h"
#include "sales/InvoiceRows.h"

namespace varnik {

void InvoiceRetur::ShowSource(Guard& step, ado::Recordset& source) {
    const auto amount = [&](const char* column) { return NullToNumber(source[column], services_.regional); };
    const auto show = [&](forms::TextBox& box, const char* column) {
        step.Step([&] { box.SetText(TextOf(source[column])); });
    };
    show(TxtNoInvoice, "NoInvoice");
    step.Step([&] { TxtTglInvoice.SetText(Shown(source["TglInvoice"])); });
    show(TxtKodeCus, "KodeCus");
    show(TxtNamaCus, "NamaCus");
    show(TxtAlamat, "Alamat_1");
    step.Step([&] { TxtPPN.SetText(Shown(amount("nPPN"))); });
    step.Step([&] {
        sums_ = {.SumBruto = amount("Bruto"),
                 .SumDisc = amount("Disc"),
                 .SumNetto = amount("Netto"),
                 .SumPPN = amount("PPN"),
                 .SumTotal = amount("Total"),
                 .SumBayar = amount("Bayar"),
                 .SumSaldo = amount("Saldo")};
    });
    ShowSums();
    source_ = Trim(TxtNoInvoice.Text());
}

void InvoiceRetur::LoadInvoiceForRetur(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset invoice, details;
        bool found = false;
        step.Step([&] { invoice.Open(InvoiceHeaderOf(number), Data(), ado::CursorType::Static); });
        step.Step([&] { found = invoice.IsOpen() && !invoice.Empty(); });
        if (!found) return;
        OrderGrid.ClearGrid();
        ShowSource(step, invoice);
        step.Step([&] { details.Open(InvoiceLinesOf(number), Data(), ado::CursorType::Static); });
        if (details.IsOpen()) ShowLines(step, OrderGrid, details, "Diskripsi");
    });
}

void InvoiceRetur::LoadRetur(const std::string& id) {
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset retur, details;
        bool found = false;
        step.Step([&] {
            retur.Open("SELECT Customer.KodeCus, Customer.NamaCus, Customer.Alamat_1, InvoiceRetur.ReturID, "
                       "InvoiceRetur.TglRetur, InvoiceRetur.NoInvoice, InvoiceRetur.TglInvoice, "
                       "InvoiceRetur.Ket, InvoiceRetur.Ket2, InvoiceRetur.nPPN, InvoiceRetur.Bruto, "
                       "InvoiceRetur.Disc, InvoiceRetur.Netto, InvoiceRetur.PPN, InvoiceRetur.Total, "
                       "InvoiceRetur.Bayar, InvoiceRetur.Saldo  FROM Customer INNER JOIN InvoiceRetur ON "
                       "Customer.KodeCus = InvoiceRetur.KodeCus Where InvoiceRetur.ReturID ='" +
                           id + "'",
                       Data(), ado::CursorType::Static);
        });
        step.Step([&] { found = retur.IsOpen() && !retur.Empty(); });
        if (!found) return;
        step.Step([&] { ClearRetur(); });
        step.Step([&] { TxtReturID.SetText(TextOf(retur["ReturID"])); });
        step.Step([&] { TxtTglRetur.SetText(Shown(retur["TglRetur"])); });
        step.Step([&] { txtket.SetText(TextOf(retur["Ket"])); });
        step.Step([&] { Combo1.SetText(TextOf(retur["Ket2"])); });
        ShowSource(step, retur);
        step.Step([&] {
            details.Open("Select KodeBrg, Diskripsi, Qty,Satuan,Harga, Disc,Total, Qty2 From "
                         "InvoiceReturDetail Where ReturID ='" +
                             id + "'",
                         Data(), ado::CursorType::Static);
        });
        if (details.IsOpen()) ShowLines(step, OrderGrid, details, "Diskripsi");
    });
}

void InvoiceRetur::Print() {
    ReportRequest request = ReportOf("\\InvoiceRetur.rpt");
    request.SQLQuery =
        "   SELECT    QryInvoiceRetur.ReturID, QryInvoiceRetur.NoInvoice, QryInvoiceRetur.TglRetur, "
        "QryInvoiceRetur.TglInvoice, QryInvoiceRetur.Netto, QryInvoiceRetur.PPN, QryInvoiceRetur.Total, "
        "   QryInvoiceRetur.KodeCus, QryInvoiceRetur.NamaCus, QryInvoiceRetur.Alamat_1, "
        "QryInvoiceRetur.Alamat_2, QryInvoiceRetur.Alamat_3, QryInvoiceRetur.Kota, QryInvoiceRetur.NamaBrg, "
        "   QryInvoiceRetur.KodeBrg, QryInvoiceRetur.Qty, QryInvoiceRetur.Satuan, QryInvoiceRetur.Harga, "
        "QryInvoiceRetur.Disc, QryInvoiceRetur.Total2, QryInvoiceRetur.Ket2 "
        "   From QryInvoiceRetur  Where QryInvoiceRetur.ReturID ='" +
        Trim(TxtReturID.Text()) + "'   Order By   QryInvoiceRetur.KodeBrg Asc";
    request.SetTitles(1, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2, Sess().CompanyLine3);
    Desk().LaunchReport(request);
}

} // namespace varnik
