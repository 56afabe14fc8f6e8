#pragma once
// The stock reports: balance at present, card of movements in a period, price list. Writes nothing.

#include "reports/ReportDialog.h"

namespace varnik {

class LapPers1 : public ReportDialog {
public:
    explicit LapPers1(Services& services);
    void Load() override;

private:
    void ShowPeriod(bool shown);
    void Print();
    ReportRequest StockCard() const;
    ReportRequest Balance() const;
    ReportRequest PriceList() const;

    forms::OptionButton opLap1{*this, "opLap1", "Inventory Balance"};
    forms::OptionButton opLap2{*this, "opLap2", "Stock Card"};
    forms::OptionButton opLap3{*this, "opLap3", "Price List"};
    forms::Label LblJenis{*this, "LblJenis", "Category"};
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::Label LblDt1{*this, "LblDt1", "From Date"};
    forms::DatePicker DTPicker1{*this, "DTPicker1"};
    forms::Label LblDt2{*this, "LblDt2", "Up To"};
    forms::DatePicker DTPicker2{*this, "DTPicker2"};
    forms::Button OKButton{*this, "OKButton", "Print"};
    forms::Button CancelButton{*this, "CancelButton", "Cancel"};
};

} // namespace varnik
