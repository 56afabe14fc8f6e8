// What a user may not do, no button, key or field of any screen does. The user works by chance on every
// screen whose buttons ask for rights; what the rights forbid must not be found in the books.

#include "tests/walk/support/Walk.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnik::walk {
namespace {

constexpr std::uint64_t Seed = 20261122;

// Account file and transactions ask for rights; the tools do not: whoever has the menu may use them.
bool AsksForRights(const std::string& key) { return key.starts_with("F") || key.starts_with("T"); }

using Table = std::vector<std::string>;

bool Contains(const Table& whole, const Table& part) {
    return std::ranges::all_of(
        part, [&](const std::string& row) { return std::ranges::find(whole, row) != whole.end(); });
}

// The first cell of every row: the code, or the number of the document.
Table Codes(const Table& rows) {
    Table codes;
    for (const std::string& row : rows) codes.push_back(row.substr(0, row.find('|')));
    return codes;
}

void ForEveryScreen(Rights rights, int actions,
                    const std::function<void(Walk&, const std::string& key)>& look) {
    const std::vector<std::string> keys = Walk(Seed).Keys();
    int screens = 0;
    for (const std::string& key : keys) {
        if (!AsksForRights(key)) continue;
        ++screens;
        Walk walk(Seed, rights);
        walk.On(key, actions);
        look(walk, key);
        for (const std::string& finding : walk.findings) ADD_FAILURE() << finding;
    }
    EXPECT_GE(screens, 14);
}

TEST(Rights, WithoutAnyNothingIsWrittenFromAnyScreen) {
    ForEveryScreen({false, false, false}, 150, [](const Walk& walk, const std::string& key) {
        EXPECT_EQ(walk.written, std::vector<std::string>{}) << key;
    });
}

TEST(Rights, WithoutTheRightToAddNoCodeAndNoDocumentIsNew) {
    ForEveryScreen({false, true, true}, 100, [](Walk& walk, const std::string& key) {
        const auto before = walk.AtFirst(), after = walk.Books();
        for (const char* table :
             {"Produk", "Customer", "Supplier", "Bank", "JenisProduk", "JenisCustomer", "JenisBiaya", "Biaya",
              "Invoice", "InvoiceRetur", "Faktur", "FakturRetur", "BKM", "BKK"})
            EXPECT_TRUE(Contains(Codes(before.at(table)), Codes(after.at(table))))
                << key << " added to " << table;
    });
}

TEST(Rights, WithoutTheRightToDeleteEverythingStays) {
    ForEveryScreen({true, true, false}, 100, [](Walk& walk, const std::string& key) {
        const auto before = walk.AtFirst(), after = walk.Books();
        for (const auto& [table, rows] : before)
            EXPECT_TRUE(Contains(Codes(after.at(table)), Codes(rows))) << key << " deleted from " << table;
    });
}

TEST(Rights, WithoutTheRightToChangeRecordsStayAsTheyAre) {
    ForEveryScreen({true, false, true}, 100, [](Walk& walk, const std::string& key) {
        if (!key.starts_with("F")) return; // documents know no change, and postings move balances
        const auto before = walk.AtFirst(), after = walk.Books();
        for (const char* table : {"Produk", "Customer", "Supplier", "Bank", "JenisProduk", "JenisCustomer",
                                  "JenisBiaya", "Biaya"}) {
            const Table codes = Codes(before.at(table)), left = Codes(after.at(table));
            for (std::size_t i = 0; i < codes.size(); ++i) {
                const auto at = std::ranges::find(left, codes[i]);
                if (at == left.end()) continue; // deleted, which this user may do
                EXPECT_EQ(after.at(table)[static_cast<std::size_t>(at - left.begin())], before.at(table)[i])
                    << key << " changed " << table;
            }
        }
    });
}

} // namespace
} // namespace varnik::walk
