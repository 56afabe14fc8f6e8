#pragma once
// What both programs ask of the operating system: where they stand and where they may write. The one file
// here that differs from system to system.

#include <filesystem>

namespace varnik {

// The folder that the running program was started from.
std::filesystem::path ExecutableFolder();
// The user's own data folder for this program ("~/.local/share/varnik"); not made here.
std::filesystem::path UserDataFolder();
// Whether this user can make files in a folder that exists.
bool CanWrite(const std::filesystem::path& folder);

} // namespace varnik
