#include "bench/shop/Books.h"

#include "bench/shop/Fill.h"
#include "bench/shop/Writers.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace varnik::bench {

namespace {
constexpr int Users = 3;
constexpr DateTime LastDay{20779, 0}; // 2026-11-22
} // namespace

Books::Books(sqlite3* engine, long sales)
    : engine_(engine), write_(std::make_shared<Writers>(engine)), sales_(sales) {
    for (std::vector<int>* count :
         {&invoiceCount_, &returnCount_, &purchaseCount_, &sentBackCount_, &receiptCount_, &paymentCount_})
        count->resize(Users);
}

int Books::Chance(int from, int to) {
    return from + static_cast<int>(random_() % static_cast<std::uint64_t>(to - from + 1));
}

std::size_t Books::ProductByChance() {
    constexpr double Whole = 1 << 20;
    const double part = static_cast<double>(random_() % (1 << 20)) / Whole;
    return static_cast<std::size_t>(part * part * static_cast<double>(products_.size()));
}

std::string Books::NextNumber(std::vector<int>& counters) {
    const int user = Chance(0, Users - 1);
    char text[32];
    std::snprintf(text, sizeof text, "%010d%02d", ++counters[static_cast<std::size_t>(user)], user);
    return text;
}

void Books::Write() {
    MakeMasters();
    const int years = sales_ <= 10'000 ? 1 : sales_ <= 100'000 ? 4 : 8;
    const int days = 365 * years;
    for (long sale = 0; sale < sales_; ++sale) {
        today_ = AddDays(LastDay, static_cast<int>(sale * days / sales_) - days + 1);
        if (OneIn(100)) ReceiveOther();
        if (OneIn(20)) PayCosts();
        Sell();
    }
    WriteWhatChanged();
    WriteMasters();
}

void Books::WriteWhatChanged() {
    Prepared invoice(engine_, "UPDATE Invoice SET Bayar = ?2, Saldo = ?3 WHERE rowid = ?1");
    for (std::size_t i = 0; i < invoices_.size(); ++i)
        if (invoices_[i].paid != 0) invoice.Run({invoiceRows_[i], invoices_[i].paid, invoices_[i].balance});
    Prepared purchase(engine_, "UPDATE Faktur SET Bayar = ?2, Saldo = ?3 WHERE NoFaktur = ?1");
    for (const Document& each : purchases_)
        if (each.paid != 0) purchase.Run({each.number, each.paid, each.balance});
    Prepared lot(engine_, "UPDATE FakturDetail SET QtySisa = ?2, QtyRetur = ?3 WHERE rowid = ?1");
    for (const Lot& each : lots_) lot.Run({each.row, each.left, each.returned});
    Prepared entry(engine_, "UPDATE Persediaan SET QtySisa = ?2 WHERE rowid = ?1");
    for (const Entry& each : entries_) entry.Run({each.row, each.left});
}

namespace {

void Run(sqlite3* engine, const std::string& sql) {
    if (sqlite3_exec(engine, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(std::string(sqlite3_errmsg(engine)) + " in " + sql);
}

// The look-up indexes are taken away and come back at the end, each in one go; the keys stay.
std::vector<std::string> DropIndexes(sqlite3* engine) {
    std::vector<std::string> names, definitions;
    sqlite3_stmt* list = nullptr;
    sqlite3_prepare_v2(engine,
                       "SELECT name, sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL AND "
                       "instr(name, '.') = 0",
                       -1, &list, nullptr);
    const auto text = [&](int column) {
        return std::string(reinterpret_cast<const char*>(sqlite3_column_text(list, column)));
    };
    while (sqlite3_step(list) == SQLITE_ROW) {
        names.push_back(text(0));
        definitions.push_back(text(1));
    }
    sqlite3_finalize(list);
    for (const std::string& name : names) Run(engine, "DROP INDEX " + name);
    return definitions;
}

} // namespace

void FillShop(const std::filesystem::path& database, long sales) {
    sqlite3* engine = nullptr;
    const int opened = sqlite3_open(database.c_str(), &engine);
    const std::shared_ptr<sqlite3> closed(engine, sqlite3_close_v2);
    if (opened != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(engine));
    // A file that is not whole is thrown away and made again: nothing is kept to undo it by.
    Run(engine, "PRAGMA journal_mode=DELETE; PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; "
                "PRAGMA cache_size=-800000; PRAGMA temp_store=MEMORY");
    Run(engine, "BEGIN");
    const std::vector<std::string> indexes = DropIndexes(engine);
    Books(engine, sales).Write();
    for (const std::string& index : indexes) Run(engine, index);
    Run(engine, "COMMIT");
    Run(engine, "PRAGMA journal_mode=WAL");
}

} // namespace varnik::bench
