// Rows of one table in an order of the statement: a list of row numbers that grows as it is walked. What is
// in it stays in it, rows added here come last.

#include "platform/ado/Cursor.h"

#include <unordered_set>

namespace varnik::ado {
namespace {

constexpr int FirstBatch = 16;
constexpr std::size_t Unknown = static_cast<std::size_t>(-1);

class OrderedCursor final : public TableCursor {
public:
    explicit OrderedCursor(CursorSource source)
        : TableCursor(std::move(source)), order_("order by " + form->statement.order + " , rowid") {}

    bool First() override {
        if (numbers_.empty()) Extend();
        return To(0);
    }
    bool Last() override {
        ReadAll();
        return !numbers_.empty() && Back(numbers_.size());
    }
    bool Next() override {
        Locate();
        return To(removed_ ? index_ : index_ + 1);
    }
    bool Previous() override {
        Locate();
        return Back(index_);
    }

    // A search in the table; where it stands in the order is looked up only when somebody walks on.
    bool Find(const std::vector<jet::Term>& terms) override {
        const bool fromFirst = index_ == 0 && !removed_;
        std::vector<Value> with = parameters;
        const std::string condition = Condition(terms, parameters.size() + 1, with);
        const std::string tail = order_ + (fromFirst ? " limit 1" : "");
        Running running(session.Compile(Select(condition, tail, true)), with);
        std::vector<std::int64_t> found;
        while (running.Step()) found.push_back(running.ReadInteger(0));
        for (const std::int64_t number : added_) {
            if (std::find(found.begin(), found.end(), number) == found.end() && Meets(number, terms))
                found.push_back(number);
        }
        if (found.empty()) return false;
        if (fromFirst) return Jump(found.front());
        Locate();
        ReadAll();
        const std::unordered_set<std::int64_t> wanted(found.begin(), found.end());
        for (std::size_t i = index_; i < numbers_.size(); ++i) {
            if (wanted.contains(numbers_[i]) && To(i)) return true;
        }
        return false;
    }

    void Filter(std::vector<jet::Term> terms) override {
        TableCursor::Filter(std::move(terms));
        numbers_.clear();
        added_.clear();
        complete_ = removed_ = false;
        index_ = read_ = aheadFrom_ = 0;
        batch_ = FirstBatch;
    }

    long Count() override {
        ReadAll();
        return static_cast<long>(numbers_.size());
    }
    bool IsEmpty() override {
        if (numbers_.empty()) Extend();
        return numbers_.empty();
    }
    bool Goto(Bookmark bookmark) override { return Jump(bookmark); }

    void Removed() override {
        Locate();
        if (index_ < numbers_.size()) numbers_.erase(numbers_.begin() + static_cast<std::ptrdiff_t>(index_));
        std::erase(added_, row);
        removed_ = true;
    }
    void Added(std::int64_t number) override {
        row = number;
        added_.push_back(number);
        if (complete_) numbers_.push_back(number);
        index_ = Unknown;
        removed_ = false;
    }

private:
    bool Jump(std::int64_t number) {
        if (!ReadRow(number)) return false;
        index_ = !numbers_.empty() && numbers_.front() == number ? 0 : Unknown;
        removed_ = false;
        return true;
    }

    // Stands on the row at this place or, when others have deleted it, on the next one.
    bool To(std::size_t index) {
        for (;; ++index) {
            while (index >= numbers_.size() && !complete_) Extend();
            if (index >= numbers_.size()) return false;
            if (!At(index)) continue;
            index_ = index;
            removed_ = false;
            return true;
        }
    }
    bool Back(std::size_t index) {
        while (index-- > 0) {
            if (!At(index)) continue;
            index_ = index;
            removed_ = false;
            return true;
        }
        return false;
    }
    bool At(std::size_t index) {
        if (index >= aheadFrom_ && index < aheadFrom_ + ahead.size() && Fresh()) {
            Row& read = ahead[index - aheadFrom_];
            if (!read.values.empty()) { // each is used once
                row = read.number;
                values = std::move(read.values);
                read.values.clear();
                return true;
            }
        }
        return ReadRow(numbers_[index]);
    }

    void Locate() {
        if (index_ != Unknown) return;
        const auto find = [&] { return std::find(numbers_.begin(), numbers_.end(), row); };
        if (find() == numbers_.end()) ReadAll();
        index_ = static_cast<std::size_t>(find() - numbers_.begin());
    }

    bool Known(std::int64_t number) const {
        return std::find(added_.begin(), added_.end(), number) != added_.end();
    }

    // The next rows behind those already known. When the table changed meanwhile, the whole order is read
    // again and what is new in it comes behind what was known.
    void Extend() {
        const std::int64_t changes = session.State().writes + session.Native().ForeignChanges();
        if (!numbers_.empty() && changes != changes_) return ReadAll();
        changes_ = changes;
        std::deque<Row> rows =
            Read(Select({}, order_ + " limit " + Placeholder(1) + " offset " + Placeholder(2)),
                 Parameters({batch_, static_cast<std::int64_t>(read_)}));
        complete_ = static_cast<int>(rows.size()) < batch_;
        read_ += rows.size();
        aheadFrom_ = numbers_.size();
        std::erase_if(rows, [&](const Row& one) { return Known(one.number); });
        for (const Row& one : rows) numbers_.push_back(one.number);
        ReadAhead(std::move(rows));
        batch_ = std::min(batch_ * 4, 16384);
        if (complete_) numbers_.insert(numbers_.end(), added_.begin(), added_.end());
    }

    void ReadAll() {
        if (complete_) return;
        const std::unordered_set<std::int64_t> known(numbers_.begin(), numbers_.end());
        Running running(session.Compile(Select({}, order_, true)), parameters);
        while (running.Step()) {
            const std::int64_t number = running.ReadInteger(0);
            if (!known.contains(number) && !Known(number)) numbers_.push_back(number);
        }
        numbers_.insert(numbers_.end(), added_.begin(), added_.end());
        complete_ = true;
    }

    std::string order_;
    std::vector<std::int64_t> numbers_;
    std::vector<std::int64_t> added_; // by this recordset
    std::size_t index_ = 0;           // of the current row; unknown after a find
    bool removed_ = false;            // the current row was deleted: index_ is where it stood
    bool complete_ = false;
    std::size_t read_ = 0;
    std::size_t aheadFrom_ = 0;
    int batch_ = FirstBatch;
    std::int64_t changes_ = 0;
};

} // namespace

std::unique_ptr<Cursor> OpenOrderedCursor(CursorSource source) {
    return std::make_unique<OrderedCursor>(std::move(source));
}

} // namespace varnik::ado
