#include "document/Totals.h"

namespace varnik::document {

namespace {
constexpr int LargeType = 28;
} // namespace

TotalBoxes::TotalBoxes(forms::Screen& screen, Tax tax)
    : TxtJumBru(screen, "TxtJumBru", "Bruto :"),
      TxtJumDis(screen, "TxtJumDis", "Disc  :"),
      TxtJumNetto(screen, "TxtJumNetto", "Netto   :"),
      txtJumTotal(screen, "txtJumTotal", "Total") {
    if (tax == Tax::Shown) TxtJumPPN.emplace(screen, "TxtJumPPN", "Tax    :");
    for (forms::TextBox* box : All()) MakeAmountBox(*box);
    txtJumTotal.SetFontSize(LargeType);
}

std::vector<forms::TextBox*> TotalBoxes::All() {
    std::vector<forms::TextBox*> boxes{&TxtJumBru, &TxtJumDis, &TxtJumNetto, &txtJumTotal};
    if (TxtJumPPN) boxes.push_back(&*TxtJumPPN);
    return boxes;
}

void TotalBoxes::Show(const Sums& sums, const std::function<std::string(double)>& mask) {
    TxtJumBru.SetText(mask(sums.SumBruto));
    TxtJumDis.SetText(mask(sums.SumDisc));
    TxtJumNetto.SetText(mask(sums.SumNetto));
    if (TxtJumPPN) TxtJumPPN->SetText(mask(sums.SumPPN));
    txtJumTotal.SetText(mask(sums.SumTotal));
}

void TotalBoxes::Clear() {
    for (forms::TextBox* box : All()) box->SetText("0");
}

void MakeAmountBox(forms::TextBox& box) {
    box.SetRightAligned(true);
    box.SetLocked(true);
    box.SetTabStop(false);
}

} // namespace varnik::document
