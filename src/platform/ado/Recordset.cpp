#include "platform/ado/Connection.h"
#include "platform/ado/Cursor.h"
#include "platform/ado/RowStatements.h"

namespace varnik::ado {
namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Lower(x) == Lower(y); });
}

} // namespace

struct Recordset::Impl {
    enum class Place { Begin, Row, Deleted, End };

    std::string sql;
    std::shared_ptr<ConnectionState> connection; // null when closed
    std::unique_ptr<Cursor> cursor;
    Place place = Place::End;
    std::vector<std::optional<Value>> edits; // by column
    bool editing = false, adding = false;
    bool failed = false;                // the last Update was refused
    std::optional<std::size_t> refused; // for the value of this field

    Session& Alive() const {
        if (!connection || !connection->session || !cursor)
            throw DataError(ObjectClosed, "The recordset is closed.");
        return *connection->session;
    }
    template <typename Body>
    auto Guard(Body body) {
        return Alive().Guard(body);
    }
    void Move(bool found, Place otherwise) {
        place = found ? Place::Row : otherwise;
        Forget();
    }
    void Forget() {
        editing = adding = failed = false;
        refused.reset();
        edits.clear();
    }
    void Load();
    // A change that nobody has saved is saved by the move, unless saving it was refused before.
    void Settle(Recordset& recordset) {
        if (editing && !failed) recordset.Update();
        Forget();
    }
    const std::vector<ResultField>& Fields() const {
        Alive();
        return cursor->Fields();
    }
    const Value& Current(std::size_t column);
    const jet::Table& Target() const {
        const jet::Table* target = cursor->Target();
        if (target == nullptr) throw DataError(CannotChange, "The rows of this statement cannot be changed.");
        return *target;
    }
    void Require() const {
        if (place == Place::Row) return;
        if (place == Place::Deleted) throw DataError(RowGone, "The current record was deleted.");
        throw DataError(NoCurrentRecord, "There is no current record.");
    }
    [[noreturn]] static void Vanished() {
        throw DataError(RowGone, "The record was deleted by another user.");
    }
    // An edited value as its column keeps it; which one was refused is remembered.
    Value ColumnValue(std::size_t field, const jet::Table& table) {
        refused = field;
        Value value =
            ToColumn(*edits[field], table, *cursor->Fields()[field].column, *Alive().Surroundings().regional);
        refused.reset();
        return value;
    }
    void Insert(const jet::Table& table);
    bool Save(const jet::Table& table, bool aboveZero);
    bool AddChanges(const jet::Table& table, const std::vector<WrittenColumn>& columns,
                    std::vector<Value> changes, std::vector<Value>& values);
    bool Write(bool aboveZero);
};

void Recordset::Impl::Load() {
    Session& session = *connection->session;
    const jet::Tokens tokens = jet::Tokenize(sql);
    std::shared_ptr<const jet::Form> form = session.FormOf(tokens);
    if (!form->statement.isSelect) throw DataError(SyntaxFault, "A recordset opens a SELECT only.");
    std::vector<Value> parameters = jet::Fill(*form, tokens, *session.Surroundings().regional);
    place = Place::End; // also when the reading fails: on no row that others would take for one of these
    cursor = OpenCursor({session, std::move(form), std::move(parameters)});
    Move(cursor->First(), Place::End);
}

const Value& Recordset::Impl::Current(std::size_t column) {
    static const Value null, no = false;
    if (editing && edits[column]) return *edits[column];
    if (adding) {
        const jet::Column* source = cursor->Fields()[column].column;
        return source != nullptr && source->type == jet::ColumnType::Boolean ? no : null;
    }
    Require();
    return cursor->Values()[column];
}

// Every column of the table is written, so that all new rows of a table share one statement.
void Recordset::Impl::Insert(const jet::Table& table) {
    Session& session = Alive();
    std::vector<Value> row(table.columns.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (table.columns[i].type == jet::ColumnType::Boolean) row[i] = false;
    }
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (!edits[i]) continue;
        const jet::Column& column = *cursor->Fields()[i].column;
        row[static_cast<std::size_t>(&column - table.columns.data())] = ColumnValue(i, table);
    }
    for (std::size_t i = 0; i < row.size(); ++i) {
        const jet::Column& column = table.columns[i];
        if (column.required && !column.autoIncrement && row[i].IsNull())
            throw EngineError{Fault::Required, std::string(table.name) + "." + std::string(column.name)};
    }
    Running running(session.CompileInsert(table), row);
    session.Write(running);
    connection->wrote = true;
    const std::int64_t number = session.Native().LastRow();
    std::vector<Value>& values = cursor->Values();
    values.assign(cursor->Fields().size(), Value());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const jet::Column* column = cursor->Fields()[i].column;
        if (column == nullptr) continue;
        values[i] = column->autoIncrement ? Value(number)
                                          : row[static_cast<std::size_t>(column - table.columns.data())];
    }
    cursor->Added(number);
    place = Place::Row;
}

// Writes what was edited; false, with nothing written, where "aboveZero" is asked for and refused.
bool Recordset::Impl::Save(const jet::Table& table, bool aboveZero) {
    Session& session = Alive();
    std::vector<std::size_t> fields; // those edited, and below what goes into each
    std::vector<WrittenColumn> columns;
    std::vector<Value> values, changes, read;
    for (std::size_t i = 0; i < edits.size(); ++i) {
        if (!edits[i]) continue;
        const jet::Column& column = *cursor->Fields()[i].column;
        Value stored = ColumnValue(i, table);
        if (column.required && stored.IsNull())
            throw EngineError{Fault::Required, std::string(table.name) + "." + std::string(column.name)};
        WrittenColumn& written = columns.emplace_back();
        written.index = static_cast<std::size_t>(&column - table.columns.data());
        const Value& old = cursor->Values()[i];
        written.adds = column.accumulates && stored.IsDouble() && (old.IsDouble() || old.IsNull());
        Value change = stored;
        if (written.adds) {
            const auto number = [](const Value& value) { return value.IsNull() ? 0 : value.Double(); };
            written.floor = aboveZero && number(stored) >= 0;
            change = number(stored) - number(old);
            read.push_back(old);
        }
        fields.push_back(i);
        values.push_back(std::move(stored));
        changes.push_back(std::move(change));
    }
    if (fields.empty()) return true;
    connection->wrote = true;
    const Value mark = cursor->Mark();
    {
        std::vector<Value> parameters = values;
        parameters.push_back(mark);
        parameters.insert(parameters.end(), read.begin(), read.end());
        Running running(session.Compile(UpdateStatement(table, columns, true)), parameters);
        if (session.Write(running) == 0 && !AddChanges(table, columns, changes, values)) {
            if (!aboveZero || !cursor->Goto(cursor->Mark())) Vanished();
            return false;
        }
    }
    for (std::size_t at = 0; at < fields.size(); ++at) cursor->Values()[fields[at]] = std::move(values[at]);
    cursor->Changed();
    return true;
}

// Where others wrote in between, or the row is gone: each accumulating column takes its change, and "values"
// what came of it. False when no row was written.
bool Recordset::Impl::AddChanges(const jet::Table& table, const std::vector<WrittenColumn>& columns,
                                 std::vector<Value> changes, std::vector<Value>& values) {
    if (std::ranges::none_of(columns, &WrittenColumn::adds)) return false;
    Session& session = Alive();
    const auto number = static_cast<std::size_t>(&table - session.Surroundings().catalog.tables.data());
    changes.emplace_back(cursor->Mark());
    Running running(session.Compile(AddStatement(table, number, columns)), changes);
    bool written = false;
    session.Write(running, [&] {
        written = true;
        int answered = 0;
        for (std::size_t at = 0; at < columns.size(); ++at)
            if (columns[at].adds) running.Read(answered++, values[at]);
    });
    return written;
}

Recordset::Recordset() : impl_(std::make_unique<Impl>()) {}
Recordset::Recordset(std::string_view sql, Connection& connection, CursorType type) : Recordset() {
    Open(sql, connection, type);
}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

// Both kinds of cursor walk one table alike; they differ in nothing that a screen sees.
void Recordset::Open(std::string_view sql, Connection& connection, CursorType) {
    Close();
    connection.Implementation().Open();
    impl_->connection = connection.Implementation().state;
    impl_->sql = sql;
    try {
        impl_->connection->session->Guard([&] { impl_->Load(); });
    } catch (...) {
        Close();
        throw;
    }
}

void Recordset::Close() {
    impl_->cursor = nullptr;
    impl_->connection = nullptr;
    impl_->place = Impl::Place::End;
    impl_->Forget();
}

bool Recordset::IsOpen() const { return impl_->cursor && impl_->connection && impl_->connection->session; }

void Recordset::Requery() {
    impl_->Guard([&] {
        impl_->Settle(*this);
        impl_->Load();
    });
}

bool Recordset::Bof() const {
    return impl_->Guard([&] {
        if (impl_->adding) return false;
        return impl_->place == Impl::Place::Begin ||
               (impl_->place == Impl::Place::End && impl_->cursor->IsEmpty());
    });
}

bool Recordset::Eof() const {
    return impl_->Guard([&] {
        if (impl_->adding) return false;
        return impl_->place == Impl::Place::End ||
               (impl_->place == Impl::Place::Begin && impl_->cursor->IsEmpty());
    });
}

long Recordset::RecordCount() {
    return impl_->Guard([&] { return impl_->cursor->Count(); });
}

void Recordset::MoveFirst() {
    impl_->Guard([&] {
        impl_->Settle(*this);
        impl_->Move(impl_->cursor->First(), Impl::Place::End);
    });
}

void Recordset::MoveLast() {
    impl_->Guard([&] {
        impl_->Settle(*this);
        impl_->Move(impl_->cursor->Last(), Impl::Place::End);
    });
}

void Recordset::MoveNext() {
    impl_->Guard([&] {
        impl_->Settle(*this);
        if (impl_->place == Impl::Place::Begin) return impl_->Move(impl_->cursor->First(), Impl::Place::End);
        if (impl_->place == Impl::Place::End) impl_->Require();
        impl_->Move(impl_->cursor->Next(), Impl::Place::End);
    });
}

void Recordset::MovePrevious() {
    impl_->Guard([&] {
        impl_->Settle(*this);
        if (impl_->place == Impl::Place::End) return impl_->Move(impl_->cursor->Last(), Impl::Place::Begin);
        if (impl_->place == Impl::Place::Begin) impl_->Require();
        impl_->Move(impl_->cursor->Previous(), Impl::Place::Begin);
    });
}

void Recordset::Find(std::string_view criterion) {
    impl_->Guard([&] {
        impl_->Settle(*this);
        const std::vector<jet::Term> terms =
            jet::ParseCriterion(criterion, *impl_->Alive().Surroundings().regional);
        if (impl_->place == Impl::Place::End) return;
        if (impl_->place == Impl::Place::Begin && !impl_->cursor->First()) return;
        impl_->Move(impl_->cursor->Find(terms), Impl::Place::End);
    });
}

void Recordset::Filter(std::string_view criterion) {
    impl_->Guard([&] {
        impl_->Settle(*this);
        std::vector<jet::Term> terms;
        if (!criterion.empty())
            terms = jet::ParseCriterion(criterion, *impl_->Alive().Surroundings().regional);
        impl_->place = Impl::Place::End; // also when the reading fails: the old row is none of these
        impl_->cursor->Filter(std::move(terms));
        impl_->Move(impl_->cursor->First(), Impl::Place::End);
    });
}

Bookmark Recordset::GetBookmark() const {
    impl_->Alive();
    impl_->Require();
    return impl_->cursor->Mark();
}

void Recordset::SetBookmark(Bookmark bookmark) {
    impl_->Guard([&] {
        impl_->Settle(*this);
        if (!impl_->cursor->Goto(bookmark))
            throw DataError(RowGone, "The record of the bookmark is not there any more.");
        impl_->Move(true, Impl::Place::Row);
    });
}

int Recordset::FieldCount() const { return static_cast<int>(impl_->Fields().size()); }

std::string Recordset::FieldName(int column) const {
    const auto& fields = impl_->Fields();
    if (column < 0 || static_cast<std::size_t>(column) >= fields.size())
        throw DataError(NoSuchField, "The recordset has no field number " + std::to_string(column) + ".");
    return fields[static_cast<std::size_t>(column)].name;
}

Field Recordset::operator[](std::string_view name) {
    const auto& fields = impl_->Fields();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (SameName(fields[i].name, name)) return {*this, static_cast<int>(i)};
    }
    throw DataError(NoSuchField, "The recordset has no field \"" + std::string(name) + "\".");
}

Field Recordset::operator[](int column) {
    FieldName(column);
    return {*this, column};
}

void Recordset::AddNew() {
    impl_->Guard([&] {
        impl_->Settle(*this);
        impl_->Target();
        impl_->adding = impl_->editing = true;
        impl_->edits.assign(impl_->Fields().size(), std::nullopt);
    });
}

bool Recordset::Impl::Write(bool aboveZero) {
    if (!editing) return Require(), true;
    failed = true;
    bool written = true;
    adding ? Insert(Target()) : void(written = Save(Target(), aboveZero));
    Forget();
    return written;
}

void Recordset::Update() {
    impl_->Guard([&] { impl_->Write(false); });
}

bool Recordset::UpdateAboveZero() {
    return impl_->Guard([&] { return impl_->Write(true); });
}

bool Recordset::LeaveOutRefused() {
    impl_->Alive();
    if (!impl_->failed || !impl_->refused) return false;
    const std::size_t field = *impl_->refused;
    const jet::Column& column = *impl_->cursor->Fields()[field].column;
    if (impl_->adding && column.required) {
        if (column.type == jet::ColumnType::Date) return false; // no date stands for none
        impl_->edits[field] = column.type == jet::ColumnType::Text ? Value("") : Value(0);
    } else {
        impl_->edits[field].reset();
    }
    impl_->refused.reset();
    return true;
}

void Recordset::CancelUpdate() {
    impl_->Alive();
    impl_->Forget();
}

void Recordset::Delete() {
    impl_->Guard([&] {
        const jet::Table& table = impl_->Target();
        impl_->Forget();
        impl_->Require();
        Session& session = impl_->Alive();
        Running running(session.Compile(DeleteStatement(table)), {impl_->cursor->Mark()});
        session.Write(running);
        impl_->connection->wrote = true;
        impl_->cursor->Removed();
        impl_->place = Impl::Place::Deleted;
    });
}

varnik::Value Field::Value() const {
    recordset_.impl_->Alive();
    return recordset_.impl_->Current(static_cast<std::size_t>(column_));
}

Field& Field::operator=(const varnik::Value& value) {
    Recordset::Impl& impl = *recordset_.impl_;
    impl.Alive();
    impl.Target();
    const ResultField& field = impl.cursor->Fields()[static_cast<std::size_t>(column_)];
    if (field.column == nullptr || field.column->autoIncrement)
        throw DataError(CannotChange, "The field \"" + field.name + "\" cannot be changed.");
    if (!impl.editing) {
        impl.Require();
        impl.editing = true;
        impl.edits.assign(impl.Fields().size(), std::nullopt);
    }
    impl.edits[static_cast<std::size_t>(column_)] = value;
    return *this;
}

} // namespace varnik::ado
