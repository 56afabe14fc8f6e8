// A list whose lines come from a source: asked for as they are looked at, kept once the list is changed.

#include "platform/forms/Grid.h"
#include "platform/forms/Screen.h"

#include <gtest/gtest.h>

namespace varnik::forms {
namespace {

TEST(ListGrid, AsksItsSourceForTheLinesThatAreLookedAt) {
    Screen screen("s", "S");
    ListGrid list(screen, "grdCari");
    list.SetColumns({{"Code"}, {"Name"}});
    int asked = 0;
    list.SetSource(100'000, [&](int row) {
        ++asked;
        return std::to_string(row) + "\tname " + std::to_string(row);
    });
    EXPECT_EQ(list.Rows(), 100'000);
    EXPECT_EQ(list.Row(), 0);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(list.Cell(99'999, 0) + list.Cell(99'999, 1) + list.Cell(99'999, 2), "99999name 99999");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(list.Cell(100'000, 0) + list.Cell(-1, 0), "");
    EXPECT_EQ(asked, 1);

    list.SetSource(2, [](int row) { return "new " + std::to_string(row); });
    EXPECT_EQ(list.Cell(1, 0), "new 1");
    list.SetCell(1, 1, "changed");
    list.AddItem("added");
    EXPECT_EQ(list.Rows(), 3);
    EXPECT_EQ(list.Cell(0, 0) + "|" + list.Cell(1, 0) + "|" + list.Cell(1, 1) + "|" + list.Cell(2, 0),
              "new 0|new 1|changed|added");
    list.SetSource(0, nullptr);
    EXPECT_EQ(list.Row(), -1);
    list.SetItems({"a", "b"});
    EXPECT_EQ(list.Rows(), 2);
    EXPECT_EQ(list.Cell(1, 0), "b");
    list.Clear();
    EXPECT_EQ(list.Rows(), 0);
}

} // namespace
} // namespace varnik::forms
