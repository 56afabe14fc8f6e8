#include "platform/ado/SqliteEngine.h"

#include <array>
#include <cstdio>
#include <fstream>

#ifdef __linux__
#include <sys/vfs.h>
#endif

namespace varnik::ado {
namespace {

constexpr int ApplicationId = 0x56724E6B; // marks a file that this layer created

Fault FaultOf(int code, std::string& message) {
    const auto starts = [&](std::string_view text) { return message.compare(0, text.size(), text) == 0; };
    const auto cut = [&](std::string_view text) { message.erase(0, text.size()); };
    switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
        for (const auto& [text, fault] :
             {std::pair<std::string_view, Fault>{"NOT NULL constraint failed: ", Fault::Required},
              {"CHECK constraint failed: ", Fault::TooLong},
              {"UNIQUE constraint failed: ", Fault::Duplicate}}) {
            if (starts(text)) return cut(text), fault;
        }
        return Fault::Other;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Fault::Busy;
    case SQLITE_READONLY:
        return Fault::ReadOnly;
    case SQLITE_FULL:
        return Fault::Full;
    case SQLITE_NOTADB:
        return Fault::NotDatabase;
    case SQLITE_CORRUPT:
        return Fault::Damaged;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return Fault::CannotOpen;
    case SQLITE_INTERRUPT:
        return Fault::Interrupted;
    case SQLITE_IOERR:
        return Fault::Input;
    case SQLITE_ERROR:
        for (const std::string_view text : {"no such table: ", "no such view: "}) {
            if (starts(text)) return cut(text), Fault::NoTable;
        }
        if (starts("no such column: ")) return cut("no such column: "), Fault::NoColumn;
        if (message.find(" has no column named ") != std::string::npos) return Fault::NoColumn;
        if (message.find("values for") != std::string::npos ||
            message.find("values were supplied") != std::string::npos)
            return Fault::ValueCount;
        return Fault::Syntax;
    default:
        return Fault::Other;
    }
}

[[noreturn]] void Throw(Fault fault, std::string detail = {}) { throw EngineError{fault, std::move(detail)}; }

class SqliteStatement final : public EngineStatement {
public:
    SqliteStatement(sqlite3* database, sqlite3_stmt* statement, SqliteContext& context)
        : database_(database), statement_(statement), context_(context) {}
    ~SqliteStatement() override { sqlite3_finalize(statement_); }
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;

    void Bind(int index, const Value& value) override {
        int code = SQLITE_OK;
        if (value.IsNull()) {
            code = sqlite3_bind_null(statement_, index);
        } else if (value.IsBool()) {
            code = sqlite3_bind_int(statement_, index, value.Bool() ? -1 : 0);
        } else if (value.IsInteger()) {
            code = sqlite3_bind_int64(statement_, index, value.Integer());
        } else if (value.IsDouble()) {
            code = sqlite3_bind_double(statement_, index, value.Double());
        } else {
            const std::string iso = value.IsDate() ? ToIso(value.Date()) : std::string();
            const std::string& text = value.IsDate() ? iso : value.Text();
            code = sqlite3_bind_text64(statement_, index, text.data(), text.size(), SQLITE_TRANSIENT,
                                       SQLITE_UTF8);
        }
        if (code != SQLITE_OK) ThrowSqliteError(database_, code);
    }

    bool Step() override {
        const int code = sqlite3_step(statement_);
        if (code == SQLITE_ROW) return true;
        if (code == SQLITE_DONE) return false;
        if (context_.pending) {
            const DataError refused = *context_.pending;
            context_.pending.reset();
            Reset();
            throw refused;
        }
        try {
            ThrowSqliteError(database_, code);
        } catch (...) {
            Reset();
            throw;
        }
    }

    void Reset() override {
        sqlite3_reset(statement_);
        context_.steps += sqlite3_stmt_status(statement_, SQLITE_STMTSTATUS_VM_STEP, 1);
    }
    bool Writes() const override { return sqlite3_stmt_readonly(statement_) == 0; }
    int ColumnCount() const override { return sqlite3_column_count(statement_); }

    ResultColumn Column(int index) const override {
        const auto text = [](const char* name) { return std::string(name == nullptr ? "" : name); };
        return {text(sqlite3_column_name(statement_, index)),
                text(sqlite3_column_table_name(statement_, index)),
                text(sqlite3_column_origin_name(statement_, index))};
    }

    void Read(int column, Value& value) const override {
        switch (sqlite3_column_type(statement_, column)) {
        case SQLITE_INTEGER:
            value = static_cast<std::int64_t>(sqlite3_column_int64(statement_, column));
            break;
        case SQLITE_FLOAT:
            value = sqlite3_column_double(statement_, column);
            break;
        case SQLITE_NULL:
            value = Value();
            break;
        default: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
            value = std::string(text == nullptr ? "" : text,
                                static_cast<std::size_t>(sqlite3_column_bytes(statement_, column)));
        }
        }
    }
    std::int64_t ReadInteger(int column) const override { return sqlite3_column_int64(statement_, column); }

private:
    sqlite3* database_;
    sqlite3_stmt* statement_;
    SqliteContext& context_;
};

class SqliteEngine final : public Engine {
public:
    explicit SqliteEngine(sqlite3* database) : database_(database) {
        // A name in double quotes that is unknown must be an error, not a text.
        sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
        sqlite3_extended_result_codes(database_, 1);
        AddSqliteFunctions(database_, &context_);
    }
    ~SqliteEngine() override {
        version_.reset();
        sqlite3_close_v2(database_);
    }
    SqliteEngine(const SqliteEngine&) = delete;
    SqliteEngine& operator=(const SqliteEngine&) = delete;

    std::unique_ptr<EngineStatement> Compile(std::string_view sql) override {
        sqlite3_stmt* statement = nullptr;
        const int code = sqlite3_prepare_v3(database_, sql.data(), static_cast<int>(sql.size()),
                                            SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
        if (code != SQLITE_OK) ThrowSqliteError(database_, code);
        if (statement == nullptr) Throw(Fault::Syntax, "the statement is empty");
        return std::make_unique<SqliteStatement>(database_, statement, context_);
    }
    void Run(std::string_view script) override {
        const int code = sqlite3_exec(database_, std::string(script).c_str(), nullptr, nullptr, nullptr);
        if (code != SQLITE_OK) ThrowSqliteError(database_, code);
    }
    long Changes() const override { return static_cast<long>(sqlite3_changes64(database_)); }
    std::int64_t LastRow() const override { return sqlite3_last_insert_rowid(database_); }
    std::int64_t ForeignChanges() override {
        if (!version_) version_ = Compile("PRAGMA data_version");
        version_->Step();
        const std::int64_t version = version_->ReadInteger(0);
        version_->Reset();
        return version;
    }
    // The log is one file for all connections, so that one sync covers what each of them committed.
    void Sync() override {
        sqlite3_file* log = nullptr;
        sqlite3_file_control(database_, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
        if (log == nullptr || log->pMethods == nullptr) return;
        const int code = log->pMethods->xSync(log, SQLITE_SYNC_NORMAL);
        if (code != SQLITE_OK) ThrowSqliteError(database_, code);
    }
    void Watch(std::function<bool()> goOn) override {
        constexpr int Steps = 20000; // about a millisecond
        goOn_ = std::move(goOn);
        const auto ask = [](void* engine) { return static_cast<SqliteEngine*>(engine)->goOn_() ? 0 : 1; };
        if (goOn_)
            sqlite3_progress_handler(database_, Steps, ask, this);
        else
            sqlite3_progress_handler(database_, 0, nullptr, nullptr);
    }
    void Surround(EngineCallbacks* callbacks, int busyTimeoutMs) override {
        context_.callbacks = callbacks;
        sqlite3_busy_timeout(database_, busyTimeoutMs);
    }
    std::int64_t Steps() const override { return context_.steps; }
    sqlite3* Handle() const { return database_; }

    std::string Text(std::string_view query) {
        const std::unique_ptr<EngineStatement> statement = Compile(query);
        Value value;
        if (statement->Step()) statement->Read(0, value);
        return value.IsText()      ? value.Text()
               : value.IsInteger() ? std::to_string(value.Integer())
                                   : std::string();
    }

private:
    sqlite3* database_;
    SqliteContext context_;
    std::function<bool()> goOn_;
    std::unique_ptr<EngineStatement> version_;
};

// Reading the schema shows what is no database or cut off.
constexpr std::string_view ReadSomething = "SELECT count(*) FROM sqlite_master";

// The engine takes an empty file for an empty database and would write into it.
void RequireDatabase(const std::filesystem::path& file) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(file, failure);
    if (status.type() == std::filesystem::file_type::not_found) Throw(Fault::CannotOpen, "missing");
    if (status.type() == std::filesystem::file_type::directory) Throw(Fault::NotDatabase);
    std::ifstream stream(file, std::ios::binary);
    if (!stream) Throw(Fault::CannotOpen, "denied");
    char head[16] = {};
    stream.read(head, sizeof head);
    if (stream.gcount() != sizeof head ||
        std::string_view(head, 16) != std::string_view("SQLite format 3\0", 16))
        Throw(Fault::NotDatabase);
}

std::unique_ptr<SqliteEngine> Connect(const std::filesystem::path& file, int flags) {
    sqlite3* database = nullptr;
    const int code = sqlite3_open_v2(file.string().c_str(), &database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    auto engine = std::make_unique<SqliteEngine>(database);
    if (code != SQLITE_OK) ThrowSqliteError(database, code);
    engine->Surround(nullptr, 10000);
    return engine;
}

void Configure(SqliteEngine& engine, Journal journal) {
    engine.Run("PRAGMA cache_size=-4000; PRAGMA secure_delete=0; PRAGMA temp_store=MEMORY");
    const bool own = engine.Text("PRAGMA application_id") == std::to_string(ApplicationId);
    const bool writable = sqlite3_db_readonly(engine.Handle(), "main") == 0;
    const std::string wanted = journal == Journal::SharedLog ? "wal" : "delete";
    std::string present = engine.Text("PRAGMA journal_mode");
    if (own && writable && present != wanted) present = engine.Text("PRAGMA journal_mode=" + wanted);
    // In the log a commit needs no sync to keep the file sound; without it every commit needs one.
    engine.Run(present == "wal" ? "PRAGMA synchronous=NORMAL" : "PRAGMA synchronous=FULL");
}

} // namespace

void ThrowSqliteError(sqlite3* database, int code) {
    std::string message = database == nullptr ? "out of memory" : sqlite3_errmsg(database);
    const Fault fault = FaultOf(code, message);
    throw EngineError{fault, std::move(message)};
}

Journal JournalFor([[maybe_unused]] const std::filesystem::path& file) {
#ifdef __linux__
    struct statfs information = {};
    if (statfs(file.c_str(), &information) != 0) return Journal::SharedLog;
    constexpr std::array<unsigned long, 6> network = {0x6969,     0x517B,     0xFF534D42,
                                                      0xFE534D42, 0x01021997, 0x5346414F};
    for (const unsigned long type : network) {
        if (static_cast<unsigned long>(information.f_type) == type) return Journal::Rollback;
    }
#endif
    return Journal::SharedLog;
}

std::unique_ptr<Engine> OpenEngine(const std::filesystem::path& file, Journal journal) {
    RequireDatabase(file);
    try {
        std::unique_ptr<SqliteEngine> engine = Connect(file, SQLITE_OPEN_READWRITE);
        // A file that comes from another machine with a log: it is taken over without shared memory.
        if (journal == Journal::Rollback) engine->Run("PRAGMA locking_mode=EXCLUSIVE");
        engine->Text(ReadSomething);
        Configure(*engine, journal);
        if (journal == Journal::Rollback) {
            engine->Run("PRAGMA locking_mode=NORMAL");
            engine->Text(ReadSomething);
        }
        return engine;
    } catch (const EngineError& error) {
        // The file could be read: what is missing is a log beside it.
        if (error.fault == Fault::CannotOpen) Throw(Fault::ReadOnly);
        throw;
    }
}

void CreateEngineFile(const std::filesystem::path& file) {
    std::FILE* fresh = std::fopen(file.string().c_str(), "wbx");
    if (fresh == nullptr) {
        std::error_code ignored;
        Throw(Fault::CannotOpen, std::filesystem::exists(file, ignored) ? "exists" : "denied");
    }
    std::fclose(fresh);
    try {
        std::unique_ptr<SqliteEngine> engine = Connect(file, SQLITE_OPEN_READWRITE);
        engine->Run("PRAGMA page_size=4096; PRAGMA auto_vacuum=NONE; BEGIN; PRAGMA application_id=" +
                    std::to_string(ApplicationId) + "; CREATE TABLE start (x); DROP TABLE start; COMMIT");
        Configure(*engine, JournalFor(file));
    } catch (...) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        throw;
    }
}

void CopyEngineFile(const std::filesystem::path& from, const std::filesystem::path& to, bool toLive) {
    RequireDatabase(from);
    const std::unique_ptr<SqliteEngine> source = Connect(from, SQLITE_OPEN_READONLY);
    source->Text(ReadSomething);
    if (toLive) RequireDatabase(to);
    const std::unique_ptr<SqliteEngine> target =
        Connect(to, toLive ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    if (toLive) Configure(*target, JournalFor(to));
    sqlite3_backup* copy = sqlite3_backup_init(target->Handle(), "main", source->Handle(), "main");
    if (copy == nullptr) ThrowSqliteError(target->Handle(), sqlite3_errcode(target->Handle()));
    int code = SQLITE_OK;
    // In one go, so that nothing is written in between; the busy time-out of the target does not apply here.
    for (int attempt = 0; attempt < 200; ++attempt) {
        code = sqlite3_backup_step(copy, -1);
        if (code != SQLITE_BUSY && code != SQLITE_LOCKED) break;
        sqlite3_sleep(50);
    }
    sqlite3_backup_finish(copy);
    if (code != SQLITE_DONE) ThrowSqliteError(target->Handle(), code);
    // A backup is one file, without a log beside it.
    if (!toLive) target->Run("PRAGMA journal_mode=DELETE");
    target->Sync();
}

std::string CheckEngineFile(const std::filesystem::path& file) {
    RequireDatabase(file);
    const std::unique_ptr<SqliteEngine> engine = Connect(file, SQLITE_OPEN_READONLY);
    const std::string answer = engine->Text("PRAGMA integrity_check(1)");
    return answer == "ok" ? std::string() : answer;
}

} // namespace varnik::ado
