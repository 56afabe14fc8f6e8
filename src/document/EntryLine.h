#pragma once
// The entry line of a document of goods: code, description, quantity in a unit, price, discount, and the
// units that its product offers. It shows only while a line is being entered.

#include "platform/ado/Ado.h"
#include "platform/forms/Controls.h"

#include <array>
#include <string>
#include <string_view>

namespace varnik::document {

// What tells the entry lines of the screens apart.
struct EntryLineNames {
    std::string_view code = "Product ID";
    std::string_view gross = "Brutto";
    std::string_view discount = "Disc (Rp)";
    std::string_view cancelButton = "cmdBatalLine";
};

struct EntryLine {
    explicit EntryLine(forms::Screen& screen, const EntryLineNames& names = {});

    // Takes in the button that lists the products, on a screen that has one.
    void HoldSearch(forms::Button& search);
    // Texts to "", amounts to "0".
    void ClearLine();
    bool IsShown() const { return FrameIsiBarang.Visible(); }
    bool Editing() const { return bttnAddLine.Caption() == "&Edit"; }

    forms::Frame FrameIsiBarang;
    forms::TextBox txtKodeBrg, TxtDiskripsi, txtQty;
    forms::ComboBox TxtSatuan;
    forms::TextBox txtHarga, TxtBru, TxtDis, TxtHrgTot;
    forms::CheckBox Check2; // shows whether the product is a service
    forms::Button bttnAddLine, BatalLine;
};

// The three units of the product on the entry line, counted from 1: what the line may be sold or bought in.
struct LineUnits {
    // The unit that the document trades in ("Jual" or "Beli"), the stock unit without a price, and the other
    // one; then the offer is folded.
    void Read(ado::Recordset& product, const std::string& first, const std::string& third,
              const Regional& regional);
    std::array<std::string, 4> UnitName;
    std::array<double, 4> UnitPecahan{}, UnitPrice{}; // base units in one unit, price of one unit
    int UnitCount = 0;
    int UnitIndex = 0;
    bool UnitFound = false;

    // Sets one of the three.
    void Set(int index, std::string name, double pecahan, double price);
    // After the three are set: an entry named like the first takes its values, and the offer shrinks by one.
    void Fold();
    // The names on offer, from the first on.
    std::vector<std::string> Offered() const;
    // Looks for a unit by name, without regard to case; the last one of that name wins.
    void Match(std::string_view unit);
};

} // namespace varnik::document
