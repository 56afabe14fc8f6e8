#pragma once
// Chance from a seed: the same seed gives the same walk on every machine.

#include <cstdint>
#include <random>

namespace varnik::walk {

class Chance {
public:
    explicit Chance(std::uint64_t seed) : engine_(seed) {}
    // 0 to count-1; 0 for a count that is not positive.
    int Below(int count) {
        return count <= 0 ? 0 : static_cast<int>(engine_() % static_cast<std::uint64_t>(count));
    }
    bool Percent(int part) { return Below(100) < part; }
    template <typename List>
    const auto& Of(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace varnik::walk
