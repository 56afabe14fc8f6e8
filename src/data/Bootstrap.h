#pragma once
// First run: makes sure, at every start and before anything else touches the data, that the database file
// exists and that the data source points at it.

namespace varnik {

struct Services;

namespace data {

// Creates Data/Varnik.mdb below the program's folder when it is missing, with its tables, keys, stored
// queries and first rows; in any case writes the data source.
void BootstrapDatabase(Services& services);

} // namespace data
} // namespace varnik
