// Short walks through every screen that the program has, each from a seed that stands in the failure. Longer
// ones: script/soak walk MINUTES [SEED].

#include "tests/walk/support/Walk.h"

#include <gtest/gtest.h>

namespace varnik::walk {
namespace {

constexpr std::uint64_t Seed = 20261122;

void ExpectNothingFound(const Walk& walk) {
    for (const std::string& finding : walk.findings) ADD_FAILURE() << finding;
}

TEST(Walks, EveryScreenBearsAnyInput) {
    const std::vector<std::string> keys = Walk(Seed).Keys();
    EXPECT_GT(keys.size(), 15U);
    for (const std::string& key : keys) {
        Walk walk(Seed);
        walk.On(key, 60);
        walk.End();
        EXPECT_GE(walk.tally.actions, 60) << key;
        ExpectNothingFound(walk);
    }
}

TEST(Walks, AllScreensTogetherBearAnyInput) {
    for (std::uint64_t seed = Seed; seed < Seed + 2; ++seed) {
        Walk walk(seed);
        walk.Everywhere(250);
        walk.End();
        ExpectNothingFound(walk);
    }
}

} // namespace
} // namespace varnik::walk
