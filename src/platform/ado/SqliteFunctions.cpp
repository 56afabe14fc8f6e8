#include "platform/ado/SqliteEngine.h"

#include "platform/jet/Translate.h"

namespace varnik::ado {
namespace {

void Give(sqlite3_context* call, const Value& value) {
    if (value.IsNull()) return sqlite3_result_null(call);
    if (value.IsBool()) return sqlite3_result_int(call, value.Bool() ? -1 : 0);
    if (value.IsInteger()) return sqlite3_result_int64(call, value.Integer());
    if (value.IsDouble()) return sqlite3_result_double(call, value.Double());
    const std::string text = value.IsDate() ? ToIso(value.Date()) : value.Text();
    sqlite3_result_text64(call, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

// Runs the body; a refusal becomes the failure of the statement.
template <typename Body>
void Guarded(sqlite3_context* call, Body body) {
    auto* context = static_cast<SqliteContext*>(sqlite3_user_data(call));
    try {
        body(*context);
    } catch (const DataError& error) {
        context->pending = error;
        sqlite3_result_error(call, error.what(), -1);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(call);
    }
}

void AsStored(sqlite3_context* call, int, sqlite3_value** arguments) {
    Guarded(call, [&](SqliteContext& context) {
        Give(call, context.callbacks->AsStored(ReadSqliteValue(arguments[0]),
                                               static_cast<std::size_t>(sqlite3_value_int(arguments[1])),
                                               static_cast<std::size_t>(sqlite3_value_int(arguments[2]))));
    });
}

void ReadNumber(sqlite3_context* call, int, sqlite3_value** arguments) {
    Guarded(call, [&](SqliteContext& context) {
        Give(call, context.callbacks->ReadNumber(ReadSqliteValue(arguments[0])));
    });
}

// The right side of a division: a whole number would make the engine drop the fraction.
void Divisor(sqlite3_context* call, int, sqlite3_value** arguments) {
    Guarded(call, [&](SqliteContext&) {
        if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return sqlite3_result_null(call);
        const double divisor = sqlite3_value_double(arguments[0]);
        Divide(1, divisor);
        sqlite3_result_double(call, divisor);
    });
}

// The same for stored queries, which are not rewritten.
void Quotient(sqlite3_context* call, int, sqlite3_value** arguments) {
    Guarded(call, [&](SqliteContext&) {
        if (sqlite3_value_type(arguments[0]) == SQLITE_NULL ||
            sqlite3_value_type(arguments[1]) == SQLITE_NULL)
            return sqlite3_result_null(call);
        sqlite3_result_double(call,
                              Divide(sqlite3_value_double(arguments[0]), sqlite3_value_double(arguments[1])));
    });
}

void Like(sqlite3_context* call, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    const auto text = [](sqlite3_value* value) {
        const auto* start = reinterpret_cast<const char*>(sqlite3_value_text(value));
        return std::string_view(start == nullptr ? "" : start,
                                static_cast<std::size_t>(sqlite3_value_bytes(value)));
    };
    sqlite3_result_int(call, jet::Like(text(arguments[0]), text(arguments[1])) ? 1 : 0);
}

} // namespace

Value ReadSqliteValue(sqlite3_value* value) {
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return static_cast<std::int64_t>(sqlite3_value_int64(value));
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_NULL:
        return nullptr;
    default: {
        const auto* start = reinterpret_cast<const char*>(sqlite3_value_text(value));
        return std::string(start == nullptr ? "" : start,
                           static_cast<std::size_t>(sqlite3_value_bytes(value)));
    }
    }
}

void AddSqliteFunctions(sqlite3* database, SqliteContext* context) {
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    const auto add = [&](const char* name, int arguments,
                         void (*function)(sqlite3_context*, int, sqlite3_value**)) {
        sqlite3_create_function_v2(database, name, arguments, flags, context, function, nullptr, nullptr,
                                   nullptr);
    };
    add("AsStored", 3, AsStored);
    add("ReadNumber", 1, ReadNumber);
    add("Divisor", 1, Divisor);
    add("divide", 2, Quotient);
    add("like", 2, Like);
}

} // namespace varnik::ado
