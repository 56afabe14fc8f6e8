#include "shell/ScrollingTitle.h"

#include "common/Text.h"

#include <algorithm>

namespace varnik {

namespace {
constexpr int PanelWidth = 130;
constexpr const char* CreditLine = "Varnik - exact books for a small shop";
} // namespace

ScrollingTitle::ScrollingTitle(std::string_view companyName)
    : title_(" Varnik Ledger Suite (Varnik)" + Trim(companyName) + " "),
      length_(Len(title_)),
      width_(std::max(length_, PanelWidth)) {}

std::string ScrollingTitle::Next() {
    const int step = ++step_;
    if (step <= width_) return Repeat(step, ' ') + title_;
    const int tail = step - width_ - 1;
    if (tail == 0) return CreditLine;
    if (tail >= length_) step_ = 0;
    return Right(title_, tail);
}

} // namespace varnik
