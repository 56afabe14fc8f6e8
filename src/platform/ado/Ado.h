#pragma once
// Connections and recordsets: the few operations that the screens use on the data. Behind it stands an
// embedded engine; nothing outside this folder sees which.
//
// A statement runs on its own: no transaction, no lock held across statements. Names of tables, columns
// and data sources are compared without regard to case, and so are texts.

#include "common/Regional.h"
#include "common/Value.h"
#include "platform/jet/Catalog.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::ado {

// A failing statement: a number and a plain English sentence that names table and column where it can.
class DataError : public std::runtime_error {
public:
    DataError(long number, const std::string& description)
        : std::runtime_error(description), number_(number) {}
    long Number() const { return number_; }
    std::string Description() const { return what(); }

private:
    long number_;
};

// The numbers that callers and messages rely on.
inline constexpr long DivisionByZero = 11;
inline constexpr long TypeMismatch = 13;
inline constexpr long Overflow = 6;
inline constexpr long NoCurrentRecord = 3021;
inline constexpr long ObjectClosed = 3704;
inline constexpr long SyntaxFault = -2147217900;
inline constexpr long UnknownTable = -2147217865;
inline constexpr long UnknownColumn = -2147217904;
inline constexpr long NoSuchField = 3265;
inline constexpr long RowGone = -2147217885;         // deleted by another or by this recordset
inline constexpr long CannotChange = 3251;           // rows of a join or a stored query
inline constexpr long ConstraintFault = -2147217887; // required, size, key
inline constexpr long EngineFault = -2147467259;     // cannot open, read-only, full, locked, not a database

inline constexpr long Stopped = -2147217842; // long reading, by the person

// Asked now and then while many rows are read; false stops the reading, which fails as Stopped.
using GoOn = std::function<bool()>;

// Quotient of two numbers; error 11 when the divisor is 0.
double Divide(double dividend, double divisor);

// What every connection needs to know of its surroundings. Outlives the connections.
struct Environment {
    jet::Catalog catalog;
    const Regional* regional = nullptr;
    // The database file behind a connection string ("DSN=name", "...Data Source = path"); throws
    // DataError when the name is not known.
    std::function<std::filesystem::path(std::string_view connectionString)> resolve;
    int busyTimeoutMs = 10000;
};

class Connection;
class Recordset;

enum class CursorType { Static, Keyset };

// A position to come back to; holds only while the recordset is open and not requeried.
using Bookmark = std::int64_t;

// One column of the current row.
class Field {
public:
    Field(Recordset& recordset, int column) : recordset_(recordset), column_(column) {}
    varnik::Value Value() const;
    operator varnik::Value() const { return Value(); }
    // Writes into the row under edit; the column's type rounds, reads or refuses at Update.
    Field& operator=(const varnik::Value& value);
    Field& operator=(const Field& other) { return *this = other.Value(); }
    Field(const Field&) = default;

private:
    Recordset& recordset_;
    int column_;
};

class Connection {
public:
    explicit Connection(const Environment& environment);
    Connection(const Environment& environment, std::string_view connectionString); // opens at once
    ~Connection();
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;

    void Open(std::string_view connectionString); // the file must exist and be a database
    void Close();                                 // what was written is synced before it returns
    bool IsOpen() const;
    const std::string& ConnectionString() const;
    // Runs one statement; the number of rows it changed.
    long Execute(std::string_view sql);

    struct Impl;
    Impl& Implementation() const { return *impl_; } // for this folder and its tests

private:
    std::unique_ptr<Impl> impl_;
};

// Rows of a statement with a current one. A recordset over one table is a keyset: it holds row numbers
// and reads as it is walked, so a table of a million rows opens at once; joins and stored queries are
// read once. Without an order, rows come in entry order.
class Recordset {
public:
    Recordset();
    Recordset(std::string_view sql, Connection& connection, CursorType type = CursorType::Keyset);
    ~Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;

    // Stands on the first row, or on both ends when there is none.
    void Open(std::string_view sql, Connection& connection, CursorType type = CursorType::Keyset);
    void Close();
    bool IsOpen() const;
    void Requery();

    bool Bof() const;
    bool Eof() const;
    bool Empty() const { return Bof() && Eof(); }
    long RecordCount();
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();
    // To the first row at or after the current one that meets the criterion ("KodeBrg='A1'"); to the end
    // when there is none.
    void Find(std::string_view criterion);
    void Filter(std::string_view criterion); // "" shows all rows again
    Bookmark GetBookmark() const;
    void SetBookmark(Bookmark bookmark);

    int FieldCount() const;
    std::string FieldName(int column) const;
    Field operator[](std::string_view name); // DataError when the column is not there
    Field operator[](int column);            // counted from 0
    Field operator[](const char* name) { return (*this)[std::string_view(name)]; }

    void AddNew(); // yes/no columns start False, all else Null
    // Writes the columns that were given a value. One whose column accumulates is raised by its change
    // against the value read, whatever others wrote in between; where nobody did it is exactly the value
    // given.
    void Update();
    // As Update, but false, with nothing written and the row read anew, where others wrote in between and an
    // accumulating column that was to end at 0 or above would end below it.
    bool UpdateAboveZero();
    // After an Update that refused one value (range, size, type): takes that value out of the row under edit,
    // so that the rest can be saved. A new row gets 0 or "" in its place. False when no value was at fault.
    bool LeaveOutRefused();
    void CancelUpdate();
    void Delete(); // the current row; the position stays on the deleted row until the next move

    struct Impl;

private:
    friend class Field;
    std::unique_ptr<Impl> impl_;
};

// The rows of a statement, counted at once and read one by one as they are asked for: a list of 100,000
// rows costs what is looked at. Rows of one table, and of a stored query that joins tables, are read as they
// stand at that moment; those of all else are read once.
class RowList {
public:
    RowList() = default;
    RowList(std::string_view sql, Connection& connection, const GoOn& goOn = {});

    int Count() const;
    // Counted from 0; empty for a row that has been deleted since. DataError once the connection is closed.
    std::vector<varnik::Value> Row(int index) const;

private:
    struct Impl;
    std::shared_ptr<const Impl> impl_; // copies are the same list
};

// The rows of a statement in one go, for what needs them all: the names of the columns first, then each row.
void ReadRows(std::string_view sql, Connection& connection,
              const std::function<void(std::vector<std::string> names)>& begin,
              const std::function<void(const std::vector<varnik::Value>& row)>& take, const GoOn& goOn = {});

// Syncs what open connections wrote to the databases' logs and no close has synced yet: called when an
// action has ended on a connection that stays open.
void SyncWritten();

// For first run, backup and restore.
struct Index {
    std::string_view table, name, column;
    bool primary = false, unique = true;
};

// Creates an empty database file; DataError when it exists or cannot be made.
void CreateDatabase(const std::filesystem::path& file);
// Creates one table with its column rules and the keys given for it. Keys keep their names in the file.
void CreateTable(Connection& connection, const jet::Table& table);
void CreateIndex(Connection& connection, const Index& index);
// Names of what stands beside the tables: stored queries, and keys as "Table.Key".
std::vector<std::string> StoredNames(Connection& connection);
// Text in the engine's own dialect: stored queries, look-up indexes.
void ExecuteNative(Connection& connection, std::string_view sql);
// Copies the whole database, from a live one too, to a new file; checks the copy before it returns.
// Nothing stays under the target's name when it fails.
void CopyDatabase(const std::filesystem::path& from, const std::filesystem::path& to);
// Puts the content of one database into another that may be in use: connections and recordsets on it stay
// open and see the new content. The target is left as it was when the source is no sound database.
void RestoreDatabase(const std::filesystem::path& from, const std::filesystem::path& to);
// Lets go of the idle file handles that are kept for this database, so that the file can be moved.
void ReleaseDatabase(const std::filesystem::path& file);
// Nothing when the file is a sound database, else what is wrong with it in plain English.
std::string CheckDatabase(const std::filesystem::path& file);

} // namespace varnik::ado
