#include "document/EntryLine.h"

#include "common/Numbers.h"
#include "common/Text.h"

namespace varnik::document {

EntryLine::EntryLine(forms::Screen& screen, const EntryLineNames& names)
    : FrameIsiBarang(screen, "FrameIsiBarang"),
      txtKodeBrg(screen, "txtKodeBrg", std::string(names.code)),
      TxtDiskripsi(screen, "TxtDiskripsi", "Description"),
      txtQty(screen, "txtQty", "Qty"),
      TxtSatuan(screen, "TxtSatuan", "Unit"),
      txtHarga(screen, "txtHarga", "Unit Price"),
      TxtBru(screen, "TxtBru", std::string(names.gross)),
      TxtDis(screen, "TxtDis", std::string(names.discount)),
      TxtHrgTot(screen, "TxtHrgTot", "Netto"),
      Check2(screen, "Check2", "&Service"),
      bttnAddLine(screen, "bttnAddLine", "&Add"),
      BatalLine(screen, std::string(names.cancelButton), "&Cancel") {
    FrameIsiBarang.Hold({&txtKodeBrg, &TxtDiskripsi, &txtQty, &TxtSatuan, &txtHarga, &TxtBru, &TxtDis,
                         &TxtHrgTot, &Check2, &bttnAddLine, &BatalLine});
    for (forms::TextBox* amount : {&txtQty, &txtHarga, &TxtBru, &TxtDis, &TxtHrgTot})
        amount->SetRightAligned(true);
    for (forms::TextBox* shown : {&TxtBru, &TxtHrgTot}) {
        shown->SetLocked(true);
        shown->SetTabStop(false);
    }
    Check2.SetLocked(true);
    Check2.SetTabStop(false);
    txtKodeBrg.SetMaxLength(10);
    // The stock ledger keeps fifty characters of it.
    TxtDiskripsi.SetMaxLength(50);
}

void EntryLine::HoldSearch(forms::Button& search) {
    FrameIsiBarang.Hold({&search});
    txtKodeBrg.SetToolTip("F5, or Enter on an empty code, lists the products");
    search.SetToolTip("List of products");
    search.SetTabStop(false);
}

void EntryLine::ClearLine() {
    for (forms::TextControl* text :
         std::initializer_list<forms::TextControl*>{&txtKodeBrg, &TxtDiskripsi, &TxtSatuan})
        text->SetText("");
    for (forms::TextBox* amount : {&txtQty, &txtHarga, &TxtBru, &TxtDis, &TxtHrgTot}) amount->SetText("0");
}

void LineUnits::Read(ado::Recordset& product, const std::string& first, const std::string& third,
                     const Regional& regional) {
    const auto text = [&](const std::string& column) { return NullToText(product[column], regional); };
    const auto number = [&](const std::string& column) { return NullToNumber(product[column], regional); };
    Set(1, text("Satuan" + first), number("Pecahan" + first), number("Harga" + first));
    Set(2, text("Satuan"), number("Pecahan"), 0);
    Set(3, text("Satuan" + third), number("Pecahan" + third), number("Harga" + third));
    Fold();
}

void LineUnits::Set(int index, std::string name, double pecahan, double price) {
    const auto at = static_cast<std::size_t>(index);
    UnitName[at] = std::move(name);
    UnitPecahan[at] = pecahan;
    UnitPrice[at] = price;
}

void LineUnits::Fold() {
    UnitCount = 3;
    for (std::size_t i : {2U, 3U})
        if (Upper(Trim(UnitName[i])) == Upper(Trim(UnitName[1]))) {
            UnitPrice[i] = UnitPrice[1];
            UnitPecahan[i] = UnitPecahan[1];
            --UnitCount;
        }
}

std::vector<std::string> LineUnits::Offered() const {
    // Wanted: the names are not moved up, so an offer of two can show the first twice and lose the third.
    return {UnitName.begin() + 1, UnitName.begin() + 1 + UnitCount};
}

void LineUnits::Match(std::string_view unit) {
    UnitFound = false;
    for (int i = 1; i <= 3; ++i)
        if (Upper(Trim(UnitName[static_cast<std::size_t>(i)])) == Upper(Trim(unit))) {
            UnitFound = true;
            UnitIndex = i;
        }
}

} // namespace varnik::document
