#include "platform/ado/Connection.h"
#include "platform/ado/PackedRows.h"

#include <limits>

namespace varnik::ado {

namespace {

// Of a table that an outer join finds nothing in there is no row.
constexpr std::int64_t NoRow = std::numeric_limits<std::int64_t>::min();

// The terms of an order as expressions, which the engine uses no index for; texts sort as their columns do.
std::string WithoutIndex(const std::string& order) {
    std::string terms = "+";
    int depth = 0;
    for (const char c : order) {
        depth += (c == '(') - (c == ')');
        terms += c;
        if (c == ',' && depth == 0) terms += " +";
    }
    return terms;
}

} // namespace

struct RowList::Impl {
    std::shared_ptr<ConnectionState> connection;
    // Of one table, or of a stored query that joins tables: the numbers of the rows that each row is made of,
    // and the statement that reads one.
    std::vector<std::int64_t> numbers;
    std::size_t keys = 0; // numbers to a row
    std::string readOne;
    std::vector<Value> parameters;
    // Of all else: the rows.
    PackedRows rows;
    std::size_t width = 0;

    Session& Open() const {
        if (!connection || !connection->session)
            throw DataError(ObjectClosed, "The connection of the list is closed.");
        return *connection->session;
    }

    void ReadAll(Session& session, const std::string& sql) {
        Running running(session.Compile(sql), parameters);
        width = running.Fields().size();
        std::vector<Value> row(width);
        while (running.Step()) {
            for (std::size_t i = 0; i < row.size(); ++i) running.Read(static_cast<int>(i), row[i]);
            rows.Add(row);
        }
    }

    // Reads the numbers of all rows from a source whose key columns have these names.
    void ReadNumbers(Session& session, const jet::Statement& statement, const std::string& source,
                     const std::vector<std::string>& names) {
        keys = names.size();
        readOne = "select " + statement.columns + " from " + source;
        std::string list, sql;
        for (std::size_t i = 0; i < keys; ++i) {
            list += (i == 0 ? "" : " , ") + names[i];
            readOne += (i == 0 ? " where " : " and ") + names[i] + " is ?" +
                       std::to_string(parameters.size() + 1 + i);
        }
        session.Compile(readOne); // a column that is not there fails here, not row by row
        sql = "select " + list + " from " + source;
        if (!statement.where.empty()) sql += " where " + statement.where;
        // Through three tables and more an order by index leads from row to row by chance, for rows that the
        // condition may not even want: found in the order of entry and sorted at the end they cost less.
        const bool sorts = keys > 2 && !statement.where.empty();
        if (statement.hasOrder)
            sql += " order by " + (sorts ? WithoutIndex(statement.order) : statement.order);
        else if (keys == 1)
            sql += " order by " + list;
        // The limit is none; its parameter stands behind those of the columns, which are not in this text.
        sql += " limit ?" + std::to_string(parameters.size() + 1);
        Running running(session.Compile(sql), parameters);
        running.Bind(-1);
        Value number;
        while (running.Step())
            for (std::size_t i = 0; i < keys; ++i) {
                running.Read(static_cast<int>(i), number);
                numbers.push_back(number.IsInteger() ? number.Integer() : NoRow);
            }
    }
};

RowList::RowList(std::string_view sql, Connection& connection, const GoOn& goOn) {
    Session& session = connection.Implementation().Open();
    auto list = std::make_shared<Impl>();
    list->connection = connection.Implementation().state;
    const auto read = [&] {
        const jet::Tokens tokens = jet::Tokenize(sql);
        const std::shared_ptr<const jet::Form> form = session.FormOf(tokens);
        const jet::Statement& statement = form->statement;
        if (!statement.isSelect) throw DataError(SyntaxFault, "A list opens a SELECT only.");
        list->parameters = jet::Fill(*form, tokens, *session.Surroundings().regional);
        if (!statement.singleTable.empty())
            return list->ReadNumbers(session, statement, statement.from, {"rowid"});
        const JoinedQuery* query =
            statement.singleQuery.empty() ? nullptr : session.FindJoinedQuery(statement.singleQuery);
        if (query == nullptr) return list->ReadAll(session, statement.sql);
        std::vector<std::string> names;
        for (std::size_t i = 0; i < query->keys; ++i) names.push_back("\"#" + std::to_string(i) + "\"");
        list->ReadNumbers(session, statement, "(" + query->select + ") as " + statement.from, names);
    };
    session.Guard([&] { session.Watched(goOn, read); });
    impl_ = std::move(list);
}

int RowList::Count() const {
    if (!impl_) return 0;
    return static_cast<int>(impl_->keys == 0 ? impl_->rows.Size() : impl_->numbers.size() / impl_->keys);
}

std::vector<Value> RowList::Row(int index) const {
    if (index < 0 || index >= Count()) return {};
    const auto at = static_cast<std::size_t>(index);
    if (impl_->keys == 0) {
        std::vector<Value> row(impl_->width);
        impl_->rows.Read(at, row);
        return row;
    }
    Session& session = impl_->Open();
    if (session.IsWatched()) return {};
    return session.Guard([&]() -> std::vector<Value> {
        Running running(session.Compile(impl_->readOne), impl_->parameters);
        for (std::size_t i = 0; i < impl_->keys; ++i) {
            const std::int64_t number = impl_->numbers[at * impl_->keys + i];
            running.Bind(number == NoRow ? Value() : Value(number));
        }
        if (!running.Step()) return {};
        std::vector<Value> row;
        row.reserve(running.Fields().size());
        for (std::size_t i = 0; i < running.Fields().size(); ++i) {
            if (running.Fields()[i].name.starts_with('#')) continue; // a number that "*" brings along
            running.Read(static_cast<int>(i), row.emplace_back());
        }
        return row;
    });
}

void ReadRows(std::string_view sql, Connection& connection,
              const std::function<void(std::vector<std::string> names)>& begin,
              const std::function<void(const std::vector<Value>& row)>& take, const GoOn& goOn) {
    Session& session = connection.Implementation().Open();
    const auto read = [&] {
        const jet::Tokens tokens = jet::Tokenize(sql);
        const std::shared_ptr<const jet::Form> form = session.FormOf(tokens);
        if (!form->statement.isSelect) throw DataError(SyntaxFault, "Rows come from a SELECT only.");
        Running running(session.Compile(form->statement.sql),
                        jet::Fill(*form, tokens, *session.Surroundings().regional));
        std::vector<std::string> names;
        for (const ResultField& field : running.Fields()) names.push_back(field.name);
        std::vector<Value> row(names.size());
        begin(std::move(names));
        while (running.Step()) {
            for (std::size_t i = 0; i < row.size(); ++i) running.Read(static_cast<int>(i), row[i]);
            take(row);
        }
    };
    session.Guard([&] { session.Watched(goOn, read); });
}

} // namespace varnik::ado
