#pragma once
// The statements by which rows of one table are written, one by its number or a new one. Parameters are
// counted from 1 in the order in which their columns are given.

#include "platform/jet/Catalog.h"

#include <string>
#include <vector>

namespace varnik::ado {

// A column of the table that is to be written.
struct WrittenColumn {
    std::size_t index = 0; // in the table
    bool adds = false;     // its parameter is added to what the row holds, else put in its place
    bool floor = false;    // of one that adds: nothing is written where the sum would be below 0
};

// All columns of a new row.
std::string InsertStatement(const jet::Table& table);

// The row whose number is the parameter behind those of the columns. With "asRead", behind that come the
// values that the accumulating ones of the columns had when they were read, in their order: a row that holds
// others by now is left alone.
std::string UpdateStatement(const jet::Table& table, const std::vector<WrittenColumn>& columns, bool asRead);

// The same row where others wrote in between; answers with the columns that add, in their order. "number" is
// the table's in the catalog, by which the engine asks for the column's rule.
std::string AddStatement(const jet::Table& table, std::size_t number,
                         const std::vector<WrittenColumn>& columns);

// The row whose number is the parameter.
std::string DeleteStatement(const jet::Table& table);

} // namespace varnik::ado
