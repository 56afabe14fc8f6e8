#include "reports/TradeReport.h"

#include <algorithm>

namespace varnik {

TradeReport::TradeReport(Services& services, std::string name, const TradeTable& table)
    : ReportDialog(services, std::move(name), "Reports"), table_(table) {
    LblTipe.SetCaption(table.typesCaption);
    for (std::size_t kind = 0; kind < table.kinds.size(); ++kind) {
        opLap[kind].SetCaption(table.kinds[kind].caption);
        opLap[kind].onClick = [this, kind] { Choose(kind); };
    }
    Frame1.Hold({&opLap[0], &opLap[1], &opLap[2], &opLap[3], &opLap[4]});
    Frame2.Hold({&Option1, &Option2});
    Frame3.Hold({&TxtAdmin, &txtSupervisor, &txtManajer});
    DT1.SetVisible(false);
    ProgressBar1.SetVisible(false);
    Wire(
        OKButton, CancelButton, [this] { Print(); }, Failing::Reported);
}

void TradeReport::Load() {
    DT1.SetDate(Today());
    ResetPeriod(DTPicker1, DTPicker2);
}

void TradeReport::ShowChoices(bool dates, bool summary) {
    for (forms::Control* control :
         std::initializer_list<forms::Control*>{&Label1, &DTPicker1, &Label2, &DTPicker2})
        control->SetVisible(dates);
    Option1.SetVisible(summary);
    Option2.SetVisible(summary);
}

void TradeReport::Choose(std::size_t kind) {
    const TradeKind& row = table_.kinds[kind];
    if (row.list ==
        TradeKind::List::Unchanged) { // takes the list, the label and the dates of the kind before: wanted
        Option2.SetVisible(true);
        LblJenis.SetVisible(true);
        return;
    }
    ShowChoices(kind != Ageing, row.detail != TradeKind::Detail::No);
    if (*row.typeLabel) LblJenis.SetCaption(row.typeLabel);
    if (*row.upToLabel) Label2.SetCaption(row.upToLabel);
    if (row.resetsDates) ResetPeriod(DTPicker1, DTPicker2);
    if (row.clearsFilter) Combo1.SetText("");
    if (row.list == TradeKind::List::Types)
        FillFilter(Combo1, "Select KodeJenisProduk, JenisProduk From JenisProduk Order By KodeJenisProduk",
                   CodeForm::Plain);
    else
        FillFilter(Combo1, table_.parties, CodeForm::Padded);
}

void TradeReport::Print() {
    const auto chosen = std::ranges::find_if(opLap, &forms::OptionButton::Checked);
    if (chosen == std::end(opLap)) return;
    const auto kind = static_cast<std::size_t>(chosen - std::begin(opLap));
    if (kind != Ageing &&
        Backwards(DTPicker1, DTPicker2, "Ending date must have to be more from date of early ..."))
        return;
    Launch([&] { return Request(kind); });
}

std::string TradeReport::Statement(std::size_t kind, bool filtered) const {
    const TradeKind& row = table_.kinds[kind];
    const std::string period = ReplaceText(filtered ? row.filtered : row.statement, "{period}",
                                           PeriodOf(DTPicker1, DTPicker2).Bounds());
    return ReplaceText(period, "{code}", CodeOf(Combo1));
}

ReportRequest TradeReport::Request(std::size_t kind) const {
    const TradeKind& row = table_.kinds[kind];
    ReportRequest request = RequestFor(row.file);
    request.WindowTitle = row.windowTitle;
    request.ReportTitle = row.reportTitle;
    if (kind == Ageing) {
        // What Detail was left at, hidden as it is, decides in the sales report: wanted.
        const bool filtered = table_.ageingByChoice ? !Trim(Combo1.Text()).empty() : Option2.Checked();
        request.SQLQuery = Statement(kind, filtered);
        const CalendarDate today = ToCalendar(Today());
        request.ParameterFields[0] = ParameterText("Judul", row.judul + Upper(MonthName(today.month)) + " " +
                                                                Masked(today.year, "#0"));
        return request;
    }
    request.Connect = Sess().ConnectionString;
    request.SQLQuery = Statement(kind, !Trim(Combo1.Text()).empty());
    const Period period = PeriodOf(DTPicker1, DTPicker2);
    const std::string dates = "Date From " + period.from + " To " + period.upTo;
    request.ParameterFields[0] = ParameterText("Judul", *row.judul ? row.judul : dates);
    if (row.detail == TradeKind::Detail::No) return request;
    request.ParameterFields[1] = ParameterText("SubJudul", dates);
    request.ParameterFields[static_cast<int>(row.detail)] =
        ParameterText("Detail", Option1.Checked() ? "S" : "D");
    return request;
}

} // namespace varnik
