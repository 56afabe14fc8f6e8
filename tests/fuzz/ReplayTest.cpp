// What fuzzing once found, and a few ordinary inputs, given to every reader again.

#include "tests/fuzz/Targets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace varnik::fuzz {
namespace {

namespace fs = std::filesystem;

class Replay : public testing::TestWithParam<Target> {};

TEST_P(Replay, BearsItsCorpus) {
    const fs::path corpus = fs::path("tests/fuzz/corpus") / GetParam().name;
    int inputs = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(corpus)) {
        std::ostringstream bytes;
        bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        const std::string input = bytes.str();
        EXPECT_NO_THROW(GetParam().run(input)) << entry.path();
        ++inputs;
    }
    EXPECT_GE(inputs, 3) << "no inputs in " << corpus;
    EXPECT_NO_THROW(GetParam().run(""));
}

INSTANTIATE_TEST_SUITE_P(AllReaders, Replay, testing::ValuesIn(Targets().begin(), Targets().end()),
                         [](const auto& target) { return std::string(target.param.name); });

} // namespace
} // namespace varnik::fuzz
