#pragma once
// An open database file with everything that was compiled for it. Sessions outlive connections: every action
// opens a connection of its own, so closing one puts its session back for the next.

#include "platform/ado/ColumnRule.h"
#include "platform/ado/Engine.h"
#include "platform/ado/Errors.h"
#include "platform/ado/JoinedQuery.h"
#include "platform/jet/Translate.h"

#include <list>
#include <unordered_map>

namespace varnik::ado {

// Keeps the values asked for last.
template <typename Entry>
class RecentlyUsed {
public:
    explicit RecentlyUsed(std::size_t limit) : limit_(limit) {}

    std::shared_ptr<Entry> Find(const std::string& key) {
        const auto found = entries_.find(key);
        if (found == entries_.end()) return nullptr;
        order_.splice(order_.begin(), order_, found->second);
        return found->second->second;
    }
    void Keep(const std::string& key, std::shared_ptr<Entry> entry) {
        order_.emplace_front(key, std::move(entry));
        entries_[order_.front().first] = order_.begin();
        if (order_.size() <= limit_) return;
        entries_.erase(order_.back().first);
        order_.pop_back();
    }
    void Clear() {
        entries_.clear();
        order_.clear();
    }

private:
    using Order = std::list<std::pair<std::string, std::shared_ptr<Entry>>>;
    std::size_t limit_;
    Order order_;
    std::unordered_map<std::string_view, typename Order::iterator> entries_;
};

// A column of a result and, when its values come from a table as they are, which.
struct ResultField {
    std::string name;
    const jet::Table* table = nullptr;
    const jet::Column* column = nullptr;
};

struct Compiled {
    std::unique_ptr<EngineStatement> statement;
    std::vector<ResultField> fields;
};

// One statement while it runs: lets go of the engine when it ends, however it ends.
class Running {
public:
    Running(std::shared_ptr<Compiled> compiled, const std::vector<Value>& parameters)
        : compiled_(std::move(compiled)) {
        for (const Value& parameter : parameters) Bind(parameter);
    }
    ~Running() { compiled_->statement->Reset(); }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    void Bind(const Value& value) { compiled_->statement->Bind(++bound_, value); }
    bool Step() { return compiled_->statement->Step(); }
    // The value of a column, in the type of the table's column that it comes from.
    void Read(int column, Value& value) const;
    std::int64_t ReadInteger(int column) const { return compiled_->statement->ReadInteger(column); }
    const std::vector<ResultField>& Fields() const { return compiled_->fields; }
    bool Writes() const { return compiled_->statement->Writes(); }

private:
    std::shared_ptr<Compiled> compiled_;
    int bound_ = 0;
};

struct Statistics {
    std::int64_t rewrites = 0, reuses = 0; // shapes of texts met for the first time and again
    std::int64_t compilations = 0;
};

// What all sessions of one file share in this process.
struct FileState {
    std::int64_t writes = 0;
    bool unsynced = false;
    std::int64_t syncs = 0;
};

class Session final : public EngineCallbacks {
public:
    // Opens the file; DataError when it cannot be.
    Session(const std::filesystem::path& file, std::shared_ptr<FileState> state,
            const Environment& environment);

    void Surround(const Environment& environment);
    const Environment& Surroundings() const { return *environment_; }
    const std::filesystem::path& File() const { return file_; }

    std::shared_ptr<const jet::Form> FormOf(const jet::Tokens& tokens);
    std::shared_ptr<Compiled> Compile(const std::string& sql);
    // The statement that adds a row, with all columns of the table; one for each table, kept ready.
    std::shared_ptr<Compiled> CompileInsert(const jet::Table& table);
    // Runs a writing statement; the rows it changed. What it answers with is shown row by row.
    long Write(Running& running, const std::function<void()>& answer = {});
    // Runs the body while somebody may stop it. What wants to read through the session meanwhile, a window
    // that is painted while the person is asked, finds it watched and reads nothing.
    template <typename Body>
    void Watched(const GoOn& goOn, Body body) {
        if (!goOn) return body();
        struct End {
            Session& session;
            ~End() {
                session.engine_->Watch(nullptr);
                session.watched_ = false;
            }
        } const end{*this};
        watched_ = true;
        engine_->Watch(goOn);
        body();
    }
    bool IsWatched() const { return watched_; }
    void RunNative(std::string_view script); // forgets what was compiled
    void Sync();                             // when something was written and not synced yet
    Engine& Native() { return *engine_; }
    FileState& State() { return *state_; }
    const Statistics& Counted() const { return statistics_; }
    template <typename Body>
    auto Guard(Body body) {
        return Explained(file_, environment_->catalog, body);
    }

    // A stored query by its name; null when its rows cannot be found again one by one.
    const JoinedQuery* FindJoinedQuery(const std::string& name);
    bool HasIndex(const jet::Table& table, const jet::Column& firstColumn);
    Value AsStored(const Value& value, std::size_t table, std::size_t column) override;
    Value ReadNumber(const Value& value) override;

    std::string identity; // of the file at the time of opening

private:
    std::filesystem::path file_;
    std::shared_ptr<FileState> state_;
    const Environment* environment_;
    std::unique_ptr<Engine> engine_;
    RecentlyUsed<const jet::Form> forms_{256};
    RecentlyUsed<Compiled> compiled_{256};
    std::unordered_map<const jet::Table*, std::shared_ptr<Compiled>> inserts_;
    std::unordered_map<std::string, std::optional<JoinedQuery>> joined_; // by name, as they were met
    Statistics statistics_;
    bool watched_ = false;
};

// A session for the file, an idle one when there is one. Give it back by ReturnSession.
std::shared_ptr<Session> TakeSession(const std::filesystem::path& file, const Environment& environment);
void ReturnSession(std::shared_ptr<Session> session);
void ReleaseSessions(const std::filesystem::path& file); // the idle ones
void SyncSessions();
void NoteForeignWrite(const std::filesystem::path& file); // rows that were read ahead are read again

} // namespace varnik::ado
