// The entry line, the grid and the sums of the purchase. The grid's texts are what is saved: its masks round
// every amount to a whole number, and so does the price of the saved line lose its fraction.

#include "purchases/Faktur.h"

namespace varnik {

namespace {
constexpr std::string_view Fine = "#,##0.#0";
} // namespace

// ---- The product ----

void Faktur::CodeLeft() {
    if (Browsing() || GridCari.Visible()) return;
    // A blank code is nothing to look for when the person has gone to another field.
    if (Trim(line_.txtKodeBrg.Text()).empty() && !MovingOn()) return;
    if (!ChooseProduct())
        SetFocus(bttnSearchProduct);
    else if (MovingOn())
        SetFocus(line_.txtQty);
}

bool Faktur::ChooseProduct() {
    ado::Recordset product;
    const std::string code = Trim(line_.txtKodeBrg.Text());
    if (!Found(product, "Select * From Produk Where KodeBrg='" + code + "'")) return false;
    ShowProduct(product);
    return true;
}

void Faktur::ShowProduct(ado::Recordset& product) {
    const double price = Amount(product, "HargaBeli");
    line_.txtKodeBrg.SetText(TextOf(product["KodeBrg"]));
    line_.TxtDiskripsi.SetText(Trim(TextOf(product["NamaBrg"])));
    line_.txtHarga.SetText(line_.Editing() ? Shown(price) : Masked(price, Fine));
    if (!line_.Editing()) {
        line_.txtQty.SetText("1");
        line_.TxtBru.SetText(Shown(price));
        line_.TxtDis.SetText("0");
        line_.TxtHrgTot.SetText(Shown(price));
    }
    line_.Check2.SetChecked(Yes(product["Jasa"]));
    units_.Read(product, "Beli", "Jual", services_.regional);
    line_.TxtSatuan.SetItems(units_.Offered());
    line_.TxtSatuan.SetText(TextOf(product["SatuanBeli"]));
}

// A price that the user has typed is never replaced.
void Faktur::UnitLeft() {
    const std::string unit = Upper(Trim(line_.TxtSatuan.Text()));
    for (std::size_t i = 1; i <= 3; ++i) {
        const bool priced = Numeric(line_.txtHarga.Text()) && Number(line_.txtHarga) != 0;
        if (!priced && Upper(Trim(units_.UnitName[i])) == unit)
            line_.txtHarga.SetText(Shown(units_.UnitPrice[i] * units_.UnitPecahan[i]));
    }
}

// ---- Amounts ----

namespace {

// Below 100 the discount is a percentage, from 100 up an amount of money. Wanted: once the field was left it
// holds money, and an amount under 100 is taken for a percentage by whoever reads it next.
double DiscountOf(double typed, double gross) { return typed < 100 ? typed / 100 * gross : typed; }

} // namespace

void Faktur::ShowAmounts(std::string_view grossMask) {
    if (Browsing()) return;
    double gross = Number(line_.txtQty) * Number(line_.txtHarga);
    if (!grossMask.empty()) gross = Number(Masked(gross, grossMask));
    const double discount = DiscountOf(Number(line_.TxtDis), gross);
    line_.TxtBru.SetText(Masked(gross, Fine));
    line_.TxtDis.SetText(Masked(discount, Fine));
    line_.TxtHrgTot.SetText(Masked(gross - discount, Fine));
}

bool Faktur::LineIsSound() {
    units_.Match(line_.TxtSatuan.Text());
    const auto sound = [this](bool good, const char* message, forms::Control& field) {
        if (good) return true;
        Say(message);
        SetFocus(field);
        return false;
    };
    return sound(units_.UnitFound, "Enter purchases unit, please ....", line_.TxtSatuan) &&
           sound(Numeric(line_.txtQty.Text()), "Enter  quantity of item with number,please...",
                 line_.txtQty) &&
           sound(Numeric(line_.txtHarga.Text()), "Enter  buying price of item with number,please....",
                 line_.txtHarga) &&
           sound(Numeric(line_.TxtDis.Text()), "Enter  discount with number,please...", line_.TxtDis);
}

// ---- The grid ----

void Faktur::AddLine() {
    if (!LineIsSound()) return;
    const double quantity = Number(line_.txtQty), price = Number(line_.txtHarga), gross = quantity * price;
    const double discount = DiscountOf(Number(line_.TxtDis), gross);
    if (!line_.Editing())
        for ([[maybe_unused]] const int row : OrderGrid.RowsOf(line_.txtKodeBrg.Text()))
            if (!Ask("This product have in tables" + std::string(CrLf) +
                         "Enter  the tables with this product again ?",
                     "Double"))
                return;
    OrderGrid.Write(line_.Editing() ? OrderGrid.Row() : OrderGrid.LastRow(),
                    {line_.txtKodeBrg.Text(), line_.TxtDiskripsi.Text(), Shown(quantity),
                     line_.TxtSatuan.Text(), Masked(price), Masked(gross), Masked(discount),
                     Masked(gross - discount),
                     Shown(units_.UnitPecahan[static_cast<std::size_t>(units_.UnitIndex)])});
    if (line_.Editing())
        line_.bttnAddLine.SetCaption("&Add");
    else
        OrderGrid.Grow();
    RecalcTotals();
    OrderGrid.SetRow(OrderGrid.LastRow());
    CancelLine();
}

void Faktur::OpenRow() {
    const int row = OrderGrid.Row();
    if (Browsing() || row < 1) return;
    line_.ClearLine();
    if (OrderGrid.Cell(row, purchases::Code) == "ID") return;
    line_.bttnAddLine.SetCaption(OrderGrid.IsFilled(row) ? "&Edit" : "&Add");
    ShowLine(line_, OrderGrid, row);
    SetFocus(line_.txtKodeBrg);
}

void Faktur::RecalcTotals() {
    sums_.JumBruto = sums_.JumDisc = sums_.JumNetto = 0;
    for (int row = 1; row < OrderGrid.Rows(); ++row) {
        if (Trim(OrderGrid.Cell(row, purchases::Gross)).empty()) continue;
        const double gross = CellNumber(OrderGrid, row, purchases::Gross);
        const double discount = CellNumber(OrderGrid, row, purchases::Discount);
        sums_.JumBruto += gross;
        sums_.JumDisc += discount;
        sums_.JumNetto += gross - discount;
    }
    sums_.JumTotal = sums_.JumNetto;
    sums_.JumSaldo = sums_.JumTotal - sums_.JumBayar;
    ShowSums();
}

} // namespace varnik
