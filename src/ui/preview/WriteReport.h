#pragma once
// Reports on paper and as PDF.

#include "reports/engine/Report.h"

#include <filesystem>

class QPrinter;

namespace varnik::ui {

// Writes all pages. Needs a QGuiApplication, but no display. DataError when the file cannot be written;
// false, and no file, when the work was stopped.
bool WritePdf(const reports::Report& report, const std::filesystem::path& file,
              const reports::Progress& progress = {});

// Prints the pages that the printer's settings ask for; false when the printer refused or the work was
// stopped.
bool PrintReport(const reports::Report& report, QPrinter& printer, const reports::Progress& progress = {});
// A4 in the report's direction, without margins of the printer's own: the pages bring theirs.
void SetUpPaper(const reports::Report& report, QPrinter& printer);

} // namespace varnik::ui
