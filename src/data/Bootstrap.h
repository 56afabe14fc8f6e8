#pragma once
// The first thing at every start: there is a database, and the data source points at it. A missing one is
// made with all tables, stored queries and the rows that a new shop begins with; an existing one is not
// touched.

#include "platform/desktop/Services.h"

#include <filesystem>
#include <string>

namespace varnik::data {

// Makes the database when there is none: true when it made one, false when the file was there. It is built
// under another name and gets its own when it is whole, so a start that was cut off leaves nothing half
// built. DataError, and nothing left behind, when it cannot be made.
bool CreateDatabaseCatalog(const Services& services);

// Makes sure of database and data source. DataError when there is no database of this program and none can
// be made; the message says why.
void BootstrapDatabase(Services& services);

// Nothing when the file is a database of this program, else what is wrong with it in plain English.
std::string CheckShopDatabase(const ado::Environment& environment, const std::filesystem::path& file);
// What of the tables, columns, keys and stored queries of this program a database lacks, the first of it; ""
// when it is whole. Look-up indexes may be missing: without them it is slow. DataError when it cannot be
// read.
std::string WhatIsMissing(const ado::Environment& environment, const std::filesystem::path& file);

} // namespace varnik::data
