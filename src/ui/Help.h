#pragma once
// Which page of the manual speaks of which screen.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnik::ui {

// The page and the place on it, "sales.html#invoice"; the contents for a screen that has none of its own.
std::string HelpPageOf(std::string_view screen);

// All screens that have a page, with it.
const std::vector<std::pair<std::string_view, std::string_view>>& HelpPages();

} // namespace varnik::ui
