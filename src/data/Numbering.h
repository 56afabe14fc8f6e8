#pragma once
// The next number of a document, read from the documents that stand. Nothing reserves it: it takes effect
// when the document is saved.

#include "common/Numbering.h"
#include "platform/desktop/Services.h"

#include <string>

namespace varnik::data {

// For the user of the session, on a connection of its own; a failing statement throws DataError.
std::string NextNumber(const Services& services, Document document);

} // namespace varnik::data
