#pragma once
// The menu tree as data: what hangs where, under which code a user may see it, which screen it opens.

#include <span>
#include <string_view>

namespace varnik {

struct MenuRow {
    std::string_view parent, key;
    std::string_view caption; // "" where a right is looked up and no row depends on it
    std::string_view right;   // the MenuID that shows it, "" for the rows that everybody sees
    std::string_view screen;  // what a click opens, "" for branches
};

std::span<const MenuRow> MenuRows(); // in the order of the tree

} // namespace varnik
