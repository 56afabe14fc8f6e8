// Rows of one table in the order they were entered. The position is a row number; rows that this recordset
// changed stay in it even when they no longer meet its condition.

#include "platform/ado/Cursor.h"

#include <limits>

namespace varnik::ado {
namespace {

constexpr std::int64_t BeforeAll = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t BehindAll = std::numeric_limits<std::int64_t>::max();

class EntryCursor final : public TableCursor {
public:
    explicit EntryCursor(CursorSource source) : TableCursor(std::move(source)) {}

    bool First() override {
        ahead.clear();
        batch = FirstRead;
        return Forward(BeforeAll);
    }

    bool Next() override { return Forward(row); }
    bool Last() override { return Backward(BehindAll); }
    bool Previous() override { return Backward(row); }

    bool Find(const std::vector<jet::Term>& terms) override {
        std::vector<Value> with = Parameters({row});
        const std::string condition = Condition(terms, parameters.size() + 2, with);
        std::deque<Row> rows =
            Read(Select(condition + " and rowid >= " + Placeholder(1), "order by rowid limit 1"), with);
        ahead.clear();
        for (auto at = kept_.lower_bound(row);
             at != kept_.end() && (rows.empty() || *at < rows.front().number); ++at) {
            if (Meets(*at, terms)) return ReadRow(*at);
        }
        if (rows.empty()) return false;
        Take(rows.front());
        return true;
    }

    void Filter(std::vector<jet::Term> terms) override {
        TableCursor::Filter(std::move(terms));
        kept_.clear();
    }

    long Count() override {
        Running running(session.Compile("select count(*) from " + form->statement.from +
                                        (where.empty() ? "" : " where " + where)),
                        parameters);
        running.Step();
        auto count = static_cast<long>(running.ReadInteger(0));
        for (const std::int64_t number : kept_) {
            if (!Member(number)) ++count;
        }
        return count;
    }

    bool IsEmpty() override {
        Running running(session.Compile(Select({}, "limit 1", true)), parameters);
        return !running.Step() && kept_.empty();
    }

    bool Goto(Bookmark bookmark) override {
        ahead.clear();
        return ReadRow(bookmark);
    }

    void Changed() override { Keep(); }
    void Removed() override { kept_.erase(row); }
    void Added(std::int64_t number) override {
        row = number;
        ahead.clear();
        Keep();
    }

private:
    void Keep() {
        if (!where.empty()) kept_.insert(row);
    }

    bool Forward(std::int64_t from) {
        if (!ahead.empty() && Fresh()) {
            Take(ahead.front());
            ahead.pop_front();
            return true;
        }
        // Whoever writes on every row reads one at a time; who only reads, ever more at once.
        if (Written()) batch = FirstRead;
        std::deque<Row> rows =
            Read(Select("rowid > " + Placeholder(1), "order by rowid limit " + Placeholder(2)),
                 Parameters({from, batch}));
        batch = batch == FirstRead ? 16 : std::min(batch * 4, MostRead);
        ReadAhead({});
        // A kept row that the condition no longer finds comes in its place.
        const auto next = kept_.upper_bound(from);
        if (next != kept_.end() && (rows.empty() || *next < rows.front().number)) {
            if (ReadRow(*next)) return true;
            const std::int64_t gone = *next;
            kept_.erase(next);
            return Forward(gone);
        }
        if (rows.empty()) return false;
        Take(rows.front());
        rows.pop_front();
        if (kept_.upper_bound(row) == kept_.end()) ReadAhead(std::move(rows));
        return true;
    }

    bool Backward(std::int64_t from) {
        ahead.clear();
        batch = FirstRead;
        std::deque<Row> rows =
            Read(Select("rowid < " + Placeholder(1), "order by rowid desc limit 1"), Parameters({from}));
        auto next = kept_.lower_bound(from);
        if (next != kept_.begin()) {
            --next;
            if (rows.empty() || *next > rows.front().number) {
                if (ReadRow(*next)) return true;
                const std::int64_t gone = *next;
                kept_.erase(next);
                return Backward(gone);
            }
        }
        if (rows.empty()) return false;
        Take(rows.front());
        return true;
    }

    bool Member(std::int64_t number) {
        Running running(session.Compile(Select("rowid = " + Placeholder(1), {}, true)), Parameters({number}));
        return running.Step();
    }

    std::set<std::int64_t> kept_;
};

} // namespace

std::unique_ptr<Cursor> OpenEntryCursor(CursorSource source) {
    return std::make_unique<EntryCursor>(std::move(source));
}

} // namespace varnik::ado
