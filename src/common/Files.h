#pragma once
// File names as people and older machines write them.

#include <filesystem>
#include <string>
#include <string_view>

namespace varnik {

// The file that a UTF-8 text names: "\" and "/" both separate folders, and a name that is not there as
// written is matched without regard to case. What matches nothing stays as written.
std::filesystem::path MatchPath(std::string_view text);
// The UTF-8 text of a path.
std::string PathText(const std::filesystem::path& path);

} // namespace varnik
