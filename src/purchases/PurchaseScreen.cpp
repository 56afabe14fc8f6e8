#include "purchases/PurchaseScreen.h"

namespace varnik::purchases {

PurchaseScreen::PurchaseScreen(Services& services, std::string name, std::string caption)
    : DocumentScreen(services, std::move(name), std::move(caption)),
      bttnFirst(*this, "bttnFirst", "|<"),
      bttnPrev(*this, "bttnPrev", "<"),
      bttnNext(*this, "bttnNext", ">"),
      bttnLast(*this, "bttnLast", ">|") {
    FrameBawah.Hold({&bttnFirst, &bttnPrev, &bttnNext, &bttnLast});
    bttnFirst.SetToolTip("First document");
    bttnPrev.SetToolTip("Document before");
    bttnNext.SetToolTip("Document after");
    bttnLast.SetToolTip("Last document");
}

void PurchaseScreen::EnableNavigation(bool enabled) {
    for (forms::Button* button : {&bttnFirst, &bttnPrev, &bttnNext, &bttnLast}) button->SetEnabled(enabled);
}

void PurchaseScreen::ShowSums(document::TotalBoxes& boxes) const {
    boxes.Show({.SumBruto = sums_.JumBruto,
                .SumDisc = sums_.JumDisc,
                .SumNetto = sums_.JumNetto,
                .SumTotal = sums_.JumTotal},
               [this](double amount) { return Masked(amount); });
}

PurchaseLine PurchaseScreen::LineOf(const document::OrderLines& grid, int row) const {
    return {.KodeBrg = grid.Cell(row, Code),
            .Diskripsi = grid.Cell(row, Description),
            .Satuan = grid.Cell(row, Unit),
            .Qty = CellNumber(grid, row, Quantity),
            .Qty2 = CellNumber(grid, row, PerUnit),
            .Harga = CellNumber(grid, row, Price),
            .Disc = CellNumber(grid, row, Discount),
            .Total = CellNumber(grid, row, Net)};
}

bool PurchaseScreen::IsLine(const document::OrderLines& grid, int row) const {
    return Numeric(grid.Cell(row, Quantity)) && Numeric(grid.Cell(row, Price));
}

void PurchaseScreen::RemoveRow(document::OrderLines& grid) {
    if (grid.LastRow() == 1) return grid.ClearGrid();
    grid.RemoveRow(grid.Row());
    if (grid.IsFilled(grid.LastRow())) grid.Grow();
}

} // namespace varnik::purchases
