#include "tests/soak/Books.h"

#include <sqlite3.h>
#include <stdexcept>

namespace varnik::soak {
namespace {

constexpr std::uint64_t Start = 14695981039346656037U, Prime = 1099511628211U;

void Mix(std::uint64_t& print, const void* bytes, std::size_t size) {
    for (const auto* at = static_cast<const unsigned char*>(bytes); size > 0; --size, ++at)
        print = (print ^ *at) * Prime;
}

std::function<void()>& Watcher() {
    static std::function<void()> watcher;
    return watcher;
}

int Finished(unsigned, void*, void* statement, void*) {
    if (sqlite3_stmt_readonly(static_cast<sqlite3_stmt*>(statement)) == 0) Watcher()();
    return 0;
}

int Watch(sqlite3* database, const char**, const void*) {
    return sqlite3_trace_v2(database, SQLITE_TRACE_PROFILE, Finished, nullptr);
}

int CarryOver(sqlite3* database, const char**, const void*) {
    return sqlite3_wal_autocheckpoint(database, 1);
}

class Query {
public:
    Query(sqlite3* database, const std::string& sql) : database_(database) {
        if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement_, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(database));
    }
    ~Query() { sqlite3_finalize(statement_); }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    bool Step() {
        const int code = sqlite3_step(statement_);
        if (code != SQLITE_ROW && code != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(database_));
        return code == SQLITE_ROW;
    }
    std::string Text(int column) {
        const void* bytes = sqlite3_column_text(statement_, column);
        if (bytes == nullptr) return {};
        return {static_cast<const char*>(bytes),
                static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
    }
    int Columns() { return sqlite3_column_count(statement_); }
    int Type(int column) { return sqlite3_column_type(statement_, column); }

private:
    sqlite3* database_;
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace

BookReader::BookReader(const std::filesystem::path& database) {
    const int code = sqlite3_open_v2(database.c_str(), &database_, SQLITE_OPEN_READWRITE, "unix");
    sqlite3_trace_v2(database_, 0, nullptr, nullptr);
    sqlite3_busy_timeout(database_, 60000);
    if (code != SQLITE_OK) throw std::runtime_error("cannot open " + database.string());
}

BookReader::~BookReader() { sqlite3_close(database_); }

Books BookReader::Read() {
    Books books;
    for (Query tables(database_, "SELECT name FROM sqlite_master WHERE type = 'table'"); tables.Step();) {
        std::uint64_t print = Start;
        for (Query rows(database_, "SELECT rowid, * FROM \"" + tables.Text(0) + "\""); rows.Step();)
            for (int column = 0; column < rows.Columns(); ++column) {
                const int type = rows.Type(column);
                const std::string text = rows.Text(column);
                Mix(print, &type, sizeof type);
                Mix(print, text.data(), text.size());
            }
        books[tables.Text(0)] = print;
    }
    return books;
}

std::string BookReader::Integrity() {
    Query check(database_, "PRAGMA integrity_check");
    check.Step();
    return check.Text(0);
}

std::vector<std::vector<std::string>> BookReader::Rows(const std::string& sql) {
    std::vector<std::vector<std::string>> rows;
    for (Query query(database_, sql); query.Step();) {
        rows.emplace_back();
        for (int column = 0; column < query.Columns(); ++column) rows.back().push_back(query.Text(column));
    }
    return rows;
}

std::string Written(const Books& books) {
    std::string text = "state";
    for (const auto& [name, print] : books) text += " " + name + " " + std::to_string(print);
    return text;
}

Books Heard(std::istream& words) {
    Books books;
    std::string name;
    for (std::uint64_t print = 0; words >> name >> print;) books[name] = print;
    return books;
}

std::string Differences(const Books& a, const Books& b) {
    std::string names;
    for (const auto& [name, print] : a) {
        const auto other = b.find(name);
        if (other == b.end() || other->second != print) names += (names.empty() ? "" : ", ") + name;
    }
    return names;
}

void CarryOverAlways() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(CarryOver)); }

void LeaveTheLog(const std::filesystem::path& database) {
    sqlite3* opened = nullptr;
    sqlite3_open_v2(database.c_str(), &opened, SQLITE_OPEN_READWRITE, "unix");
    const int code = sqlite3_exec(opened, "PRAGMA journal_mode=DELETE", nullptr, nullptr, nullptr);
    sqlite3_close(opened);
    if (code != SQLITE_OK) throw std::runtime_error("the log stays");
}

void WatchWrites(std::function<void()> wrote) {
    Watcher() = std::move(wrote);
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(Watch));
}

} // namespace varnik::soak
