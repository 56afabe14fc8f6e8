#pragma once
// What the purchase invoice and the purchase return share: the buttons that walk through the documents, the
// sums, and the reading of the grid's texts back into numbers.

#include "document/DocumentScreen.h"
#include "document/EntryLine.h"
#include "document/LookupList.h"
#include "document/Navigation.h"
#include "document/OrderLines.h"
#include "document/SearchPanel.h"
#include "document/Totals.h"
#include "purchases/PurchaseLine.h"
#include "purchases/SupplierFields.h"
#include "stock/Ledger.h"

namespace varnik::purchases {

// Columns of OrderGrid.
enum Column { Code, Description, Quantity, Unit, Price, Gross, Discount, Net, PerUnit };

// Amounts in the shop's currency. There is no tax on this side: JumTotal is JumNetto.
struct PurchaseSums {
    double JumBruto = 0, JumDisc = 0, JumNetto = 0, JumTotal = 0, JumBayar = 0, JumSaldo = 0;
};

class PurchaseScreen : public document::DocumentScreen {
protected:
    PurchaseScreen(Services& services, std::string name, std::string caption);

    document::Navigation navigation_;

    void ShowSums(document::TotalBoxes& boxes) const;
    PurchaseLine LineOf(const document::OrderLines& grid, int row) const;
    // Whether the row is one to post: quantity and price are numbers.
    bool IsLine(const document::OrderLines& grid, int row) const;
    // A column as it is stored, unrounded; 0 for Null.
    double Amount(ado::Recordset& rows, const char* column) const {
        return NullToNumber(rows[column], services_.regional);
    }
    double CellNumber(const document::OrderLines& grid, int row, int column) const {
        return Number(grid.Cell(row, column));
    }

    // The row's texts in the entry line, which shows.
    void ShowLine(document::EntryLine& line, const document::OrderLines& grid, int row) const;
    void CancelLine(document::EntryLine& line, document::OrderLines& grid);

    // A routine in which a failing step shows the description alone, with Abort, Retry and Ignore.
    void Guarded(const std::function<void(Guard&)>& routine) const;
    // What all ledger rows of a purchase or a return have in common: goods of the line, type and stock of
    // the product's row. Purchases book on the in side, goods that leave as a negative quantity.
    stock::Movement MovementOf(Guard& step, ado::Recordset& product, const PurchaseLine& line) const;

    PurchaseSums sums_;
};

} // namespace varnik::purchases
