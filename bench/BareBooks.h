#pragma once
// The row writes of documents as bare loops on the engine's own C interface: prepared once, a commit per
// statement, write-ahead log, and one sync of the log at the end, because a finished document has to survive
// a power cut. The yardstick beside which the program's posting is measured. What was posted last is deleted
// again by the same few statements, so that the books stay as they were.

#include <sqlite3.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <variant>
#include <vector>

namespace varnik::bench {

class BareBooks {
public:
    explicit BareBooks(const std::filesystem::path& database);
    ~BareBooks();
    BareBooks(const BareBooks&) = delete;
    BareBooks& operator=(const BareBooks&) = delete;

    // Header, customer, and per line the detail row, the product, the lot, the open ledger row, the ledger
    // row and the row that remembers the lot; deletion gives all of it back and adds a ledger row a line.
    void PostSale(int lines);
    void DeleteSale(int lines);
    // Header, supplier, and per line the lot, the product and the ledger row.
    void PostPurchase(int lines);
    void DeletePurchase(int lines);
    // Voucher, and per invoice the payment, the invoice, the customer and the account.
    void PostReceipt(int invoices);
    void DeleteReceipt(int invoices);
    void Sync();

private:
    using Cell = std::variant<sqlite3_int64, const char*>;
    sqlite3_stmt* Prepare(const char* sql);
    void Run(sqlite3_stmt* statement, std::initializer_list<Cell> values = {});
    void NextNumber();

    sqlite3* engine_ = nullptr;
    std::vector<sqlite3_stmt*> statements_;
    std::vector<sqlite3_int64> lots_, entries_, products_, invoices_;
    std::vector<std::string> codes_, owed_;
    char number_[32] = {};
    long documents_ = 0;
    sqlite3_stmt *sale_, *customer_, *saleLine_, *product_, *lot_, *entry_, *ledger_, *drawn_, *noSale_,
        *noSaleLine_, *noDrawn_;
    sqlite3_stmt *purchase_, *supplier_, *purchaseLine_, *cost_, *noPurchase_, *noPurchaseLine_;
    sqlite3_stmt *receipt_, *payment_, *invoice_, *account_, *noReceipt_, *noPayment_;
};

} // namespace varnik::bench
