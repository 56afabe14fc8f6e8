#pragma once
// The sums of a document of goods, and the boxes that show them.

#include "platform/forms/Controls.h"

#include <functional>
#include <optional>
#include <vector>

namespace varnik::document {

// Amounts in the shop's currency. Prices include the tax: SumTotal is the sum of the lines, SumNetto and
// SumPPN are its two parts.
struct Sums {
    double SumBruto = 0, SumDisc = 0, SumNetto = 0, SumPPN = 0, SumTotal = 0, SumBayar = 0, SumSaldo = 0;
};

// A tax or discount as it is typed ("10") as a factor (0.1); 0 and below stay as they are.
inline double Rate(double typed) { return typed > 0 ? typed / 100 : typed; }

enum class Tax { Shown, None };

struct TotalBoxes {
    explicit TotalBoxes(forms::Screen& screen, Tax tax = Tax::Shown);

    // Shows the five sums; `mask` turns an amount into its text.
    void Show(const Sums& sums, const std::function<std::string(double)>& mask);
    void Clear();

    forms::TextBox TxtJumBru, TxtJumDis, TxtJumNetto;
    std::optional<forms::TextBox> TxtJumPPN; // where the document carries a tax
    forms::TextBox txtJumTotal;

private:
    std::vector<forms::TextBox*> All();
};

// A box that shows an amount and takes no typing.
void MakeAmountBox(forms::TextBox& box);

} // namespace varnik::document
