#include "document/Totals.h"

namespace varnik::document {

namespace {
constexpr int LargeType = 28;
} // namespace

TotalBoxes::TotalBoxes(forms::Screen& screen)
    : TxtJumBru(screen, "TxtJumBru", "Bruto :"),
      TxtJumDis(screen, "TxtJumDis", "Disc  :"),
      TxtJumNetto(screen, "TxtJumNetto", "Netto   :"),
      TxtJumPPN(screen, "TxtJumPPN", "Tax    :"),
      txtJumTotal(screen, "txtJumTotal", "Total") {
    for (forms::TextBox* box : {&TxtJumBru, &TxtJumDis, &TxtJumNetto, &TxtJumPPN, &txtJumTotal})
        MakeAmountBox(*box);
    txtJumTotal.SetFontSize(LargeType);
}

void TotalBoxes::Show(const Sums& sums, const std::function<std::string(double)>& mask) {
    TxtJumBru.SetText(mask(sums.SumBruto));
    TxtJumDis.SetText(mask(sums.SumDisc));
    TxtJumNetto.SetText(mask(sums.SumNetto));
    TxtJumPPN.SetText(mask(sums.SumPPN));
    txtJumTotal.SetText(mask(sums.SumTotal));
}

void TotalBoxes::Clear() {
    for (forms::TextBox* box : {&TxtJumBru, &TxtJumDis, &TxtJumNetto, &TxtJumPPN, &txtJumTotal})
        box->SetText("0");
}

void MakeAmountBox(forms::TextBox& box) {
    box.SetRightAligned(true);
    box.SetLocked(true);
    box.SetTabStop(false);
}

} // namespace varnik::document
