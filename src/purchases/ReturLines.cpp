// The lines of a return. Here the discount is a percentage, never an amount.

#include "purchases/FakturRetur.h"

namespace varnik {

namespace {
constexpr std::string_view Fine = "#,##0.#0";
} // namespace

// Wanted: the field shows the fraction afterwards, which the next change divides once more.
void FakturRetur::QuantityTyped() {
    if (!line_.IsShown()) return;
    const double gross = Number(line_.txtQty) * Number(line_.txtHarga);
    const double rate = document::Rate(Number(line_.TxtDis));
    line_.TxtBru.SetText(Masked(gross));
    line_.TxtDis.SetText(Masked(rate, Fine));
    line_.TxtHrgTot.SetText(Masked(gross - gross * rate));
}

void FakturRetur::OpenRow() {
    const int row = OrderGrid.Row();
    if (Browsing() || !OrderGrid.IsFilled(row)) return;
    line_.FrameIsiBarang.SetVisible(false);
    line_.ClearLine();
    line_.bttnAddLine.SetCaption("&Edit");
    ShowLine(line_, OrderGrid, row);
    ado::Recordset product;
    const std::string code = Trim(line_.txtKodeBrg.Text());
    line_.Check2.SetChecked(Found(product, "Select * From Produk Where KodeBrg='" + code + "'") &&
                            Yes(product["Jasa"]));
    SetFocus(line_.txtQty);
}

// Only the purchase's own goods can be returned: the code must stand in the grid already.
void FakturRetur::AddLine() {
    if (OrderGrid.RowsOf(line_.txtKodeBrg.Text()).empty()) return;
    for (const forms::TextBox* amount : {&line_.txtQty, &line_.txtHarga, &line_.TxtDis})
        if (!Numeric(amount->Text())) return;
    const double quantity = Number(line_.txtQty), price = Number(line_.txtHarga), gross = quantity * price;
    const double rate = document::Rate(Number(line_.TxtDis));
    if (line_.Editing()) {
        const auto set = [&](int column, std::string text) {
            OrderGrid.SetCell(OrderGrid.Row(), column, std::move(text));
        };
        set(purchases::Quantity, Shown(quantity));
        set(purchases::Price, Masked(price, Fine));
        set(purchases::Gross, Masked(gross, Fine));
        set(purchases::Discount, Shown(rate * 100));
        set(purchases::Net, Masked(gross - gross * rate, Fine));
        line_.bttnAddLine.SetCaption("&Add");
    }
    RecalcTotals();
    CancelLine();
}

// Wanted: a row as it came from the purchase holds its discount as an amount, and is read as a percentage
// all the same as soon as any line is changed.
void FakturRetur::RecalcTotals() {
    sums_.JumBruto = sums_.JumDisc = sums_.JumNetto = 0;
    for (int row = 1; row < OrderGrid.Rows(); ++row) {
        if (Trim(OrderGrid.Cell(row, purchases::Gross)).empty()) continue;
        const double gross = CellNumber(OrderGrid, row, purchases::Gross);
        const double discount = CellNumber(OrderGrid, row, purchases::Discount) / 100 * gross;
        sums_.JumBruto += gross;
        sums_.JumDisc += discount;
        sums_.JumNetto += gross - discount;
    }
    sums_.JumTotal = sums_.JumNetto;
    sums_.JumSaldo = sums_.JumTotal - sums_.JumBayar;
    ShowSums();
}

} // namespace varnik
