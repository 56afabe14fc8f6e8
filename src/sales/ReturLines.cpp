// The lines and sums of a return. Here the discount of the entry line is a percentage, in the grid it is an
// amount.

#include "sales/InvoiceRetur.h"

namespace varnik {

namespace {
// Of a percentage: enough that the amount comes back the same.
constexpr std::string_view Percent = "#,##0.########";
} // namespace

void InvoiceRetur::OpenRow() {
    const int row = OrderGrid.Row();
    if (Mode() != document::EntryMode::New || !OrderGrid.IsFilled(row)) return;
    line_.FrameIsiBarang.SetVisible(false);
    const double bruto = Cell(row, 5);
    line_.bttnAddLine.SetCaption("&Edit");
    line_.txtKodeBrg.SetText(OrderGrid.Cell(row, 0));
    line_.TxtDiskripsi.SetText(OrderGrid.Cell(row, 1));
    line_.txtQty.SetText(OrderGrid.Cell(row, 2));
    line_.TxtSatuan.SetText(OrderGrid.Cell(row, 3));
    line_.txtHarga.SetText(OrderGrid.Cell(row, 4));
    line_.TxtDis.SetText(Masked(bruto == 0 ? 0 : Cell(row, 6) / bruto * 100, Percent));
    line_.TxtBru.SetText(OrderGrid.Cell(row, 5));
    line_.TxtHrgTot.SetText(OrderGrid.Cell(row, 7));
    ado::Recordset product;
    const std::string code = Trim(line_.txtKodeBrg.Text());
    line_.Check2.SetChecked(Found(product, "Select * From Produk Where  KodeBrg='" + code + "'") &&
                            Yes(product["Jasa"]));
    line_.FrameIsiBarang.SetVisible(true);
    SetFocus(line_.txtQty);
}

void InvoiceRetur::AmountTyped() {
    if (!line_.IsShown()) return;
    const double bruto = Number(line_.txtQty) * Number(line_.txtHarga);
    line_.TxtBru.SetText(Masked(bruto));
    line_.TxtHrgTot.SetText(Masked(bruto - bruto * document::Rate(Number(line_.TxtDis))));
}

void InvoiceRetur::AddLine() {
    for (forms::TextBox* amount : {&line_.txtQty, &line_.txtHarga, &line_.TxtDis})
        if (!Numeric(amount->Text())) return SetFocus(*amount);
    const double quantity = Number(line_.txtQty), price = Number(line_.txtHarga), bruto = quantity * price;
    const double discount = bruto * document::Rate(Number(line_.TxtDis));
    if (line_.Editing()) {
        const auto set = [&](int column, double amount) {
            OrderGrid.SetCell(OrderGrid.Row(), column, Masked(amount));
        };
        set(2, quantity);
        set(4, price);
        set(5, bruto);
        set(6, discount);
        set(7, bruto - discount);
        line_.bttnAddLine.SetCaption("&Add");
    }
    RecalcTotals();
    CancelLine();
}

void InvoiceRetur::BlankRow() {
    if (!OrderGrid.IsFilled(OrderGrid.Row())) return;
    OrderGrid.Write(OrderGrid.Row(), {"", "", "0", "", "0", "0", "0", "0", "0"});
    RecalcTotals();
}

void InvoiceRetur::CancelLine() {
    line_.ClearLine();
    line_.FrameIsiBarang.SetVisible(false);
    SetFocus(OrderGrid);
}

void InvoiceRetur::RecalcTotals() {
    const double rate = document::Rate(Number(TxtPPN));
    sums_ = {};
    for (int row = 1; row < OrderGrid.Rows(); ++row) {
        sums_.SumBruto += Cell(row, 5);
        sums_.SumDisc += Cell(row, 6);
    }
    // Prices include the tax: it is taken out of the total, never added on.
    sums_.SumTotal = sums_.SumBruto - sums_.SumDisc;
    sums_.SumNetto = sums_.SumTotal / (1 + rate);
    sums_.SumPPN = sums_.SumTotal - sums_.SumNetto;
    sums_.SumSaldo = sums_.SumTotal;
    ShowSums();
}

void InvoiceRetur::ShowSums() {
    boxes_.Show(sums_, [this](double amount) { return Masked(amount); });
}

} // namespace varnik
