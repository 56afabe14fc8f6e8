#pragma once
// The sales return: goods of one earlier invoice come back. The grid is filled from the invoice; quantities
// are cut down or rows blanked, and what remains is returned. The amount counts as paid on the invoice. A
// return is never edited, only deleted and entered again.
//
// InvoiceRetur.cpp holds the modes and the header, ReturLines.cpp the lines and sums, LoadRetur.cpp what is
// shown and printed; PostRetur.cpp writes.

#include "document/DocumentScreen.h"
#include "document/EntryLine.h"
#include "document/OrderLines.h"
#include "document/SearchPanel.h"
#include "document/Totals.h"

namespace varnik {

class InvoiceRetur : public document::DocumentScreen {
public:
    explicit InvoiceRetur(Services& services);

    void Load() override;
    void PreviewKeyDown(forms::Key& key) override;

private:
    // --- Controls, in tab order ---
    forms::TextBox TxtReturID, TxtTglRetur, TxtNoInvoice, TxtTglInvoice, TxtKodeCus, TxtNamaCus, TxtAlamat,
        TxtPPN, txtket;
    forms::ComboBox Combo1;
    forms::Button bttnSearch;
    document::EntryLine line_;
    document::OrderLines OrderGrid;
    document::TotalBoxes boxes_;
    document::SearchPanel frmCari, FrmCari2;

    // --- Buttons ---
    void StartNew() override;
    void StartDelete() override;
    void CancelEntry() override;
    void Find() override { FrmCari2.Open(); }
    void Print() override;
    bool TestsPassed() override;
    void Post() override { PostRetur(); }
    void Reverse() override { DeleteRetur(); }
    void EntryEnded() override;

    // --- Header ---
    void NumberLeft();
    void InvoiceLeft();
    void TakeInvoice();
    void TakeRetur();
    void ClearRetur();

    // --- Lines ---
    void OpenRow();
    void AmountTyped();
    void AddLine();
    void BlankRow();
    void CancelLine();
    void RecalcTotals();
    void ShowSums();
    double Cell(int row, int column) const { return Number(OrderGrid.Cell(row, column)); }

    // --- The data ---
    void LoadRetur(const std::string& id);
    void LoadInvoiceForRetur(const std::string& number);
    void ShowSource(Guard& step, ado::Recordset& source);
    void PostRetur();
    void PostLine(Guard& step, ado::Recordset& detail, int row);
    void DeleteRetur();
    void DeleteLine(Guard& step, ado::Recordset& detail, const std::string& invoice, const std::string& memo);

    DateTime ReturnDate() const;

    document::Sums sums_;
    std::string source_; // the invoice whose lines stand in the grid
};

} // namespace varnik
