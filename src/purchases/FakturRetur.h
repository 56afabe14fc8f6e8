#pragma once
// The purchase return: goods of one earlier purchase go back to the supplier. The grid is filled from the
// purchase; quantities are cut down or rows removed, and what remains is returned. The amount counts as paid
// on the purchase. A return is never edited, only deleted and entered again.
//
// FakturRetur.cpp holds the modes and buttons, ReturHeader.cpp the header and the records, ReturLines.cpp
// the lines; PostRetur.cpp and ReverseRetur.cpp write.

#include "purchases/PurchaseScreen.h"

namespace varnik {

class FakturRetur : public purchases::PurchaseScreen {
public:
    explicit FakturRetur(Services& services);

    void Load() override;
    void Unload() override;
    void PreviewKeyDown(forms::Key& key) override;

private:
    // --- Controls, in tab order ---
    forms::TextBox TxtNoFaktur, TxtTglFaktur, txtNoPO, TxtTglPO;
    purchases::SupplierFields supplier_;
    document::EntryLine line_;
    document::OrderLines OrderGrid;
    document::TotalBoxes boxes_;

    // --- Buttons ---
    void StartNew() override;
    void StartDelete() override;
    void CancelEntry() override;
    void Find() override;
    void Print() override;
    bool TestsPassed() override;
    void Post() override { PostRetur(); }
    void Reverse() override { ReverseRetur(); }
    void EntryEnded() override;
    void Move(document::Navigation::Move move);

    // --- Header and records ---
    void NumberLeft();
    void PurchaseLeft();
    void PurchaseDateLeft();
    void SupplierLeft();
    void LoadPurchaseForReturn(Guard& step);
    void ShowReturn(Guard& step);
    void ShowReturnLines(Guard& step, std::string_view quantityMask);
    void ShowAmounts(Guard& step, ado::Recordset& document);
    void ClearRetur();

    // --- Lines ---
    void QuantityTyped();
    void OpenRow();
    void AddLine();
    void RecalcTotals();
    void CancelLine() { PurchaseScreen::CancelLine(line_, OrderGrid); }
    // Wanted: the sums keep counting a removed row until the next line is added.
    void DeleteRow() { OrderGrid.RemoveCurrentRow(); }

    // --- The data ---
    void PostRetur();
    void PostLine(Guard& step, int row);
    void ReverseRetur();
    void ReverseLine(Guard& step, int row, const std::string& memo);
    // Raises the open quantity of the lot, and lowers what was returned of it, by base units.
    void RaiseLot(Guard& step, const std::string& code, double base);
    // The same for the ledger row of the purchase with this number, where there is one.
    void RaiseLedgerRow(Guard& step, const std::string& number, const std::string& code, double base);
    // The first row that meets the criterion becomes the current one; false when there is none.
    bool Seek(Guard& step, ado::Recordset& rows, const std::string& criterion);
    DateTime ReturnDate() const;

    std::string ReturnNumber() const { return Trim(TxtNoFaktur.Text()); }
    std::string PurchaseNumber() const { return Trim(txtNoPO.Text()); }
    void ShowSums() { purchases::PurchaseScreen::ShowSums(boxes_); }

    bool purchaseTyped_ = false; // its number, since the purchase was loaded
    // Opened once and kept for the screen's life.
    ado::Recordset suppliers_, products_, purchases_, lots_, returns_, returnLines_, supplierLookUp_, ledger_,
        productTypes_;
};

} // namespace varnik
