#include "reports/LapBiaya1.h"

namespace varnik {

LapBiaya1::LapBiaya1(Services& services) : ReportDialog(services, "LapBiaya1", "Cost History") {
    Wire(OKButton, CancelButton, [this] { Print(); });
}

void LapBiaya1::Load() {
    FillFilter(Combo1, "Select KodeJenisBiaya, JenisBiaya From JenisBiaya Order By KodeJenisBiaya",
               CodeForm::Plain);
    ResetPeriod(DTPicker1, DTPicker2);
}

void LapBiaya1::Print() {
    if (Backwards(DTPicker1, DTPicker2, "Date of final have to be more  big the than the date of early ..."))
        return;
    Launch([this] {
        const Period period = PeriodOf(DTPicker1, DTPicker2);
        std::string statement =
            " SELECT   QryBKKUNION.NoBKK , QryBKKUNION.TglBKK, QryBKKUNION.Penerima, QryBKKUNION.KodeBiaya, "
            "QryBKKUNION.JumlahBiaya, QryBKKUNION.Diskripsi, QryBKKUNION.KodeJenisBiaya, "
            "QryBKKUNION.JenisBiaya  From   QryBKKUNION QryBKKUNION Where ";
        if (Trim(Combo1.Text()).empty())
            statement += "  TglBKK between ";
        else
            statement += "KodeJenisBiaya = '" + CodeOf(Combo1) + "'  and TglBKK between ";

        // Without a choice the summary is printed.
        ReportRequest request = RequestFor(Option2.Checked() ? "\\LapBKK1.rpt" : "\\LapBKK2.rpt");
        request.Connect = Sess().ConnectionString;
        request.SQLQuery = statement + period.Bounds();
        request.WindowTitle = "Cost Report(Per Jenis) ";
        request.ReportTitle = "Cost Report(Per Jenis ";
        request.ParameterFields[0] = ParameterText("Judul", "Periode " + period.from + " To " + period.upTo);
        return request;
    });
}

} // namespace varnik
