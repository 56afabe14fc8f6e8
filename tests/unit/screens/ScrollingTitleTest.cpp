#include "shell/ScrollingTitle.h"

#include "common/Text.h"

#include <gtest/gtest.h>

namespace varnik {
namespace {

TEST(ScrollingTitle, LeavesThePanelAndComesBackTailFirst) {
    const std::string title = " Varnik Ledger Suite (Varnik)Toko Makmur ";
    ScrollingTitle scrolling("  Toko Makmur ");
    for (int cycle = 0; cycle < 2; ++cycle) {
        for (int blanks = 1; blanks <= 130; ++blanks)
            ASSERT_EQ(scrolling.Next(), Repeat(blanks, ' ') + title) << "step " << blanks;
        const std::string credit = scrolling.Next();
        EXPECT_FALSE(Trim(credit).empty());
        EXPECT_EQ(InStr(title, credit), 0);
        for (int shown = 1; shown <= Len(title); ++shown)
            ASSERT_EQ(scrolling.Next(), Right(title, shown)) << "tail " << shown;
    }
}

TEST(ScrollingTitle, ATitleWiderThanThePanelTravelsItsOwnLength) {
    const std::string name(200, 'x');
    const std::string title = " Varnik Ledger Suite (Varnik)" + name + " ";
    ScrollingTitle scrolling(name);
    std::string step;
    for (int i = 0; i < Len(title); ++i) step = scrolling.Next();
    EXPECT_EQ(step, Repeat(Len(title), ' ') + title);
    scrolling.Next();
    EXPECT_EQ(scrolling.Next(), " ");
}

} // namespace
} // namespace varnik
