#include "bench/Recorder.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>

namespace varnik::bench {

namespace {

struct Listener {
    std::vector<sqlite3*> connections;
    bool writing = false;
    std::vector<Asked> asked;
    std::unordered_map<sqlite3_stmt*, std::size_t> running;
};

// Never taken down: connections that live as long as the program are heard closing at its very end.
Listener& Ear() {
    static Listener& ear = *new Listener;
    return ear;
}

void Note(sqlite3_stmt* statement, const char* text) {
    // A trigger's or a view's own statements come as comments; what writes cannot be done twice.
    if (text == nullptr || text[0] == '-' || sqlite3_stmt_readonly(statement) == 0) return;
    char* whole = sqlite3_expanded_sql(statement);
    if (whole == nullptr) return;
    Ear().running[statement] = Ear().asked.size();
    Ear().asked.push_back({sqlite3_db_handle(statement), whole, 0});
    sqlite3_free(whole);
}

int Heard(unsigned kind, void*, void* subject, void* text) {
    if (kind == SQLITE_TRACE_CLOSE) {
        std::erase(Ear().connections, static_cast<sqlite3*>(subject));
    } else if (!Ear().writing) {
        return 0;
    } else if (kind == SQLITE_TRACE_STMT) {
        Note(static_cast<sqlite3_stmt*>(subject), static_cast<const char*>(text));
    } else if (const auto at = Ear().running.find(static_cast<sqlite3_stmt*>(subject));
               at != Ear().running.end()) {
        ++Ear().asked[at->second].rows;
    }
    return 0;
}

// Rows are heard of only while somebody writes them down: hearing costs time.
void Listen(sqlite3* connection) {
    const unsigned rows = Ear().writing ? SQLITE_TRACE_STMT | SQLITE_TRACE_ROW : 0;
    sqlite3_trace_v2(connection, SQLITE_TRACE_CLOSE | rows, Heard, nullptr);
}

int Opened(sqlite3* connection, char**, const sqlite3_api_routines*) {
    Ear().connections.push_back(connection);
    Listen(connection);
    return SQLITE_OK;
}

} // namespace

void ListenToConnections() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(Opened)); }

std::vector<Asked> StatementsOf(const std::function<void()>& work) {
    const auto listen = [](bool writing) {
        Ear().writing = writing;
        for (sqlite3* connection : Ear().connections) Listen(connection);
    };
    Ear().asked.clear();
    Ear().running.clear();
    listen(true);
    work();
    listen(false);
    return std::move(Ear().asked);
}

Replay::Replay(const std::vector<Asked>& asked) {
    for (const Asked& each : asked) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v3(each.connection, each.sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement,
                               nullptr) != SQLITE_OK)
            throw std::runtime_error(std::string(sqlite3_errmsg(each.connection)) + " in " + each.sql);
        steps_.push_back({statement, each.rows});
    }
}

Replay::~Replay() {
    for (const Step& step : steps_) sqlite3_finalize(step.statement);
}

long Replay::Run() {
    long cells = 0;
    for (const Step& step : steps_) {
        long rows = 0;
        while (sqlite3_step(step.statement) == SQLITE_ROW) {
            const int columns = sqlite3_column_count(step.statement);
            for (int i = 0; i < columns; ++i) cells += sqlite3_column_bytes(step.statement, i) > 0;
            if (++rows >= step.rows) break;
        }
        sqlite3_reset(step.statement);
    }
    return cells;
}

} // namespace varnik::bench
