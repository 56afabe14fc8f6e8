// A posted invoice on the screen, and on paper.

#include "sales/Invoice.h"
#include "sales/InvoiceRows.h"

namespace varnik {

void Invoice::LoadInvoice(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Connection connection(services_.data);
        ado::Recordset invoice, details;
        bool found = false;
        step.Step([&] { connection.Open(Sess().ConnectionString); });
        step.Step([&] { invoice.Open(InvoiceHeaderOf(number), connection, ado::CursorType::Static); });
        // An invoice whose customer is gone is not found, and the screen stays as it is.
        step.Step([&] { found = invoice.IsOpen() && !invoice.Empty(); });
        if (!found) return;
        ShowHeader(step, invoice);
        step.Step([&] { details.Open(InvoiceLinesOf(number), connection, ado::CursorType::Static); });
        if (details.IsOpen()) ShowLines(step, OrderGrid, details, "Diskripsi");
    });
}

void Invoice::ShowHeader(Guard& step, ado::Recordset& invoice) {
    const auto amount = [&](const char* column) { return Number(invoice[column].Value()); };
    const auto date = [&](const char* column) { return Shown(invoice[column].Value()); };
    step.Step([&] { ClearInvoice(); });
    step.Step([&] { TxtNoInvoice.SetText(TextOf(invoice["NoInvoice"])); });
    step.Step([&] { TxtTglInvoice.SetDate(invoice["TglInvoice"].Value().Date()); });
    step.Step([&] { TxtJTP.SetText(date("TglJTP")); });
    step.Step([&] { txtCusPO.SetText(TextOf(invoice["CusPo"])); });
    step.Step([&] { TxtKodeCus.SetText(TextOf(invoice["KodeCus"])); });
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
    boxes_.txtJumTotal.SetText(Mask(sums_.SumNetto + sums_.SumPPN));
    TxtSaldo.SetText(Mask(sums_.SumSaldo));
    step.Step([&] { TxtNamaCus.SetText(TextOf(invoice["NamaCus"])); });
    step.Step([&] { TxtAlamat1.SetText(TextOf(invoice["Alamat_1"])); });
    step.Step([&] { TxtAlamat2.SetText(TextOf(invoice["Alamat_2"])); });
    step.Step([&] { TxtAlamat3.SetText(TextOf(invoice["Alamat_3"])); });
}

void Invoice::Print() {
    const document::Hourglass hourglass(Desk());
    const document::Resting resting(*this, bttnPrint);
    Reported(Desk(), [&] {
        ReportRequest request = ReportOf("\\Invoice.rpt");
        request.SQLQuery =
            "   SELECT    QryInvoice.NoInvoice, QryInvoice.CusPO, QryInvoice.TglInvoice, QryInvoice.TglJtp, "
            "QryInvoice.Netto, QryInvoice.PPN, QryInvoice.Total, QryInvoice.Terbilang,"
            "   QryInvoice.KodeCus, QryInvoice.NamaCus, QryInvoice.Alamat_1, QryInvoice.Alamat_2, "
            "QryInvoice.Alamat_3, QryInvoice.Kota, QryInvoice.NamaBrg, "
            "   QryInvoice.KodeBrg, QryInvoice.Qty, QryInvoice.Satuan, QryInvoice.Harga, QryInvoice.Disc, "
            "QryInvoice.Total2 "
            "   From QryInvoice  Where QryInvoice.NoInvoice ='" +
            Trim(TxtNoInvoice.Text()) + "'   Order By   QryInvoice.KodeBrg Asc";
        request.SetTitles(0, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2,
                          Sess().CompanyLine3);
        request.WindowTitle = "Print Invoice";
        Desk().LaunchReport(request);
    });
}

} // namespace varnik
