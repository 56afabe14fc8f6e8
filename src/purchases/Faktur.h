#pragma once
// The purchase invoice: entered, found, deleted and printed here. Header, lines and sums stand on the screen
// alone until they are saved; a posted purchase is never edited, only deleted and entered again.
//
// Faktur.cpp holds the modes and buttons, FakturHeader.cpp the header and the look-up lists,
// FakturLines.cpp the entry line, the grid and the sums, LoadFaktur.cpp loading and printing;
// PostFaktur.cpp and ReverseFaktur.cpp write.

#include "purchases/PurchaseScreen.h"

namespace varnik {

class Faktur : public purchases::PurchaseScreen {
public:
    explicit Faktur(Services& services);

    void Load() override;
    void Unload() override;
    void PreviewKeyDown(forms::Key& key) override;

private:
    // --- Controls, in tab order ---
    forms::TextBox TxtNoFaktur;
    forms::DatePicker TxtTglFaktur;
    forms::TextBox txtFaksup, TxtJTP;
    purchases::SupplierFields supplier_;
    forms::Button bttnSearch;
    document::EntryLine line_;
    forms::Button bttnSearchProduct; // bttnSearch(1)
    document::OrderLines OrderGrid;
    document::TotalBoxes boxes_;
    document::SearchPanel frmCari;
    document::LookupList GridCari;

    // --- Buttons ---
    void StartNew() override;
    void StartDelete() override;
    void CancelEntry() override;
    void Find() override { frmCari.Open(); }
    void Print() override;
    bool TestsPassed() override;
    bool ReverseConfirmed() override;
    void Post() override { PostFaktur(); }
    void Reverse() override { ReverseFaktur(TxtNoFaktur.Text()); }
    void EntryEnded() override;

    // --- Header ---
    void NumberLeft();
    void SupplierLeft();
    void NameLeft();
    void ShowSupplier(ado::Recordset& supplier);
    void ClearFaktur();
    void ClearOrderGrid() { OrderGrid.ClearGrid(); }
    void ListSuppliers();
    void ListProducts();
    void TakeFound();

    // --- Lines ---
    void CodeLeft();
    bool ChooseProduct();
    void ShowProduct(ado::Recordset& product);
    void UnitLeft();
    void ShowAmounts(std::string_view grossMask);
    void AddLine();
    bool LineIsSound();
    void OpenRow();
    void CancelLine() { PurchaseScreen::CancelLine(line_, OrderGrid); }
    // Wanted: the sums keep counting a removed row until the next line is added.
    void DeleteRow() { OrderGrid.RemoveCurrentRow(); }
    void RecalcTotals();

    // --- The data ---
    void LoadFaktur(const std::string& number);
    void ShowHeader(Guard& step, ado::Recordset& purchase);
    void PostFaktur();
    void PostLine(Guard& step, ado::Recordset& detail, int row, const std::string& memo);
    void PostStock(Guard& step, ado::Recordset& product, const purchases::PurchaseLine& line,
                   const std::string& memo);
    void ReverseFaktur(const std::string& number);
    void ReverseLine(Guard& step, ado::Recordset& detail, const std::string& number, const std::string& memo);

    purchases::PurchaseLine Line(int row) const { return LineOf(OrderGrid, row); }
    void ShowSums() { purchases::PurchaseScreen::ShowSums(boxes_); }

    document::LineUnits units_;
    // Opened once and kept for the screen's life.
    ado::Recordset ledger_, productTypes_;
};

} // namespace varnik
