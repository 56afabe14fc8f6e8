// What a person does with one document asks the engine for the same few rows, however many documents there
// are. Counted in statements and rows, never in time.

#include "bench/Recorder.h"
#include "bench/Till.h"
#include "bench/shop/Fill.h"
#include "tests/support/TemporaryShop.h"

#include <map>

namespace varnik {
namespace {

struct Reading {
    long statements = 0, rows = 0;
};
using Readings = std::map<std::string, Reading>;

Readings ReadingsIn(long sales) {
    const TemporaryFolder folder;
    bench::MakeShop(folder.Path(), sales);
    bench::Till till(folder.Path());
    Readings readings;
    const auto count = [&](const std::string& what, const std::function<void()>& work) {
        Reading& reading = readings[what];
        for (const bench::Asked& asked : bench::StatementsOf(work)) {
            ++reading.statements;
            reading.rows += asked.rows;
        }
    };
    for (const auto& [what, key, enter] : {std::tuple{"sale", "T01", &bench::Till::EnterSale},
                                           {"purchase", "T04", &bench::Till::EnterPurchase},
                                           {"receipt", "T02", &bench::Till::EnterReceipt}}) {
        const auto save = [&till, key = std::string(key)] { till.Save(key); };
        (till.*enter)(5);
        count(std::string("post a ") + what, save);
        till.ChooseToDelete(key);
        count(std::string("delete a ") + what, save);
    }
    for (const auto& [key, entry] : till.Access().screens)
        if (key.front() == 'T') count("open " + entry.name, [&till, key = key] { till.Fresh(key); });
    return readings;
}

TEST(Proportion, OneDocumentCostsTheSameInAShopOfTenTimesTheSales) {
    bench::ListenToConnections();
    const Readings few = ReadingsIn(300), many = ReadingsIn(3000);
    EXPECT_GT(few.at("post a sale").rows, 10);
    for (const auto& [what, reading] : few) {
        EXPECT_EQ(many.at(what).statements, reading.statements) << what;
        EXPECT_LE(many.at(what).rows, reading.rows + 5) << what;
    }
}

} // namespace
} // namespace varnik
