#pragma once
// What was paid under the cost items in a period: other payments, and supplier payments as a type of their
// own. Writes nothing.

#include "reports/ReportDialog.h"

namespace varnik {

class LapBiaya1 : public ReportDialog {
public:
    explicit LapBiaya1(Services& services);
    void Load() override;

private:
    void Print();

    forms::Label LblJenis{*this, "LblJenis", "Category"};
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::OptionButton Option1{*this, "Option1", "Summary"};
    forms::OptionButton Option2{*this, "Option2", "Detail"};
    forms::DatePicker DTPicker1{*this, "DTPicker1", "From Date"};
    forms::DatePicker DTPicker2{*this, "DTPicker2", "Up To"};
    forms::Button OKButton{*this, "OKButton", "Print"};
    forms::Button CancelButton{*this, "CancelButton", "Cancel"};
};

} // namespace varnik
