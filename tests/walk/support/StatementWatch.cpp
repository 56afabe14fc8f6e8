#include "tests/walk/support/StatementWatch.h"

#include <sqlite3.h>

namespace varnik::walk {

namespace {

constexpr int StepsOfATurn = 10'000;    // of the engine, between two looks
constexpr long TurnsOfAnAction = 5'000; // the longest actions of a small shop take a few dozen
constexpr long StatementsOfAnAction = 100'000;

struct Counts {
    long statements = 0, atBegin = 0, turns = 0;
    std::vector<std::string> written;
} counts;

bool TooMany() {
    return counts.turns > TurnsOfAnAction || counts.statements - counts.atBegin > StatementsOfAnAction;
}

int OnTurn(void*) {
    ++counts.turns;
    return TooMany() ? 1 : 0;
}

int OnStatement(unsigned, void*, void* statement, void* text) {
    ++counts.statements;
    const std::string_view words(static_cast<const char*>(text));
    if (words.starts_with("PRAGMA journal_mode")) return 0; // how the file is opened
    if (!sqlite3_stmt_readonly(static_cast<sqlite3_stmt*>(statement))) counts.written.emplace_back(words);
    return 0;
}

int OnOpen(sqlite3* database, const char**, const sqlite3_api_routines*) {
    sqlite3_progress_handler(database, StepsOfATurn, OnTurn, nullptr);
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, OnStatement, nullptr);
}

} // namespace

void StatementWatch::Install() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(OnOpen)); }

void StatementWatch::BeginAction() {
    counts.turns = 0;
    counts.atBegin = counts.statements;
}

bool StatementWatch::RanAway() { return TooMany(); }
long StatementWatch::Statements() { return counts.statements; }
const std::vector<std::string>& StatementWatch::Written() { return counts.written; }
void StatementWatch::ForgetWritten() { counts.written.clear(); }

} // namespace varnik::walk
