#pragma once
// What a column makes of a value that is written into it: one rule for each type, the same for record
// updates and for SQL text.

#include "platform/ado/Ado.h"

namespace varnik::ado {

// The value as the column keeps it: numbers rounded by its width (single to four bytes, whole numbers half to
// even, decimal to its 15 certain digits), texts read by the machine's settings where a number or a date is
// wanted. Null stays Null. DataError: Overflow, TypeMismatch, or a text over the column's size.
Value ToColumn(const Value& value, const jet::Table& table, const jet::Column& column,
               const Regional& regional);

// A value as a number: texts are read by the machine's settings. TypeMismatch when it is none.
double ToDouble(const Value& value, const Regional& regional, const std::string& what);

} // namespace varnik::ado
