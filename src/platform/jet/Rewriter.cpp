// The four statements: which stretch of the text is which clause, and what each needs. Everything below a
// clause is an expression.

#include "platform/jet/Implied.h"

#include "common/Text.h"

namespace varnik::jet {
namespace {

constexpr std::string_view aggregates[] = {"max", "min", "sum", "count", "avg", "first", "last"};
constexpr std::string_view joinWords[] = {"inner", "left", "right", "full", "cross", "join", "outer", ","};

// Within each other. A text that breaks out of its quotes may bring any number of them.
constexpr std::size_t MostBrackets = 200;

class StatementWriter {
public:
    StatementWriter(const Tokens& tokens, const Catalog& catalog)
        : tokens_(tokens), catalog_(catalog), expressions_(tokens, catalog) {
        expressions_.subselect = [this](Range range) { Select(range, nullptr); };
    }

    Form Run() {
        const Range all{0, tokens_.list.size()};
        Form form;
        if (all.Empty()) throw SyntaxError("The statement is empty.");
        for (std::size_t i = 0, depth = 0; i < all.end; ++i) {
            if (Word(i, "(") && ++depth > MostBrackets)
                throw SyntaxError("The statement has too many brackets within each other.");
            if (Word(i, ")") && depth-- == 0)
                throw SyntaxError("A bracket in the statement was never opened.");
        }
        if (Word(0, "select") || Word(0, "(")) {
            form.statement.isSelect = true;
            Select(all, &form.statement);
        } else if (Word(0, "insert")) {
            Insert(all);
        } else if (Word(0, "update")) {
            Update(all);
        } else if (Word(0, "delete")) {
            Delete(all);
        } else {
            throw SyntaxError("A statement starts with SELECT, INSERT, UPDATE or DELETE.");
        }
        form.statement.sql = std::move(expressions_.output);
        form.slots = std::move(expressions_.slots);
        return form;
    }

private:
    bool Word(std::size_t index, std::string_view word) const { return expressions_.IsWord(index, word); }
    const Token& At(std::size_t index) const { return tokens_.list[index]; }
    void Write(std::string_view text) { expressions_.Write(text); }
    bool IsName(std::size_t index) const {
        return index < tokens_.list.size() &&
               (At(index).kind == TokenKind::Word || At(index).kind == TokenKind::Bracketed);
    }
    bool IsJoinWord(std::size_t index) const {
        for (const std::string_view word : joinWords) {
            if (Word(index, word))
                return !Word(index + 1, "(") || Is(At(index), "join") || Is(At(index), ",");
        }
        return false;
    }

    // A select, or several put together by UNION. "plain" is told when it is one over a single table.
    void Select(Range range, Statement* plain) {
        const std::size_t unite = expressions_.FindWord(range, "union");
        if (unite < range.end) {
            Simple({range.begin, unite}, nullptr);
            Write("union");
            std::size_t next = unite + 1;
            if (Word(next, "all")) {
                Write("all");
                ++next;
            }
            return Select({next, range.end}, nullptr);
        }
        Simple(range, plain);
    }

    void Simple(Range range, Statement* plain) {
        if (Word(range.begin, "(")) {
            const std::size_t close = expressions_.Match(range.begin);
            Write("(");
            Select({range.begin + 1, close}, nullptr);
            Write(")");
            return Raw({close + 1, range.end});
        }
        const auto scope = expressions_.scope;
        const std::size_t from = expressions_.FindWord(range, "from");
        const std::size_t where = expressions_.FindWord({from, range.end}, "where");
        const std::size_t group = expressions_.FindWord({from, range.end}, "group");
        const std::size_t having = expressions_.FindWord({from, range.end}, "having");
        const std::size_t order = expressions_.FindWord({from, range.end}, "order");
        const auto until = [&](std::size_t begin) {
            std::size_t end = range.end;
            for (const std::size_t clause : {where, group, having, order}) {
                if (clause > begin && clause < end) end = clause;
            }
            return Range{begin + 1, end};
        };
        if (from < range.end) Scope(until(from));
        const Implied implied(expressions_, where < range.end ? until(where) : Range{});

        std::size_t list = range.begin + 1;
        Write("select");
        bool single = plain != nullptr && group == range.end && having == range.end && from < range.end;
        while (Word(list, "distinct") || Word(list, "all") || Word(list, "distinctrow")) {
            single = single && Word(list, "all");
            if (Word(list, "distinct")) Write("distinct");
            ++list;
        }
        for (std::size_t i = list; single && i + 1 < from; ++i) {
            for (const std::string_view name : aggregates)
                single = single && !(Word(i, name) && Word(i + 1, "("));
        }
        const std::string columns = Piece([&] { Columns({list, from}); });
        std::string tables, condition, sorting;
        if (from < range.end) {
            Write("from");
            tables = Piece([&] { From(until(from), &implied); });
        }
        if (where < range.end) {
            Write("where");
            condition = Piece([&] {
                expressions_.Expression(until(where), Use::Condition);
                implied.WriteConditions(expressions_);
            });
        }
        if (group < range.end) {
            Write("group");
            expressions_.Expression(until(group), Use::Condition);
        }
        if (having < range.end) {
            Write("having");
            expressions_.Expression(until(having), Use::Condition);
        }
        if (order < range.end) {
            Write("order");
            sorting = Piece([&] { expressions_.Expression(until(order), Use::Condition); });
            if (Word(order + 1, "by") && sorting.size() > 3) sorting = sorting.substr(3);
        }
        if (single && (SingleTable(until(from), plain) || SingleQuery(until(from), plain))) {
            plain->columns = columns;
            plain->from = tables;
            plain->where = condition;
            plain->order = sorting;
            plain->hasOrder = order < range.end;
        }
        if (plain != nullptr && where == range.end && having == range.end && order == range.end &&
            list == range.begin + 1 && from < range.end && group < range.end)
            Grouped({list, from}, until(from), {group + 1, range.end}, plain);
        expressions_.scope = scope;
    }

    void Grouped(Range columns, Range from, Range group, Statement* plain) const {
        if (columns.end - columns.begin != 1 || group.end - group.begin != 2 || !IsName(columns.begin) ||
            !Word(group.begin, "by") || !EqualsNoCase(At(columns.begin).text, At(group.begin + 1).text))
            return;
        Statement over;
        if (!SingleTable(from, &over)) return;
        const Table* table = catalog_.FindTable(over.singleTable);
        const Column* column = FindColumn(*table, At(columns.begin).text);
        if (column == nullptr || column->type != ColumnType::Text) return;
        plain->groupedTable = table;
        plain->groupedColumn = column;
    }

    // What a piece of the work adds to the output.
    template <typename Work>
    std::string Piece(Work work) {
        const std::size_t before = expressions_.output.size();
        work();
        return expressions_.output.size() > before ? expressions_.output.substr(before + 1) : std::string();
    }

    void Raw(Range range) {
        for (std::size_t i = range.begin; i < range.end; ++i) expressions_.WriteToken(i);
    }

    void Columns(Range range) {
        const std::vector<Range> items = expressions_.SplitByComma(range);
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (i > 0) Write(",");
            const std::size_t as = expressions_.FindWord(items[i], "as");
            expressions_.Expression({items[i].begin, as}, Use::Value);
            Raw({as, items[i].end});
        }
    }

    // Tables, their joins and the conditions of these.
    void From(Range range, const Implied* implied = nullptr) {
        for (std::size_t i = range.begin; i < range.end; ++i) {
            if (Word(i, "(")) {
                const std::size_t close = expressions_.Match(i);
                Write("(");
                const Range inside{i + 1, close};
                Word(i + 1, "select") ? Select(inside, nullptr) : From(inside, implied);
                Write(")");
                i = close;
            } else if (Word(i, "on")) {
                std::size_t end = i + 1;
                while (end < range.end && !IsJoinWord(end))
                    end = Word(end, "(") ? expressions_.Match(end) + 1 : end + 1;
                Write("on");
                expressions_.Expression({i + 1, end}, Use::Condition);
                if (implied != nullptr) implied->WriteJoin(expressions_, {i + 1, end});
                i = end - 1;
            } else {
                expressions_.WriteToken(i);
            }
        }
    }

    // Notes the tables of a FROM under the names that columns are qualified with.
    void Scope(Range range) {
        bool expected = true;
        for (std::size_t i = range.begin; i < range.end; ++i) {
            if (Word(i, "(")) {
                const std::size_t close = expressions_.Match(i);
                if (Word(i + 1, "select")) {
                    expressions_.scope.emplace_back("", nullptr);
                } else {
                    Scope({i + 1, close});
                }
                expected = false;
                i = close;
            } else if (Word(i, "join") || Word(i, ",")) {
                expected = true;
            } else if (expected && IsName(i)) {
                const std::size_t alias = Word(i + 1, "as") ? i + 2 : i + 1;
                const bool named =
                    alias < range.end && IsName(alias) && !IsJoinWord(alias) && !Word(alias, "on");
                expressions_.scope.emplace_back(At(named ? alias : i).text, catalog_.FindTable(At(i).text));
                expected = false;
            }
        }
    }

    bool SingleTable(Range from, Statement* plain) const {
        if (from.Empty() || !IsName(from.begin)) return false;
        const Table* table = catalog_.FindTable(At(from.begin).text);
        std::size_t next = from.begin + 1;
        if (Word(next, "as")) ++next;
        if (next < from.end && IsName(next) && !IsJoinWord(next)) ++next;
        if (table == nullptr || next < from.end) return false;
        plain->singleTable = table->name;
        return true;
    }

    bool SingleQuery(Range from, Statement* plain) const {
        if (from.end - from.begin != 1 || !IsName(from.begin) || catalog_.FindTable(At(from.begin).text))
            return false;
        plain->singleQuery = At(from.begin).text;
        return true;
    }

    // A value on its way into a column: the column rounds, reads or refuses it.
    void Stored(Range value, const Table* table, const Column* column) {
        if (table == nullptr || column == nullptr) return expressions_.Expression(value, Use::Value);
        Write("AsStored (");
        expressions_.Expression(value, Use::Value);
        Write(", " + std::to_string(table - catalog_.tables.data()) + " , " +
              std::to_string(column - table->columns.data()) + " )");
    }

    void Insert(Range range) {
        std::size_t i = 1;
        Write("insert into");
        if (Word(i, "into")) ++i;
        if (!IsName(i)) throw SyntaxError("INSERT needs the name of a table.");
        const Table* table = catalog_.FindTable(At(i).text);
        expressions_.WriteToken(i++);
        std::vector<const Column*> columns;
        if (Word(i, "(") && !Word(i + 1, "select")) {
            const std::size_t close = expressions_.Match(i);
            for (const Range& name : expressions_.SplitByComma({i + 1, close})) {
                columns.push_back(table && !name.Empty() ? FindColumn(*table, At(name.end - 1).text)
                                                         : nullptr);
            }
            Raw({i, close + 1});
            i = close + 1;
        } else if (table != nullptr) {
            for (const Column& column : table->columns) columns.push_back(&column);
        }
        const auto column = [&](std::size_t at) { return at < columns.size() ? columns[at] : nullptr; };
        if (Word(i, "select")) {
            // The values come from a select: it is read as a table whose columns are then written.
            const std::size_t from = expressions_.FindWord({i, range.end}, "from");
            const std::vector<Range> items = expressions_.SplitByComma({i + 1, from});
            Write("select");
            if (from < range.end) Scope({from + 1, expressions_.FindWord({from, range.end}, "where")});
            for (std::size_t item = 0; item < items.size(); ++item) {
                if (item > 0) Write(",");
                const std::size_t as = expressions_.FindWord(items[item], "as");
                const bool star = Word(items[item].end - 1, "*");
                Stored({items[item].begin, as}, star ? nullptr : table, star ? nullptr : column(item));
            }
            const std::size_t where = expressions_.FindWord({i, range.end}, "where");
            if (from < range.end) {
                Write("from");
                From({from + 1, where});
            }
            expressions_.Expression({where, range.end}, Use::Condition);
            return;
        }
        if (!Word(i, "values")) throw SyntaxError("INSERT needs VALUES or a SELECT.");
        Write("values");
        for (++i; i < range.end; ++i) {
            if (!Word(i, "(")) {
                expressions_.WriteToken(i);
                continue;
            }
            const std::size_t close = expressions_.Match(i);
            const std::vector<Range> values = expressions_.SplitByComma({i + 1, close});
            Write("(");
            for (std::size_t item = 0; item < values.size(); ++item) {
                if (item > 0) Write(",");
                if (values[item].Empty()) throw SyntaxError("A value is missing in the statement.");
                Stored(values[item], table, column(item));
            }
            Write(")");
            i = close;
        }
    }

    void Update(Range range) {
        const std::size_t set = expressions_.FindWord(range, "set");
        const std::size_t where = expressions_.FindWord({set, range.end}, "where");
        if (!IsName(1) || set == range.end) throw SyntaxError("UPDATE needs the name of a table and SET.");
        const Table* table = catalog_.FindTable(At(1).text);
        expressions_.scope.emplace_back(At(1).text, table);
        Write("update");
        Raw({1, set});
        Write("set");
        const std::vector<Range> assignments = expressions_.SplitByComma({set + 1, where});
        for (std::size_t i = 0; i < assignments.size(); ++i) {
            if (i > 0) Write(",");
            // The first "=" assigns; any further one compares.
            const std::size_t equals = expressions_.FindWord(assignments[i], "=");
            if (equals >= assignments[i].end || equals == assignments[i].begin ||
                equals + 1 == assignments[i].end || !IsName(equals - 1))
                throw SyntaxError("SET needs a column, \"=\" and a value.");
            expressions_.WriteToken(equals - 1);
            Write("=");
            Stored({equals + 1, assignments[i].end}, table,
                   table ? FindColumn(*table, At(equals - 1).text) : nullptr);
        }
        Where(where, range.end);
    }

    void Delete(Range range) {
        std::size_t i = 1;
        if (Word(i, "*")) ++i;
        if (!Word(i, "from") || !IsName(i + 1))
            throw SyntaxError("DELETE needs FROM and the name of a table.");
        const std::size_t where = expressions_.FindWord(range, "where");
        expressions_.scope.emplace_back(At(i + 1).text, catalog_.FindTable(At(i + 1).text));
        Write("delete");
        Raw({i, where});
        Where(where, range.end);
    }

    void Where(std::size_t where, std::size_t end) {
        if (where >= end) return;
        Write("where");
        expressions_.Expression({where + 1, end}, Use::Condition);
    }

    const Tokens& tokens_;
    const Catalog& catalog_;
    ExpressionWriter expressions_;
};

} // namespace

Form Rewrite(const Tokens& tokens, const Catalog& catalog) { return StatementWriter(tokens, catalog).Run(); }

} // namespace varnik::jet
