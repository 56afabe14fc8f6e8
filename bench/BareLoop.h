#pragma once
// The row writes of one sale as a bare loop on the engine's own C interface: prepared once, a commit per
// statement, write-ahead log, and one sync of the log at the end, because a finished sale has to survive a
// power cut. The yardstick beside which the program's posting is measured.

#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <vector>

namespace varnik::bench {

class BareLoop {
public:
    explicit BareLoop(const std::filesystem::path& database);
    ~BareLoop();
    BareLoop(const BareLoop&) = delete;
    BareLoop& operator=(const BareLoop&) = delete;

    // Writes what a posted sale of this many lines writes: header, customer, and per line the detail row,
    // the product, the lot, the open ledger row, the ledger row and the row that remembers the lot.
    void PostSale(int lines);
    void Sync();

private:
    sqlite3_stmt* Prepare(const std::string& sql);
    void Step(sqlite3_stmt* statement);

    sqlite3* engine_ = nullptr;
    std::vector<sqlite3_stmt*> statements_;
    sqlite3_stmt *header_, *customer_, *detail_, *product_, *lot_, *openRow_, *ledger_, *sold_;
    long sales_ = 0;
    std::vector<sqlite3_int64> lots_, openRows_;
};

} // namespace varnik::bench
