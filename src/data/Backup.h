#pragma once
// Copies of the whole database and the way back, while screens are open and other workstations write.

#include "platform/desktop/Services.h"

#include <filesystem>

namespace varnik::data {

// Copies the database under the program's folder onto this file and checks the copy. DataError, and nothing
// new under the file's name, when it cannot be written or is not sound.
void BackUp(const Services& services, const std::filesystem::path& to);

// Puts a backup in the place of the database. The target is relative, "Varnik.MDB" in the current
// directory, and reaches the database because start-up goes to its folder; anywhere else it becomes a stray
// file: wanted. What stood there is kept beside it, under a name with the time. DataError, and nothing
// changed, when the file is no sound database of this program.
void Restore(const Services& services, const std::filesystem::path& from);

} // namespace varnik::data
