#include "reports/ReportDialog.h"

#include "platform/desktop/Failure.h"
#include "platform/desktop/Hourglass.h"

namespace varnik {

namespace {

constexpr int FirstTitleFormula = 15; // in the definitions of all report dialogs
constexpr int CodeWidth = 10;

} // namespace

void ReportDialog::Wire(forms::Button& ok, forms::Button& cancel, std::function<void()> print,
                        Failing failing) {
    SetDefault(&ok);
    SetCancel(&cancel);
    cancel.onClick = [this] { Close(); };
    ok.onClick = [this, failing, print = std::move(print)] {
        if (failing == Failing::Reported)
            Reported(Desk(), print);
        else
            print();
    };
}

void ReportDialog::FillFilter(forms::ComboBox& combo, const std::string& statement, CodeForm form) {
    ado::Connection connection(services_.data, Sess().ConnectionString);
    std::vector<std::string> items;
    const auto take = [&](const std::vector<Value>& row) {
        const std::string code = TextOf(row[0]);
        items.push_back((form == CodeForm::Padded ? PadRight(Trim(code), CodeWidth) : code) + " / " +
                        TextOf(row[1]));
    };
    ado::ReadRows(
        statement, connection, [](const auto&) {}, take);
    combo.SetItems(std::move(items));
}

std::string ReportDialog::CodeOf(const forms::ComboBox& combo) {
    const int before = InStr(combo.Text(), "/") - 1;
    return Trim(before > 0 ? Left(combo.Text(), before) : combo.Text());
}

void ReportDialog::ResetPeriod(forms::DatePicker& from, forms::DatePicker& upTo) const {
    from.SetDate(AddDays(Today(), 1 - ToCalendar(Today()).day));
    upTo.SetDate(Today());
}

std::string ReportDialog::Period::Bounds() const {
    return "Datevalue('" + from + "') and datevalue('" + upTo + "')";
}

ReportDialog::Period ReportDialog::PeriodOf(const forms::DatePicker& from,
                                            const forms::DatePicker& upTo) const {
    return {SqlDate(from.Date()), SqlDate(upTo.Date())};
}

bool ReportDialog::Backwards(const forms::DatePicker& from, const forms::DatePicker& upTo,
                             const std::string& message) const {
    if (upTo.Date() >= from.Date()) return false;
    Say(message);
    return true;
}

void ReportDialog::Launch(const std::function<ReportRequest()>& build) const {
    const Hourglass hourglass(Desk());
    Desk().LaunchReport(build());
}

ReportRequest ReportDialog::RequestFor(const std::string& file) const {
    ReportRequest request = ReportOf(file);
    request.SetTitles(FirstTitleFormula, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2,
                      Sess().CompanyLine3);
    return request;
}

std::string ReportDialog::ParameterText(const std::string& name, const std::string& value) {
    return name + ";" + value + ";True";
}

} // namespace varnik
