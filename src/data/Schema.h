#pragma once
// The database of the shop: its 32 tables, their keys, and the catalog that the data layers read names,
// types and sizes from. There are no relations: what binds tables together is the screens' work.

#include "platform/ado/Ado.h"
#include "platform/jet/Catalog.h"

#include <span>

namespace varnik::data {

std::span<const jet::Table> Tables();         // in creation order
std::span<const ado::Index> PrimaryIndexes(); // created after all tables
std::span<const ado::Index> UniqueKeys();     // created after the primary indexes

// Valid for the whole run.
const jet::Catalog& Catalog();

} // namespace varnik::data
