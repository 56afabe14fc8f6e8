#pragma once
// Sales and purchases reports are one dialog: five kinds, a filter, a period, summary or detail. What tells
// the twins apart stands in a table each, the statements word for word.

#include "reports/ReportDialog.h"

#include <array>

namespace varnik {

// What one kind of report prints.
struct TradeKind {
    const char* caption; // of its option
    const char* file;
    const char* windowTitle;
    const char* reportTitle;
    // In the statements {code} stands for what is chosen, {period} for the bounds of the period.
    const char* statement; // without a filter
    const char* filtered;
    const char* judul = "";     // "" gives the period's text
    const char* typeLabel = ""; // what a click on the option writes over the filter; "" leaves it
    enum class List { Parties, Types, Unchanged } list = List::Parties;
    enum class Detail { No, Second = 2, Third = 3 } detail = Detail::No; // index of the parameter
    bool clearsFilter = false;
    bool resetsDates = false;
    const char* upToLabel = ""; // the same for the caption of the second date
};

struct TradeTable {
    const char* typesCaption;
    const char* parties; // statement of the list of customers or suppliers
    // Whether an ageing report is filtered as soon as something is chosen; otherwise Detail says so.
    bool ageingByChoice;
    std::array<TradeKind, 5> kinds;
};

class TradeReport : public ReportDialog {
public:
    TradeReport(Services& services, std::string name, const TradeTable& table);
    void Load() override;

    forms::Label LblTipe{*this, "LblTipe"};
    forms::Frame Frame1{*this, "Frame1"};
    forms::OptionButton opLap[5] = {
        {*this, "opLap1"}, {*this, "opLap2"}, {*this, "opLap3"}, {*this, "opLap4"}, {*this, "opLap5"}};
    forms::Label LblJenis{*this, "LblJenis", "Customer"};
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::Label Label1{*this, "Label1", "From Date"};
    forms::DatePicker DTPicker1{*this, "DTPicker1"};
    forms::Label Label2{*this, "Label2", "Up To"};
    forms::DatePicker DTPicker2{*this, "DTPicker2"};
    forms::Frame Frame2{*this, "Frame2"};
    forms::OptionButton Option1{*this, "Option1", "Summary"};
    forms::OptionButton Option2{*this, "Option2", "Detail"};
    // A date and a bar that nothing reads or drives, out of sight: wanted.
    forms::DatePicker DT1{*this, "DT1", "Date"};
    forms::Image ProgressBar1{*this, "ProgressBar1"};
    // Names that no report prints: wanted.
    forms::Frame Frame3{*this, "Frame3", "Approved By"};
    forms::TextBox TxtAdmin{*this, "TxtAdmin", "Administration"};
    forms::TextBox txtSupervisor{*this, "txtSupervisor", "Supervisor"};
    forms::TextBox txtManajer{*this, "txtManajer", "Manajer"};
    forms::Button OKButton{*this, "OKButton", "Print"};
    forms::Button CancelButton{*this, "CancelButton", "Cancel"};

private:
    static constexpr std::size_t Ageing = 0; // the kind that knows no period
    void Choose(std::size_t kind);
    void ShowChoices(bool dates, bool summary);
    void Print();
    ReportRequest Request(std::size_t kind) const;
    std::string Statement(std::size_t kind, bool filtered) const;

    const TradeTable& table_;
};

} // namespace varnik
