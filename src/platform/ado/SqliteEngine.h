#pragma once
// What the two files on the embedded engine share.

#include "platform/ado/Ado.h"
#include "platform/ado/Engine.h"

#include <sqlite3.h>

#include <optional>

namespace varnik::ado {

// The state that functions called by statements need.
struct SqliteContext {
    EngineCallbacks* callbacks = nullptr;
    std::optional<DataError> pending; // what a function refused, to be thrown by the step
    std::int64_t steps = 0;
};

// Adds the functions that rewritten statements and stored queries call: AsStored, ReadNumber, Divisor,
// divide, and a LIKE that knows letters beyond ASCII.
void AddSqliteFunctions(sqlite3* database, SqliteContext* context);

[[noreturn]] void ThrowSqliteError(sqlite3* database, int code);
Value ReadSqliteValue(sqlite3_value* value);

} // namespace varnik::ado
