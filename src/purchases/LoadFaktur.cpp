// A posted purchase on the screen, and on paper.

#include "purchases/Faktur.h"

namespace varnik {

void Faktur::LoadFaktur(const std::string& number) {
    const document::Hourglass hourglass(Desk());
    sums_ = {};
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        ado::Recordset purchase, supplier, lines;
        bool found = false;
        step.Step([&] { purchase.Open("Select * From Faktur Where NoFaktur = '" + number + "'", Data()); });
        step.Step([&] { found = !purchase.Empty(); });
        if (!found) return ClearFaktur();
        ShowHeader(step, purchase);
        step.Step([&] {
            supplier.Open("Select * From Supplier Where KodeSup = '" + supplier_.TxtKodeSup.Text() + "'",
                          Data());
        });
        supplier_.ClearName();
        step.Step([&] {
            if (supplier.Empty()) return;
            const auto text = [&](const char* column) { return TextOf(supplier[column]); };
            supplier_.TxtAlamat1.SetText(text("Alamat_1") + " " + text("Alamat_2") + " " + text("Alamat_3"));
            supplier_.TxtAlamat2.SetText(text("Kota"));
            supplier_.TxtAlamat3.SetText(text("Telp"));
            supplier_.TxtNamaSup.SetText(text("NamaSup"));
        });
        ClearOrderGrid();
        // Wanted: this query tells quantities in base units and divides the price by them, so that a
        // loaded purchase does not read as it was entered.
        step.Step([&] {
            lines.Open("Select * From QryPembelianDetail Where NoFaktur = '" + number + "'", Data());
        });
        if (lines.IsOpen()) ShowLines(step, OrderGrid, lines, "NamaBrg");
    });
}

// Wanted: the date is not read; the date box keeps what it showed.
void Faktur::ShowHeader(Guard& step, ado::Recordset& purchase) {
    const auto amount = [&](const char* column) { return Amount(purchase, column); };
    step.Step([&] { TxtNoFaktur.SetText(TextOf(purchase["NoFaktur"])); });
    step.Step([&] { txtFaksup.SetText(TextOf(purchase["NoFakSup"])); });
    step.Step([&] { TxtJTP.SetText(Shown(purchase["TglJTP"])); });
    step.Step([&] { supplier_.TxtKodeSup.SetText(TextOf(purchase["KodeSup"])); });
    step.Step([&] { supplier_.txtket.SetText(TextOf(purchase["Ket"])); });
    step.Step([&] {
        sums_ = {.JumBruto = amount("Bruto"),
                 .JumDisc = amount("Disc"),
                 .JumNetto = amount("Netto"),
                 .JumTotal = amount("Total"),
                 .JumBayar = amount("Bayar"),
                 .JumSaldo = amount("Saldo")};
    });
    ShowSums();
    boxes_.txtJumTotal.SetText(Masked(sums_.JumNetto));
}

void Faktur::Print() {
    const document::Hourglass hourglass(Desk());
    ReportRequest request = ReportOf("\\PO.rpt");
    request.SQLQuery = " SELECT  NoFaktur, NoFakSup, TglFaktur, TglJtp, Netto, KodeBrg, Qty, Satuan, Harga, "
                       "Total,NamaSup, Alamat_1, Alamat_2, Alamat_3, Kota,    NamaBrg FROM QryPO Where "
                       "Nofaktur = '" +
                       Trim(TxtNoFaktur.Text()) + "'";
    request.SetTitles(1, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2, Sess().CompanyLine3);
    Desk().LaunchReport(request);
}

} // namespace varnik
