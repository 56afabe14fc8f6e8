#pragma once
// The embedded engine as this folder sees it: connections, compiled statements, copies. A second engine
// would implement these two classes and nothing else.

#include "common/Value.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace varnik::ado {

// Why a call of the engine failed; Errors.h makes the sentence of it.
enum class Fault {
    Syntax,
    NoTable,
    NoColumn,
    ValueCount,
    Required, // detail: "Table.Column"
    TooLong,  // detail: "Table.Column"
    Duplicate,
    ReadOnly,
    Busy,
    Full,
    NotDatabase,
    Damaged,
    CannotOpen,
    Interrupted, // by whoever watches
    Input,       // reading or writing the file failed
    Other
};

struct EngineError {
    Fault fault = Fault::Other;
    std::string detail;
};

struct ResultColumn {
    std::string name;
    std::string table, column; // where the values come from, through stored queries too; empty when computed
};

class EngineStatement {
public:
    virtual ~EngineStatement() = default;
    virtual void Bind(int index, const Value& value) = 0; // counted from 1
    virtual bool Step() = 0;                              // whether there is a row; throws EngineError
    virtual void Reset() = 0;                             // lets go of every lock
    virtual bool Writes() const = 0;
    virtual int ColumnCount() const = 0;
    virtual ResultColumn Column(int index) const = 0;
    virtual void Read(int column, Value& value) const = 0; // Null, integer, double or text
    virtual std::int64_t ReadInteger(int column) const = 0;
};

// What statements call back for while they run. May throw DataError, which then comes out of Step.
class EngineCallbacks {
public:
    virtual ~EngineCallbacks() = default;
    // A value on its way into a column of the catalog.
    virtual Value AsStored(const Value& value, std::size_t table, std::size_t column) = 0;
    virtual Value ReadNumber(const Value& value) = 0;
};

class Engine {
public:
    virtual ~Engine() = default;
    virtual std::unique_ptr<EngineStatement> Compile(std::string_view sql) = 0;
    virtual void Run(std::string_view script) = 0;
    virtual long Changes() const = 0;
    virtual std::int64_t LastRow() const = 0;
    // Grows when another connection changes the file.
    virtual std::int64_t ForeignChanges() = 0;
    // What was committed survives a power cut once this returns.
    virtual void Sync() = 0;
    // Asked every so many machine steps of a statement while it runs; false stops it. Null asks nobody.
    virtual void Watch(std::function<bool()> goOn) = 0;
    virtual void Surround(EngineCallbacks* callbacks, int busyTimeoutMs) = 0;
    // Machine steps of all statements so far; for tests of how much is read.
    virtual std::int64_t Steps() const = 0;
};

// Where commits go first. The shared log needs memory that the processes of one machine share, so files on a
// network get a journal of their own, with a sync for every commit.
enum class Journal { SharedLog, Rollback };
Journal JournalFor(const std::filesystem::path& file);

// All throw EngineError. The file must exist and be a database. Opening changes nothing in it but, in a file
// of our own, the journal.
std::unique_ptr<Engine> OpenEngine(const std::filesystem::path& file, Journal journal);
void CreateEngineFile(const std::filesystem::path& file);
// Copies the whole content over the target, which is created or replaced inside.
void CopyEngineFile(const std::filesystem::path& from, const std::filesystem::path& to, bool toLive);
// "" when the file is sound, else the engine's own words.
std::string CheckEngineFile(const std::filesystem::path& file);

} // namespace varnik::ado
