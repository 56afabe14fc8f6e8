#include "platform/ado/Connection.h"
#include "platform/ado/PackedRows.h"

namespace varnik::ado {

struct RowList::Impl {
    std::shared_ptr<ConnectionState> connection;
    // Of one table: the numbers of its rows, and the statement that reads one.
    std::vector<std::int64_t> numbers;
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
};

RowList::RowList(std::string_view sql, Connection& connection) {
    Session& session = connection.Implementation().Open();
    auto list = std::make_shared<Impl>();
    list->connection = connection.Implementation().state;
    session.Guard([&] {
        const jet::Tokens tokens = jet::Tokenize(sql);
        const std::shared_ptr<const jet::Form> form = session.FormOf(tokens);
        const jet::Statement& statement = form->statement;
        if (!statement.isSelect) throw DataError(SyntaxFault, "A list opens a SELECT only.");
        list->parameters = jet::Fill(*form, tokens, *session.Surroundings().regional);
        if (statement.singleTable.empty()) {
            Running running(session.Compile(statement.sql), list->parameters);
            list->width = running.Fields().size();
            std::vector<Value> row(list->width);
            while (running.Step()) {
                for (std::size_t i = 0; i < row.size(); ++i) running.Read(static_cast<int>(i), row[i]);
                list->rows.Add(row);
            }
            return;
        }
        list->readOne = "select " + statement.columns + " from " + statement.from + " where rowid = ?" +
                        std::to_string(list->parameters.size() + 1);
        session.Compile(list->readOne); // a column that is not there fails here, not row by row
        // The limit is none; its parameter stands behind those of the columns, which are not in this text.
        Running running(session.Compile("select rowid from " + statement.from +
                                        (statement.where.empty() ? "" : " where " + statement.where) +
                                        " order by " + (statement.hasOrder ? statement.order : "rowid") +
                                        " limit ?" + std::to_string(list->parameters.size() + 1)),
                        list->parameters);
        running.Bind(-1);
        while (running.Step()) list->numbers.push_back(running.ReadInteger(0));
    });
    impl_ = std::move(list);
}

int RowList::Count() const {
    if (!impl_) return 0;
    return static_cast<int>(impl_->readOne.empty() ? impl_->rows.Size() : impl_->numbers.size());
}

std::vector<Value> RowList::Row(int index) const {
    if (index < 0 || index >= Count()) return {};
    const auto at = static_cast<std::size_t>(index);
    if (impl_->readOne.empty()) {
        std::vector<Value> row(impl_->width);
        impl_->rows.Read(at, row);
        return row;
    }
    Session& session = impl_->Open();
    return session.Guard([&]() -> std::vector<Value> {
        Running running(session.Compile(impl_->readOne), impl_->parameters);
        running.Bind(impl_->numbers[at]);
        if (!running.Step()) return {};
        std::vector<Value> row(running.Fields().size());
        for (std::size_t i = 0; i < row.size(); ++i) running.Read(static_cast<int>(i), row[i]);
        return row;
    });
}

} // namespace varnik::ado
