#include "platform/ado/Cursor.h"

namespace varnik::ado {

std::string Condition(const std::vector<jet::Term>& terms, std::size_t firstParameter,
                      std::vector<Value>& values) {
    std::string condition;
    for (const jet::Term& term : terms) {
        if (!condition.empty()) condition += " and ";
        condition += jet::ConditionOf(term, firstParameter);
        if (term.value.IsNull()) continue;
        values.push_back(term.value);
        ++firstParameter;
    }
    return condition;
}

TableCursor::TableCursor(CursorSource source)
    : session(source.session),
      table(session.Surroundings().catalog.FindTable(source.form->statement.singleTable)),
      form(std::move(source.form)),
      parameters(std::move(source.parameters)),
      where(form->statement.where),
      own(parameters) {}

void TableCursor::Filter(std::vector<jet::Term> terms) {
    parameters = own;
    where = form->statement.where;
    if (!terms.empty()) {
        std::vector<Value> added;
        const std::string condition = Condition(terms, parameters.size() + 1, added);
        where = where.empty() ? condition : "(" + where + ") and " + condition;
        parameters.insert(parameters.end(), added.begin(), added.end());
    }
    ahead.clear();
    batch = FirstRead;
}

std::string TableCursor::Select(std::string_view condition, std::string_view tail, bool rowsOnly) const {
    const jet::Statement& statement = form->statement;
    std::string sql = "select ";
    sql.reserve(200 + statement.sql.size());
    if (!rowsOnly) sql.append(statement.columns).append(" , ");
    sql.append("rowid from ").append(statement.from);
    if (!where.empty() || !condition.empty()) sql += " where ";
    if (!where.empty()) sql.append("( ").append(where).append(" )");
    if (!where.empty() && !condition.empty()) sql += " and ";
    return sql.append(condition).append(" ").append(tail);
}

std::string TableCursor::Placeholder(std::size_t extra) const {
    return "?" + std::to_string(parameters.size() + extra);
}

std::vector<Value> TableCursor::Parameters(std::initializer_list<Value> extra) const {
    std::vector<Value> all = parameters;
    all.insert(all.end(), extra);
    return all;
}

std::deque<TableCursor::Row> TableCursor::Read(const std::string& sql, const std::vector<Value>& with) {
    Running running(session.Compile(sql), with);
    const int width = static_cast<int>(running.Fields().size()) - 1;
    if (fields.empty()) fields.assign(running.Fields().begin(), running.Fields().end() - 1);
    std::deque<Row> rows;
    while (running.Step()) {
        Row& read = rows.emplace_back();
        read.number = running.ReadInteger(width);
        read.values.resize(static_cast<std::size_t>(width));
        for (int i = 0; i < width; ++i) running.Read(i, read.values[static_cast<std::size_t>(i)]);
    }
    return rows;
}

void TableCursor::Take(Row& read) {
    row = read.number;
    values.swap(read.values);
}

bool TableCursor::ReadOne(const std::string& sql, const std::vector<Value>& with) {
    std::deque<Row> rows = Read(sql, with);
    if (rows.empty()) return false;
    Take(rows.front());
    return true;
}

bool TableCursor::ReadRow(std::int64_t number) {
    const jet::Statement& statement = form->statement;
    return ReadOne("select " + statement.columns + " , rowid from " + statement.from +
                       " where rowid = " + Placeholder(1),
                   Parameters({number}));
}

bool TableCursor::Fresh() const {
    return !Written() && std::chrono::steady_clock::now() - aheadTime_ < std::chrono::milliseconds(200);
}

bool TableCursor::Written() const { return aheadWrites_ != session.State().writes; }

void TableCursor::ReadAhead(std::deque<Row> rows) {
    ahead = std::move(rows);
    aheadWrites_ = session.State().writes;
    aheadTime_ = std::chrono::steady_clock::now();
}

bool TableCursor::Meets(std::int64_t number, const std::vector<jet::Term>& terms) {
    std::vector<Value> with{number};
    const std::string condition = Condition(terms, 2, with);
    Running running(
        session.Compile("select 1 from " + form->statement.from + " where rowid = ?1 and " + condition),
        with);
    return running.Step();
}

std::unique_ptr<Cursor> OpenCursor(CursorSource source) {
    const jet::Statement& statement = source.form->statement;
    if (statement.singleTable.empty()) return OpenStaticCursor(std::move(source));
    return statement.hasOrder ? OpenOrderedCursor(std::move(source)) : OpenEntryCursor(std::move(source));
}

} // namespace varnik::ado
