#pragma once
// The rows of a statement as a recordset walks them. Three kinds: over one table in entry order (row numbers
// need no list: the next row is a seek away), over one table in an order of its own (a list of row numbers,
// read as far as it is walked), and all else (read once). No statement stays open between two moves.

#include "platform/ado/Session.h"

#include <chrono>
#include <deque>
#include <set>

namespace varnik::ado {

class Cursor {
public:
    virtual ~Cursor() = default;

    // Moves; false when there is no such row, and the position is then left as it was.
    virtual bool First() = 0;
    virtual bool Last() = 0;
    virtual bool Next() = 0;
    virtual bool Previous() = 0;
    // To the first row at or after the current one that meets the terms.
    virtual bool Find(const std::vector<jet::Term>& terms) = 0;
    virtual void Filter(std::vector<jet::Term> terms) = 0; // none: all rows; the position is lost
    virtual long Count() = 0;
    virtual bool IsEmpty() = 0;
    virtual Bookmark Mark() const = 0;
    virtual bool Goto(Bookmark bookmark) = 0;

    const std::vector<ResultField>& Fields() const { return fields; }
    std::vector<Value>& Values() { return values; } // of the current row

    // The table whose rows can be changed; null for joins and stored queries.
    virtual const jet::Table* Target() const { return nullptr; }
    // What the recordset did: the current row was changed, removed, or a new one became current.
    virtual void Changed() {}
    virtual void Removed() {}
    virtual void Added(std::int64_t) {}

protected:
    std::vector<ResultField> fields;
    std::vector<Value> values;
};

struct CursorSource {
    Session& session; // outlives the cursor's use
    std::shared_ptr<const jet::Form> form;
    std::vector<Value> parameters;
};

std::unique_ptr<Cursor> OpenCursor(CursorSource source);

// The pieces of a statement over one table, and rows read ahead while it is walked.
class TableCursor : public Cursor {
public:
    explicit TableCursor(CursorSource source);

    void Filter(std::vector<jet::Term> terms) override;
    Bookmark Mark() const override { return row; }
    const jet::Table* Target() const override { return table; }

protected:
    struct Row {
        std::int64_t number = 0;
        std::vector<Value> values;
    };
    static constexpr int FirstRead = 1, MostRead = 1024;
    static constexpr std::string_view EachRow = "1";

    // "SELECT columns, rowid FROM ... WHERE ... AND condition tail".
    std::string Select(std::string_view condition, std::string_view tail, bool rowsOnly = false) const;
    std::string
    Placeholder(std::size_t extra) const; // the parameter that comes so many after the statement's own
    std::vector<Value> Parameters(std::initializer_list<Value> extra) const;
    // Runs such a select; the rows in the order they come.
    std::deque<Row> Read(const std::string& sql, const std::vector<Value>& with);
    bool ReadOne(const std::string& sql, const std::vector<Value>& with);
    bool ReadRow(std::int64_t number); // by its number, whether or not it meets the conditions
    void Take(Row& read);
    // Rows read ahead are good while nothing is written here, and for a blink, since others write too.
    bool Fresh() const;
    bool Written() const; // here, since rows were last read ahead
    void ReadAhead(std::deque<Row> rows);
    bool Meets(std::int64_t number, const std::vector<jet::Term>& terms);

    Session& session;
    const jet::Table* table;
    std::shared_ptr<const jet::Form> form;
    std::vector<Value> parameters; // of the statement, then of the filter
    std::string where;             // statement and filter together
    std::vector<Value> own;        // of the statement alone
    std::int64_t row = 0;
    std::deque<Row> ahead;
    int batch = FirstRead;

private:
    std::int64_t aheadWrites_ = 0;
    std::chrono::steady_clock::time_point aheadTime_;
};

// Terms as an engine condition; their values go to "values".
std::string Condition(const std::vector<jet::Term>& terms, std::size_t firstParameter,
                      std::vector<Value>& values);

std::unique_ptr<Cursor> OpenEntryCursor(CursorSource source);
std::unique_ptr<Cursor> OpenOrderedCursor(CursorSource source);
std::unique_ptr<Cursor> OpenStaticCursor(CursorSource source);

} // namespace varnik::ado
