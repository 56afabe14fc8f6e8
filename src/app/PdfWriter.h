#pragma once
// How the console writes a report as PDF: with the desktop's writer, in a build that has one.

#include "reports/engine/Report.h"

#include <filesystem>
#include <functional>

namespace varnik {

// Empty in a build without the desktop. The function throws DataError when the file cannot be written.
std::function<void(const reports::Report&, const std::filesystem::path&)> PdfWriter();

} // namespace varnik
