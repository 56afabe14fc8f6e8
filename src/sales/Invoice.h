#pragma once
// The sales invoice: entered, found, deleted and printed here. Header, lines and sums stand on the screen
// alone until they are saved; a posted invoice is never edited, only deleted and entered again.
//
// Invoice.cpp holds the header and the modes, InvoiceLines.cpp the entry line, the grid and the sums,
// InvoiceLists.cpp the look-up lists and the search, LoadInvoice.cpp loading and printing; PostInvoice.cpp
// and DeleteInvoice.cpp write.

#include "document/DocumentScreen.h"
#include "document/EntryLine.h"
#include "document/LookupList.h"
#include "document/OrderLines.h"
#include "document/SearchPanel.h"
#include "document/Totals.h"

#include <optional>

namespace varnik {

class Invoice : public document::DocumentScreen {
public:
    explicit Invoice(Services& services);

    void Load() override;
    void Unload() override;
    void Resized() override;
    void PreviewKeyDown(forms::Key& key) override;

private:
    // --- Controls, in tab order ---
    forms::TextBox TxtNoInvoice;
    forms::DatePicker TxtTglInvoice;
    forms::TextBox txtCusPO, TxtJTP, TxtPPN, TxtKodeCus, TxtNamaCus, TxtAlamat1, TxtAlamat2, TxtAlamat3;
    document::EntryLine line_;
    forms::Button bttnSearch;
    document::OrderLines OrderGrid;
    document::TotalBoxes boxes_;
    forms::TextBox TxtSaldo;
    forms::Button bttnBayar;
    document::SearchPanel frmCari;
    document::LookupList GridCari;

    // --- Buttons ---
    void StartNew() override;
    void StartDelete() override;
    void CancelEntry() override;
    void Find() override;
    void Print() override;
    void OpenReceipt();
    bool TestsPassed() override;
    void Post() override { PostInvoice(); }
    void Reverse() override { DeleteInvoice(); }
    void EntryEnded() override;

    // --- Header ---
    void NumberTyped();
    void NumberLeft();
    void DueDateLeft();
    void TaxLeft();
    void CustomerLeft();
    void NameLeft();
    void ShowCustomer(ado::Recordset& customer);
    void ClearCustomer();
    void ClearInvoice();

    // --- Lines ---
    void CodeTyped();
    void CodeLeft();
    bool ChooseProduct();
    void ShowProduct(ado::Recordset& product);
    void QuantityTyped();
    void PriceTyped();
    void ShowAmounts(double rate);
    void DiscountTyped();
    void DiscountLeft();
    void AddLine();
    bool FindDoubleEntry(bool& doubleEntry);
    void TakeLineBack();
    void OpenEmptyLine();
    void CancelLine();
    void BlankRow();
    void RecalcTotals();
    void RecalcFromGrid();

    // --- Lists ---
    void ListCustomers();
    void ListProducts();
    void TakeFound();

    // --- The data ---
    void LoadInvoice(const std::string& number);
    void PostInvoice();
    void PostCustomer(Guard& step, ado::Connection& connection);
    void PostLine(Guard& step, ado::Connection& connection, ado::Recordset& detail, int row);
    void DeleteInvoice();
    void DeleteLine(Guard& step, ado::Connection& connection, ado::Recordset& detail,
                    const std::string& memo);
    void ShowHeader(Guard& step, ado::Recordset& invoice);

    double Cell(int row, int column) const { return Number(OrderGrid.Cell(row, column)); }
    std::string Mask(double amount) const { return Masked(amount); }
    void ShowSums();

    document::Sums sums_;
    document::LineUnits units_;
    std::optional<std::string> unknownCustomer_; // the code that was called back to once
    bool codeHit_ = false;                       // typing the code has just moved on to the quantity
    // Opened once and kept for the screen's life; postings open their own.
    ado::Recordset productTypes_, ledger_, ledgerOfSales_;
};

} // namespace varnik
