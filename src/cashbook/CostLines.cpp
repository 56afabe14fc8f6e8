#include "cashbook/CostLines.h"

#include "cashbook/CashVoucher.h"

namespace varnik::cashbook {

namespace {

constexpr int LargeType = 20;

document::LineLayout Lines() {
    using forms::Align;
    return {{{"Cost ID", Align::Left, 14},
             {"Type ID", Align::Left, 10},
             {"Cost Description", Align::Left, 44},
             {"Amount", Align::Right, 18}},
            {"", "", "", ""}};
}

} // namespace

CostLines::CostLines(forms::Screen& screen, const Regional& regional)
    : FrameIsiBarang(screen, "FrameIsiBarang"),
      TxtBiaya(screen, "TxtBiaya", "Cost"),
      TxtJenisBiaya(screen, "TxtJenisBiaya", "Cost Type"),
      TxtJumlah(screen, "TxtJumlah", "Amount"),
      bttnAddLine(screen, "bttnAddLine", "&Add"),
      cmdBatalLine(screen, "cmdBatalLine", "&Cancel"),
      OrderGrid(screen, Lines()),
      lblJumBAYAR(screen, "lblJumBAYAR", "0"),
      regional_(regional) {
    FrameIsiBarang.Hold({&TxtBiaya, &TxtJenisBiaya, &TxtJumlah, &bttnAddLine, &cmdBatalLine});
    TypesAmount(TxtJumlah);
    for (forms::ComboBox* box : {&TxtBiaya, &TxtJenisBiaya})
        box->onLeave = [box] { document::CompleteItem(*box); };
    lblJumBAYAR.SetFontSize(LargeType);
}

void CostLines::Write() {
    const std::vector<std::string> cells{document::KeyOf(TxtBiaya), document::KeyOf(TxtJenisBiaya),
                                         document::NameOf(TxtBiaya),
                                         Masked(ToNumber(TxtJumlah.Text(), regional_))};
    if (Editing()) {
        OrderGrid.Write(OrderGrid.Row(), cells);
    } else {
        OrderGrid.Write(OrderGrid.LastRow(), cells);
        OrderGrid.Grow();
    }
    OrderGrid.SetRow(OrderGrid.LastRow());
    ShowSum();
}

void CostLines::Append(const std::string& cost, const std::string& type, const std::string& description,
                       double amount) {
    OrderGrid.Write(OrderGrid.LastRow(), {cost, type, description, Masked(amount)});
    OrderGrid.Grow();
    ShowSum();
}

void CostLines::TakeBack() {
    const int row = OrderGrid.Row();
    if (row < 1) return;
    const bool filled = OrderGrid.IsFilled(row);
    // The cost brings its own type along; the row's holds.
    document::ShowItem(TxtBiaya, OrderGrid.Cell(row, Cost));
    document::ShowItem(TxtJenisBiaya, OrderGrid.Cell(row, Type));
    TxtJumlah.SetText(filled ? OrderGrid.Cell(row, Amount) : "0");
    bttnAddLine.SetCaption(filled ? "&Edit" : "&Add");
}

void CostLines::RemoveCurrentRow() {
    OrderGrid.RemoveCurrentRow();
    ClearLine();
    ShowSum();
}

void CostLines::ClearLine() {
    TxtBiaya.SetText("");
    TxtJenisBiaya.SetText("");
    TxtJumlah.SetText("0");
    bttnAddLine.SetCaption("&Add");
}

void CostLines::Clear() {
    ClearLine();
    OrderGrid.ClearGrid();
    ShowSum();
}

int CostLines::Repeated() const {
    int found = 0;
    for (const int row : OrderGrid.RowsOf(document::KeyOf(TxtBiaya)))
        found += EqualsNoCase(OrderGrid.Cell(row, Type), document::KeyOf(TxtJenisBiaya));
    return found;
}

double CostLines::AmountOf(int row) const {
    const std::string& amount = OrderGrid.Cell(row, Amount);
    return IsNumeric(amount, regional_) ? ToNumber(amount, regional_) : 0;
}

bool CostLines::AmountsAreNumeric() const {
    for (int row = 1; row < OrderGrid.LastRow(); ++row)
        if (!IsNumeric(OrderGrid.Cell(row, Amount), regional_)) return false;
    return true;
}

std::string CostLines::Masked(double amount) const { return FormatNumber(amount, "#,##0.#0", regional_); }

void CostLines::ShowSum() {
    JumBayar_ = 0;
    for (int row = 1; row < OrderGrid.Rows(); ++row)
        if (OrderGrid.IsFilled(row)) JumBayar_ += AmountOf(row);
    lblJumBAYAR.SetCaption(Masked(JumBayar_));
}

} // namespace varnik::cashbook
