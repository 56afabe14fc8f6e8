#include "reports/LapPers1.h"

namespace varnik {

LapPers1::LapPers1(Services& services) : ReportDialog(services, "LapPers1", "Inventory") {
    ShowPeriod(false);
    opLap1.onClick = [this] {
        ResetPeriod(DTPicker1, DTPicker2);
        ShowPeriod(false);
    };
    opLap2.onClick = [this] {
        ResetPeriod(DTPicker1, DTPicker2);
        ShowPeriod(true);
    };
    opLap3.onClick = [this] { ShowPeriod(false); };
    Wire(OKButton, CancelButton, [this] { Print(); });
}

void LapPers1::Load() {
    FillFilter(Combo1, "Select KodeJenisProduk, JenisProduk From JenisProduk Order By KodeJenisProduk",
               CodeForm::Plain);
}

void LapPers1::ShowPeriod(bool shown) {
    for (forms::Control* control :
         {static_cast<forms::Control*>(&LblDt1), static_cast<forms::Control*>(&DTPicker1),
          static_cast<forms::Control*>(&LblDt2), static_cast<forms::Control*>(&DTPicker2)})
        control->SetVisible(shown);
}

void LapPers1::Print() {
    if (opLap2.Checked())
        Launch([this] { return StockCard(); });
    else if (opLap1.Checked())
        Launch([this] { return Balance(); });
    else if (opLap3.Checked())
        Launch([this] { return PriceList(); });
}

// Purchases stand in the ledger in the unit they were bought in, all other movements in base units: Masuk is
// what came in in base units.
ReportRequest LapPers1::StockCard() const {
    const Period period = PeriodOf(DTPicker1, DTPicker2);
    ReportRequest request = RequestFor("\\Stok.rpt");
    request.SQLQuery = "SELECT Persediaan.ID, Persediaan.Tanggal, Persediaan.KodeBrg, Persediaan.Memo, "
                       "Persediaan.NamaBrg, Persediaan.JenisBrg, Persediaan.Pecahan, Persediaan.Qty1, "
                       "Persediaan.Qty2, Persediaan.Saldo, "
                       "IIf(Persediaan.NoJurnal = '11', Persediaan.Qty1 * Persediaan.Pecahan, "
                       "Persediaan.Qty1) As Masuk From  Persediaan Persediaan Where Tanggal Between " +
                       period.Bounds();
    request.WindowTitle = request.ReportTitle = "Inventory Book ";
    request.ParameterFields[0] = ParameterText("Judul", "Periode " + period.from + " To " + period.upTo);
    return request;
}

ReportRequest LapPers1::Balance() const {
    constexpr int TypeWidth = 3; // of what was typed, blanks and "/" included: wanted
    std::string filter;
    if (!Trim(Combo1.Text()).empty())
        filter = "Where Produk.JenisBrg = '" + Left(Combo1.Text(), TypeWidth) + "' ";
    ReportRequest request = RequestFor("\\Persediaan.rpt");
    request.SQLQuery =
        "SELECT  Produk.KodeBrg, Produk.NamaBrg, Produk.JenisBrg, Produk.Satuan, Produk.OnHand, "
        "Produk.HPPRata,    JenisProduk.JenisProduk  FROM  Produk Produk LEFT OUTER JOIN JenisProduk "
        "JenisProduk ON     Produk.JenisBrg = JenisProduk.KodeJenisProduk  " +
        filter + "Order By Produk.JenisBrg, Produk.KodeBrg ";
    request.WindowTitle = "Inventory Balance ";
    request.ReportTitle = "Inventory Balance";
    return request;
}

ReportRequest LapPers1::PriceList() const {
    ReportRequest request = RequestFor("\\Persediaan2.rpt");
    request.ReportTitle = "Price List";
    return request;
}

} // namespace varnik
