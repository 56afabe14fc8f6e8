#include "platform/ado/Session.h"

#include "common/Text.h"
#include "platform/ado/RowStatements.h"

#include <mutex>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace varnik::ado {

void Running::Read(int column, Value& value) const {
    compiled_->statement->Read(column, value);
    const auto index = static_cast<std::size_t>(column);
    if (index >= compiled_->fields.size() || compiled_->fields[index].column == nullptr || value.IsNull())
        return;
    switch (compiled_->fields[index].column->type) {
    case jet::ColumnType::Boolean:
        if (value.IsInteger()) value = value.Integer() != 0;
        break;
    case jet::ColumnType::Date:
        if (value.IsText()) {
            if (const std::optional<DateTime> date = FromIso(value.Text())) value = *date;
        }
        break;
    case jet::ColumnType::Single:
    case jet::ColumnType::Double:
    case jet::ColumnType::Decimal:
        if (value.IsInteger()) value = static_cast<double>(value.Integer());
        break;
    default:
        break;
    }
}

Session::Session(const std::filesystem::path& file, std::shared_ptr<FileState> state,
                 const Environment& environment)
    : file_(file), state_(std::move(state)), environment_(&environment) {
    engine_ = Guard([&] { return OpenEngine(file_, JournalFor(file_)); });
    engine_->Surround(this, environment.busyTimeoutMs);
}

void Session::Surround(const Environment& environment) {
    // What was rewritten points into the catalog it was written for.
    if (environment.catalog.tables.data() != environment_->catalog.tables.data()) {
        forms_.Clear();
        compiled_.Clear();
        inserts_.clear();
        joined_.clear();
    }
    environment_ = &environment;
    engine_->Surround(this, environment.busyTimeoutMs);
}

namespace {

// The values of a column from one to the next, each a seek in the column's index: the engine itself would
// read every row of the table to list a handful of units.
std::string WalkOf(const jet::Table& table, const jet::Column& column) {
    const std::string name(column.name), from = " from " + std::string(table.name);
    const std::string next = " order by " + name + " limit 1";
    return "with recursive walk(value) as (select * from (select " + name + from + " where " + name +
           " is not null" + next + ") union all select (select " + name + from + " where " + name +
           " > walk.value" + next + ") from walk where walk.value is not null) select null as " + name +
           " where exists (select 1" + from + " where " + name +
           " is null) union all select value from walk where value is not null";
}

} // namespace

const JoinedQuery* Session::FindJoinedQuery(const std::string& name) {
    const auto [at, fresh] = joined_.try_emplace(name);
    if (fresh) {
        const std::unique_ptr<EngineStatement> read =
            engine_->Compile("select sql from sqlite_master where type = 'view' and name = ? collate nocase");
        read->Bind(1, name);
        Value text;
        if (read->Step()) read->Read(0, text);
        // The query stands behind "CREATE VIEW name AS".
        const std::string definition = text.IsText() ? text.Text() : "";
        const std::size_t begin = Upper(definition).find("SELECT");
        if (begin != std::string::npos)
            at->second = ReadJoinedQuery(std::string_view(definition).substr(begin), environment_->catalog);
    }
    return at->second ? &*at->second : nullptr;
}

bool Session::HasIndex(const jet::Table& table, const jet::Column& firstColumn) {
    const auto text = [](std::string_view name) { return "'" + std::string(name) + "'"; };
    return engine_
        ->Compile("select 1 from pragma_index_list(" + text(table.name) +
                  ") as list, pragma_index_info(list.name) as part where list.partial = 0 and part.seqno = 0 "
                  "and part.name = " +
                  text(firstColumn.name) + " collate nocase")
        ->Step();
}

std::shared_ptr<const jet::Form> Session::FormOf(const jet::Tokens& tokens) {
    if (std::shared_ptr<const jet::Form> known = forms_.Find(tokens.shape)) {
        ++statistics_.reuses;
        return known;
    }
    ++statistics_.rewrites;
    auto form = std::make_shared<jet::Form>(jet::Rewrite(tokens, environment_->catalog));
    if (const jet::Table* table = form->statement.groupedTable;
        table != nullptr && HasIndex(*table, *form->statement.groupedColumn))
        form->statement.sql = WalkOf(*table, *form->statement.groupedColumn);
    forms_.Keep(tokens.shape, form);
    return form;
}

std::shared_ptr<Compiled> Session::Compile(const std::string& sql) {
    if (std::shared_ptr<Compiled> known = compiled_.Find(sql)) return known;
    ++statistics_.compilations;
    auto compiled = std::make_shared<Compiled>();
    compiled->statement = engine_->Compile(sql);
    for (int i = 0; i < compiled->statement->ColumnCount(); ++i) {
        const ResultColumn column = compiled->statement->Column(i);
        ResultField field{column.name, environment_->catalog.FindTable(column.table), nullptr};
        if (field.table != nullptr) field.column = jet::FindColumn(*field.table, column.column);
        compiled->fields.push_back(std::move(field));
    }
    compiled_.Keep(sql, compiled);
    return compiled;
}

std::shared_ptr<Compiled> Session::CompileInsert(const jet::Table& table) {
    std::shared_ptr<Compiled>& known = inserts_[&table];
    if (known) return known;
    known = Compile(InsertStatement(table));
    return known;
}

long Session::Write(Running& running, const std::function<void()>& answer) {
    while (running.Step())
        if (answer) answer();
    ++state_->writes;
    state_->unsynced = true;
    return engine_->Changes();
}

void Session::RunNative(std::string_view script) {
    forms_.Clear();
    compiled_.Clear();
    inserts_.clear();
    joined_.clear();
    engine_->Run(script);
    ++state_->writes;
    state_->unsynced = true;
}

void Session::Sync() {
    if (!state_->unsynced) return;
    engine_->Sync();
    state_->unsynced = false;
    ++state_->syncs;
}

Value Session::AsStored(const Value& value, std::size_t table, std::size_t column) {
    const jet::Table& target = environment_->catalog.tables[table];
    return ToColumn(value, target, target.columns[column], *environment_->regional);
}

Value Session::ReadNumber(const Value& value) {
    if (value.IsNull()) return value;
    return ToDouble(value, *environment_->regional, "A sum");
}

namespace {

// Tells one file from another that came to stand under its name.
std::string IdentityOf(const std::filesystem::path& file) {
#ifndef _WIN32
    struct stat information = {};
    if (stat(file.c_str(), &information) != 0) return {};
    return std::to_string(information.st_dev) + ":" + std::to_string(information.st_ino);
#else
    std::error_code ignored;
    return std::filesystem::exists(file, ignored) ? file.string() : std::string();
#endif
}

struct Pool {
    static constexpr std::size_t IdlePerFile = 4;
    std::mutex guard;
    std::vector<std::shared_ptr<Session>> idle;
    std::vector<std::weak_ptr<Session>> busy;
    std::map<std::string, std::shared_ptr<FileState>> states;
};

Pool& ThePool() {
    static Pool pool;
    return pool;
}

} // namespace

std::shared_ptr<Session> TakeSession(const std::filesystem::path& file, const Environment& environment) {
    Pool& pool = ThePool();
    const std::lock_guard lock(pool.guard);
    const std::string identity = IdentityOf(file);
    // A file that was moved away keeps no idle sessions under its old name.
    std::erase_if(pool.idle, [&](const auto& session) {
        return session->File() == file && session->identity != identity;
    });
    std::erase_if(pool.busy, [](const auto& session) { return session.expired(); });
    std::shared_ptr<Session> taken;
    for (auto at = pool.idle.begin(); at != pool.idle.end() && !taken; ++at) {
        if ((*at)->identity != identity || (*at)->File() != file) continue;
        taken = *at;
        pool.idle.erase(at);
        taken->Surround(environment);
        break;
    }
    if (!taken) {
        std::shared_ptr<FileState>& state = pool.states[identity];
        if (!state) state = std::make_shared<FileState>();
        taken = std::make_shared<Session>(file, state, environment);
        taken->identity = identity;
    }
    pool.busy.push_back(taken);
    return taken;
}

void ReturnSession(std::shared_ptr<Session> session) {
    Pool& pool = ThePool();
    const std::lock_guard lock(pool.guard);
    std::erase_if(pool.busy, [&](const auto& other) { return other.expired() || other.lock() == session; });
    const auto same = std::count_if(pool.idle.begin(), pool.idle.end(),
                                    [&](const auto& other) { return other->identity == session->identity; });
    if (static_cast<std::size_t>(same) < Pool::IdlePerFile &&
        IdentityOf(session->File()) == session->identity)
        pool.idle.push_back(std::move(session));
}

void ReleaseSessions(const std::filesystem::path& file) {
    Pool& pool = ThePool();
    const std::lock_guard lock(pool.guard);
    std::erase_if(pool.idle, [&](const auto& session) { return session->File() == file; });
}

void NoteForeignWrite(const std::filesystem::path& file) {
    Pool& pool = ThePool();
    const std::lock_guard lock(pool.guard);
    const auto state = pool.states.find(IdentityOf(file));
    if (state != pool.states.end()) ++state->second->writes;
}

void SyncSessions() {
    Pool& pool = ThePool();
    const std::lock_guard lock(pool.guard);
    for (const std::weak_ptr<Session>& one : pool.busy) {
        if (const std::shared_ptr<Session> session = one.lock()) session->Guard([&] { session->Sync(); });
    }
}

} // namespace varnik::ado
