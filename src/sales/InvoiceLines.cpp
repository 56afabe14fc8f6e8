// The entry line, the grid and the sums of the invoice. The grid's texts are what is saved: its masks round
// every amount to a whole number.

#include "sales/Invoice.h"

namespace varnik {

namespace {
constexpr std::string_view Fine = "#,##0.#0";
} // namespace

// ---- The product ----

void Invoice::CodeTyped() {
    if (Browsing()) return;
    ado::Recordset product;
    const std::string code = Trim(line_.txtKodeBrg.Text());
    if (code.empty() || !Found(product, "Select * From Produk Where  KodeBrg='" + code + "'")) return;
    ShowProduct(product);
    SetFocus(line_.txtQty);
    codeHit_ = Focused() == &line_.txtQty;
}

void Invoice::CodeLeft() {
    if (Browsing() || GridCari.Visible()) return;
    // A blank code is nothing to look for when the person has gone to another field.
    const bool blank = Trim(line_.txtKodeBrg.Text()).empty();
    if (blank && !MovingOn()) return;
    if (!ChooseProduct()) {
        if (bttnSearch.IsShown()) SetFocus(bttnSearch);
    } else if (MovingOn())
        SetFocus(line_.txtQty);
}

bool Invoice::ChooseProduct() {
    ado::Recordset product;
    const std::string code = Trim(line_.txtKodeBrg.Text());
    if (!Found(product, "Select * From Produk Where  KodeBrg='" + code + "'")) return false;
    ShowProduct(product);
    return true;
}

void Invoice::ShowProduct(ado::Recordset& product) {
    const std::string price = Mask(Number(product["HargaJual"].Value()));
    line_.TxtDiskripsi.SetText(Trim(TextOf(product["NamaBrg"])));
    line_.TxtSatuan.SetText(TextOf(product["SatuanJual"]));
    line_.txtHarga.SetText(price);
    if (!line_.Editing()) {
        line_.txtQty.SetText("1");
        line_.TxtBru.SetText(price);
        line_.TxtHrgTot.SetText(price);
        line_.TxtDis.SetText("0");
    }
    line_.Check2.SetChecked(Yes(product["Jasa"]));
    // Wanted: the prices of the units are kept and read by nothing. Choosing another unit changes no price.
    units_.Read(product, "Jual", "Beli", services_.regional);
    line_.TxtSatuan.SetItems(units_.Offered());
    line_.TxtSatuan.SetText(TextOf(product["SatuanJual"]));
}

// ---- Amounts while typing: a percentage of discount survives a change of quantity or price ----

void Invoice::QuantityTyped() {
    if (!line_.IsShown()) return;
    double rate = 0;
    if (Number(line_.TxtDis) > 0 && Number(line_.TxtBru) > 0)
        rate = Number(line_.TxtDis) / Number(line_.TxtBru) * 100;
    ShowAmounts(rate);
}

void Invoice::PriceTyped() {
    if (!line_.IsShown()) return;
    double rate = 0;
    // Wanted: nothing tests the bruto here; a division by zero is passed over.
    if (Number(line_.TxtDis) > 0)
        Resume([&] { rate = ado::Divide(Number(line_.TxtDis), Number(line_.TxtBru)) * 100; });
    if (rate < 0) return;
    ShowAmounts(rate);
}

void Invoice::ShowAmounts(double rate) {
    line_.TxtBru.SetText(Mask(Number(line_.txtQty) * Number(line_.txtHarga)));
    line_.TxtDis.SetText(Masked(rate / 100 * Number(line_.TxtBru), Fine));
    line_.TxtHrgTot.SetText(Mask(Number(line_.TxtBru) - Number(line_.TxtDis)));
}

void Invoice::DiscountTyped() {
    if (!line_.IsShown()) return;
    line_.TxtBru.SetText(Mask(Number(line_.txtQty) * Number(line_.txtHarga)));
    line_.TxtHrgTot.SetText(Mask(Number(line_.TxtBru) - Number(line_.TxtDis)));
}

void Invoice::DiscountLeft() {
    if (!line_.IsShown()) return;
    const double typed = Number(line_.TxtDis);
    const double bruto = Number(line_.TxtBru);
    const double amount = typed < 100 ? typed * bruto / 100 : typed;
    line_.TxtDis.SetText(Masked(amount, Fine));
    line_.TxtHrgTot.SetText(Mask(bruto - amount));
}

// ---- The grid ----

void Invoice::AddLine() {
    units_.Match(line_.TxtSatuan.Text());
    if (!Numeric(line_.txtQty.Text())) return SetFocus(line_.txtQty);
    if (!Numeric(line_.txtHarga.Text())) return SetFocus(line_.txtHarga);
    const double quantity = Number(line_.txtQty);
    const double price = Number(line_.txtHarga);
    const double bruto = quantity * price;
    const double typed = Number(line_.TxtDis);
    // Wanted: the field holds an amount by now, and one under 100 is taken for a percentage once more.
    const double discount = typed <= 0 || typed >= 100 ? typed : typed / 100 * bruto;
    const double netto = bruto - discount;
    if (!units_.UnitFound) return SetFocus(line_.TxtSatuan);

    const std::vector<std::string> cells{
        line_.txtKodeBrg.Text(),
        line_.TxtDiskripsi.Text(),
        Mask(quantity),
        line_.TxtSatuan.Text(),
        Mask(price),
        Mask(bruto),
        Mask(discount),
        Mask(netto),
        Shown(units_.UnitPecahan[static_cast<std::size_t>(units_.UnitIndex)]),
    };
    bool doubleEntry = false;
    if (line_.Editing()) {
        OrderGrid.Write(OrderGrid.Row(), cells);
        line_.ClearLine();
        line_.bttnAddLine.SetCaption("&Add");
    } else {
        if (!FindDoubleEntry(doubleEntry)) return;
        if (doubleEntry) {
            const int row = OrderGrid.Row();
            const auto raise = [&](int column, double by) {
                OrderGrid.SetCell(row, column, Mask(Cell(row, column) + by));
            };
            raise(2, quantity);
            raise(4, price); // wanted: the prices add up too
            raise(5, bruto);
            raise(6, discount);
            raise(7, netto);
        } else {
            OrderGrid.Write(OrderGrid.LastRow(), cells);
            OrderGrid.Grow();
        }
        line_.ClearLine();
    }
    RecalcTotals();
    CancelLine();
}

// Whether the code stands in the grid already and is to be added to that row, which is made the current
// one. False when the answer is No: the line stays as it was typed.
bool Invoice::FindDoubleEntry(bool& doubleEntry) {
    int target = 0;
    for (const int row : OrderGrid.RowsOf(line_.txtKodeBrg.Text())) {
        if (!Ask("This product always on table ," + std::string(CrLf) + "Added again?", "Double"))
            return false;
        target = row;
    }
    doubleEntry = target > 0;
    if (doubleEntry) OrderGrid.SetRow(target);
    return true;
}

void Invoice::TakeLineBack() {
    const int row = OrderGrid.Row();
    if (Browsing() || row < 1 || OrderGrid.Cell(row, 0) == "ID") return;
    line_.bttnAddLine.SetCaption(OrderGrid.IsFilled(row) ? "&Edit" : "&Add");
    line_.txtKodeBrg.SetText(OrderGrid.Cell(row, 0));
    line_.TxtDiskripsi.SetText(OrderGrid.Cell(row, 1));
    line_.txtQty.SetText(Mask(Cell(row, 2)));
    line_.TxtSatuan.SetText(OrderGrid.Cell(row, 3));
    line_.txtHarga.SetText(Mask(Cell(row, 4)));
    line_.TxtBru.SetText(Mask(Cell(row, 5)));
    line_.TxtDis.SetText(Masked(Cell(row, 6), Fine));
    line_.TxtHrgTot.SetText(Mask(Cell(row, 7)));
    line_.FrameIsiBarang.SetVisible(true);
    SetFocus(line_.txtKodeBrg);
}

void Invoice::OpenEmptyLine() {
    line_.ClearLine();
    line_.bttnAddLine.SetCaption("&Add");
    line_.FrameIsiBarang.SetVisible(true);
}

void Invoice::CancelLine() {
    line_.ClearLine();
    line_.FrameIsiBarang.SetVisible(false);
    OrderGrid.SetRow(OrderGrid.LastRow());
    SetFocus(OrderGrid);
}

// Wanted: the row stays, its zeros count as a line at posting, and the sums are left as they are.
void Invoice::BlankRow() {
    if (OrderGrid.Row() > 0) OrderGrid.Write(OrderGrid.Row(), {"", "", "0", "", "0", "0", "0", "0", "0"});
}

// ---- The sums ----

void Invoice::RecalcTotals() {
    const double rate = document::Rate(Number(TxtPPN));
    sums_.SumBruto = sums_.SumDisc = sums_.SumNetto = sums_.SumPPN = sums_.SumTotal = 0;
    for (int row = 1; row < OrderGrid.Rows(); ++row) {
        const double bruto = Cell(row, 5), discount = Cell(row, 6);
        if (bruto == 0) continue;
        sums_.SumBruto += bruto;
        sums_.SumDisc += discount;
        sums_.SumNetto += bruto - discount;
    }
    // Prices include the tax: it is taken out of the total, never added on.
    sums_.SumTotal = sums_.SumNetto;
    sums_.SumNetto = sums_.SumTotal / (1 + rate);
    sums_.SumPPN = sums_.SumTotal - sums_.SumNetto;
    sums_.SumSaldo = sums_.SumTotal - sums_.SumBayar;
    ShowSums();
    TxtSaldo.SetText(Mask(sums_.SumTotal));
}

void Invoice::RecalcFromGrid() {
    const double rate = document::Rate(Number(TxtPPN));
    sums_ = {};
    for (int row = 1; row < OrderGrid.Rows(); ++row) {
        const double bruto = Cell(row, 5);
        if (bruto == 0) continue;
        // Wanted: the column holds an amount and is divided by 100 twice, so that discounts all but vanish
        // from the netto and the sums.
        const double discount = bruto * (document::Rate(Cell(row, 6)) / 100);
        const double netto = bruto - discount;
        const double base = netto / (1 + rate);
        sums_.SumBruto += bruto;
        sums_.SumDisc += discount;
        sums_.SumNetto += base;
        sums_.SumPPN += netto - base;
        sums_.SumTotal += netto;
        OrderGrid.SetCell(row, 5, Mask(bruto));
        OrderGrid.SetCell(row, 7, Mask(netto));
    }
    sums_.SumSaldo = sums_.SumTotal - sums_.SumBayar;
    ShowSums();
}

void Invoice::ShowSums() {
    boxes_.Show(sums_, [this](double amount) { return Mask(amount); });
}

} // namespace varnik
