#pragma once
// The two kinds of named texts in a request.

#include "platform/desktop/ReportRequest.h"

#include <map>
#include <string>

namespace varnik::reports {

// "Judul1 ='text'" -> Judul1, text. DataError for anything that is not a name, "=" and one text between
// apostrophes: a company text with an apostrophe in it breaks its formula, and with it the request.
std::map<std::string, std::string> ReadFormulas(const ReportRequest& request);
// "Detail;S;True" -> Detail, S. The value may hold further semicolons.
std::map<std::string, std::string> ReadParameters(const ReportRequest& request);

} // namespace varnik::reports
