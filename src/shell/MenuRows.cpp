#include "shell/MenuRows.h"

#include <array>

namespace varnik {

namespace {

// "Customer Types" goes by the code of "Product Types", not by its own: wanted, as are the blanks at the
// edges of two captions and inside a third. Nothing depends on the look-up of L15.
constexpr std::array rows{
    MenuRow{"", "M", "Menu", "", ""},
    MenuRow{"M", "F", "Account File", "", ""},
    MenuRow{"F", "F01", "Products", "F01", "fProduk"},
    MenuRow{"F", "F08", "Product Types", "F08", "fAccJenisProduk"},
    MenuRow{"F", "F02", "Customers", "F02", "fCustomer"},
    MenuRow{"F", "F09", "Customer Types", "F08", "frmJenisCustomer"},
    MenuRow{"F", "F03", "Suppliers", "F03", "fSupplier"},
    MenuRow{"F", "F04", "Cash And Banks", "F04", "fBank"},
    MenuRow{"F", "F06", "Cost Types", "F06", "fJenisBiaya"},
    MenuRow{"F", "F07", "Cost Details", "F07", "fBiaya"},
    MenuRow{"M", "T", "Transaction", "", ""},
    MenuRow{"T", "T01", "Sales", "T01", "Invoice"},
    MenuRow{"T", "T02", "Customer Receipts", "T02", "BayarInvoice"},
    MenuRow{"T", "T03", "Sales Returns", "T03", "InvoiceRetur"},
    MenuRow{"T", "T04", "Purchases", "T04", "Faktur"},
    MenuRow{"T", "T05", "Supplier Payments", "T05", "BayarFaktur"},
    MenuRow{"T", "T06", "Purchases Returns ", "T06", "FakturRetur"},
    MenuRow{"T", "T08", "Other Receipts", "T08", "OtherReceive"},
    MenuRow{"T", "T09", "Other Payments", "T09", "OtherPayment"},
    MenuRow{"M", "L", "Report", "", ""},
    MenuRow{"L", "L01", "Sales Reports", "L01", "SalesReport"},
    MenuRow{"L", "L04", "Purchases  Reports", "L04", "PurchasesReport"},
    MenuRow{"L", "L21", " Cost History", "L21", "LapBiaya1"},
    MenuRow{"L", "L13", "Inventory", "L13", "LapPers1"},
    MenuRow{"L", "L15", "", "L15", ""},
    MenuRow{"L", "L16", "Cash and Banks Book", "L16", "BukuBank"},
    MenuRow{"L", "L17", "Account Payables", "L17", "BukuHutang"},
    MenuRow{"L", "L18", "Account Receivables", "L18", "BukuPiutang"},
};

} // namespace

std::span<const MenuRow> MenuRows() { return rows; }

} // namespace varnik
