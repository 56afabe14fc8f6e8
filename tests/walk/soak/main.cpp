// varnik-walk MINUTES SEED [KEY]: walks through all screens until the time is over, each walk with a seed of
// its own counted from the first. Prints what was found with the seed that finds it again; exit status 1
// then.

#include "tests/walk/support/StatementWatch.h"
#include "tests/walk/support/Walk.h"

#include <chrono>
#include <iostream>

namespace {

using namespace varnik;

struct Sum {
    walk::Tally tally;
    std::set<std::string> screens;
    std::map<std::string, long> unmet;
    long walks = 0, findings = 0;
};

void WalkOnce(std::uint64_t seed, const std::string& only, Sum& sum) {
    constexpr int Actions = 400;
    walk::Walk walk(seed);
    std::vector<std::string> keys = walk.Keys();
    // One screen after the other, then all of them together.
    const std::size_t turn = seed % (keys.size() + 1);
    const std::string key = turn < keys.size() ? keys[turn] : "";
    if (!only.empty())
        walk.On(only, Actions);
    else if (turn == keys.size())
        walk.Everywhere(Actions);
    else
        walk.On(key, Actions);
    walk.End();
    ++sum.walks;
    sum.tally += walk.tally;
    sum.screens.insert(key);
    for (const auto& [text, times] : walk.Desktop().unmet) sum.unmet[text] += times;
    for (const std::string& finding : walk.findings) std::cout << "FOUND " << finding << std::endl;
    sum.findings += static_cast<long>(walk.findings.size());
}

} // namespace

int main(int count, char** words) {
    if (count < 3) {
        std::cerr << "varnik-walk MINUTES SEED [KEY]\n";
        return 2;
    }
    using Clock = std::chrono::steady_clock;
    const auto until = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                          std::chrono::duration<double>(std::stod(words[1]) * 60));
    Sum sum;
    for (std::uint64_t seed = std::stoull(words[2]); sum.walks == 0 || Clock::now() < until; ++seed) {
        std::cerr << "\rseed " << seed << "  " << std::flush; // what a crash leaves behind
        WalkOnce(seed, count > 3 ? words[3] : "", sum);
    }
    std::cerr << '\n';
    for (const auto& [text, times] : sum.unmet) std::cout << "unmet " << times << " times, " << text << '\n';
    std::cout << sum.walks << " walks over " << sum.screens.size() << " screens, " << sum.tally.actions
              << " actions, " << sum.tally.characters << " characters typed, " << sum.tally.questions
              << " boxes answered, " << sum.tally.reports << " reports opened, "
              << walk::StatementWatch::Statements() << " statements of which " << sum.tally.writes
              << " write; " << sum.findings << " findings\n";
    return sum.findings == 0 ? 0 : 1;
}
