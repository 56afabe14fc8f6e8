#include "ui/Help.h"

#include <algorithm>

namespace varnik::ui {

const std::vector<std::pair<std::string_view, std::string_view>>& HelpPages() {
    static const std::vector<std::pair<std::string_view, std::string_view>> pages{
        {"fLogin", "first-day.html#login"},
        {"frmMainCode", "index.html"},
        {"frmAbout", "index.html"},
        {"Company", "first-day.html#company"},
        {"fuser", "care.html#users"},
        {"frmBackup", "care.html#backup"},
        {"f_CreateDSN", "care.html#connection"},

        {"fProduk", "products.html#product"},
        {"fAccJenisProduk", "products.html#types"},
        {"fCustomer", "partners.html#customer"},
        {"frmJenisCustomer", "partners.html#types"},
        {"fSupplier", "partners.html#supplier"},
        {"fBank", "accounts.html#account"},
        {"fJenisBiaya", "accounts.html#costs"},
        {"fBiaya", "accounts.html#costs"},

        {"Invoice", "sales.html#invoice"},
        {"Bayar", "receipts.html#one"},
        {"BayarInvoice", "receipts.html#several"},
        {"InvoiceRetur", "sales-returns.html"},
        {"Faktur", "purchases.html#purchase"},
        {"FakturRetur", "purchases.html#return"},
        {"BayarFaktur", "payments.html"},
        {"OtherReceive", "cash-book.html#receipts"},
        {"OtherPayment", "cash-book.html#payments"},

        {"SalesReport", "reports.html#sales"},
        {"PurchasesReport", "reports.html#purchases"},
        {"LapBiaya1", "reports.html#costs"},
        {"LapPers1", "reports.html#inventory"},
        {"BukuBank", "reports.html#books"},
        {"BukuHutang", "reports.html#books"},
        {"BukuPiutang", "reports.html#books"},
    };
    return pages;
}

std::string HelpPageOf(std::string_view screen) {
    const auto& pages = HelpPages();
    const auto found = std::ranges::find(pages, screen, [](const auto& entry) { return entry.first; });
    return std::string(found == pages.end() ? "index.html" : found->second);
}

} // namespace varnik::ui
