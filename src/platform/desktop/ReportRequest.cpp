#include "platform/desktop/ReportRequest.h"

namespace varnik {

void ReportRequest::SetTitles(int first, const std::string& name, const std::string& line1,
                              const std::string& line2, const std::string& line3) {
    // The texts stand as they are: an apostrophe in one breaks its formula, and the engine says so.
    Formulas[first] = "Judul1 ='" + name + "'";
    Formulas[first + 1] = "Judul2 ='" + line1 + "'";
    Formulas[first + 2] = "Judul3 ='" + line2 + "'";
    Formulas[first + 3] = "Judul4 ='" + line3 + "'";
}

} // namespace varnik
