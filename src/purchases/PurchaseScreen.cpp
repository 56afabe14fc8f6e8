#include "purchases/PurchaseScreen.h"

namespace varnik::purchases {

PurchaseScreen::PurchaseScreen(Services& services, std::string name, std::string caption)
    : DocumentScreen(services, std::move(name), std::move(caption)), navigation_(*this, FrameBawah) {}

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

void PurchaseScreen::ShowLine(document::EntryLine& line, const document::OrderLines& grid, int row) const {
    const auto fine = [&](int column) { return Masked(CellNumber(grid, row, column), "#,##0.#0"); };
    line.txtKodeBrg.SetText(grid.Cell(row, Code));
    line.TxtDiskripsi.SetText(grid.Cell(row, Description));
    line.txtQty.SetText(fine(Quantity));
    line.TxtSatuan.SetText(grid.Cell(row, Unit));
    line.txtHarga.SetText(fine(Price));
    line.TxtBru.SetText(fine(Gross));
    line.TxtDis.SetText(fine(Discount));
    line.TxtHrgTot.SetText(fine(Net));
    line.FrameIsiBarang.SetVisible(true);
}

void PurchaseScreen::CancelLine(document::EntryLine& line, document::OrderLines& grid) {
    line.ClearLine();
    line.FrameIsiBarang.SetVisible(false);
    SetFocus(grid);
}

void PurchaseScreen::Guarded(const std::function<void(Guard&)>& routine) const {
    Guard guard(Desk(), "");
    guard.ShowDescriptionAlone();
    guard.Run(routine);
}

stock::Movement PurchaseScreen::MovementOf(Guard& step, ado::Recordset& product,
                                           const PurchaseLine& line) const {
    stock::Movement row;
    row.goods = {line.KodeBrg, line.Diskripsi, {}, line.Satuan, line.Qty2};
    step.Step([&] { row.goods.JenisBrg = product["JenisBrg"]; });
    step.Step([&] { row.Saldo = Amount(product, "OnHand"); });
    return row;
}

} // namespace varnik::purchases
