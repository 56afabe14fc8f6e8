#include "master/NextCode.h"

#include <gtest/gtest.h>

namespace varnik {
namespace {

TEST(NextCode, OneMoreThanTheHighestOrZerosAlone) {
    constexpr NextCodeRow tolerant{.statement = "x", .throughNullToNumber = true};
    constexpr NextCodeRow account{.statement = "x", .width = 3};
    constexpr NextCodeRow type{.statement = "x", .start = "001", .width = 3};
    constexpr NextCodeRow cost{.statement = "x", .start = "0000000001", .userAppended = true};
    const Regional regional;
    struct Case {
        const NextCodeRow& row;
        Value highest;
        const char* code;
    };
    for (const Case& c : {
             Case{tolerant, {}, "0000000001"},
             Case{tolerant, "0000000041", "0000000042"},
             Case{tolerant, "ZZ", "0000000001"},
             Case{tolerant, "0000032766", "0000032767"},
             Case{tolerant, "0000032767", "0000000000"},
             Case{account, {}, "000"},
             Case{account, "009", "010"},
             Case{account, "K01", "000"},
             Case{account, "999", "1000"},
             Case{type, {}, "001"},
             Case{type, "007", "008"},
             Case{cost, {}, "0000000001"},
             Case{cost, "0000000012", "000000001307"},
             Case{cost, "000000001307", "000000130807"},
             Case{cost, "000000130807", "000000000007"},
         })
        EXPECT_EQ(NextCode(c.row, c.highest, "07", regional), c.code);
}

} // namespace
} // namespace varnik
