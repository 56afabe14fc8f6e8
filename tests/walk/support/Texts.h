#pragma once
// What hands type by chance: what fits the field, and what nobody expected there.

#include "tests/walk/support/Chance.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnik::walk {

// Texts that would bring a statement of its own, or a condition of its own, into one that is joined of texts.
extern const std::vector<std::string> Intrusions;

class Texts {
public:
    explicit Texts(Chance& chance) : chance_(chance) {}
    // Codes and document numbers that stand in the shop.
    void Know(std::vector<std::string> codes) { codes_ = std::move(codes); }

    std::string For(std::string_view field); // what fits the field of this name, or anything
    std::string Fitting(std::string_view field);
    std::string Anything();
    std::string Number();
    std::string Date();
    std::string Code();

private:
    std::string Bytes(); // no text at all

    Chance& chance_;
    std::vector<std::string> codes_;
};

} // namespace varnik::walk
