#include "app/PdfWriter.h"

namespace varnik {

std::function<void(const reports::Report&, const std::filesystem::path&)> PdfWriter() { return {}; }

} // namespace varnik
