#pragma once
// Where the program keeps its data: Data and Report stand in one folder.

#include <filesystem>

namespace varnik {

// The folder of the executable; where the user may not write there (installed for all users), the user's
// own data folder, made when it is missing, with the reports and the help of the installation brought up
// to date. std::filesystem::filesystem_error when it cannot be made.
std::filesystem::path FindProgramFolder();

// A folder of somebody's choice: made when it is missing, with the shipped reports; what stands there
// already stays as it is.
std::filesystem::path PrepareProgramFolder(const std::filesystem::path& folder);

} // namespace varnik
