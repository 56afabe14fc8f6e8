// Rows of a join, a stored query or a summary: read once, never changed.

#include "platform/ado/Cursor.h"
#include "platform/ado/PackedRows.h"

#include "common/Text.h"

namespace varnik::ado {
namespace {

// -1, 0 or 1 in the way the engine compares; nothing when a side is null or they are of different kinds.
std::optional<int> Compare(const Value& a, const Value& b, const Regional& regional) {
    if (a.IsNull() || b.IsNull()) return std::nullopt;
    const auto sign = [](auto left, auto right) { return left < right ? -1 : left == right ? 0 : 1; };
    if (a.IsDate() && b.IsDate()) return sign(a.Date(), b.Date());
    if (a.IsText() && b.IsText()) {
        if (EqualsNoCase(a.Text(), b.Text())) return 0;
        return sign(Upper(a.Text()), Upper(b.Text()));
    }
    if (a.IsDate() || b.IsDate()) return std::nullopt;
    if ((a.IsText() && !IsNumeric(a.Text(), regional)) || (b.IsText() && !IsNumeric(b.Text(), regional)))
        return std::nullopt;
    return sign(ToDouble(a, regional, ""), ToDouble(b, regional, ""));
}

class StaticCursor final : public Cursor {
public:
    explicit StaticCursor(CursorSource source) : session_(source.session) {
        Running running(session_.Compile(source.form->statement.sql), source.parameters);
        fields = running.Fields();
        values.resize(fields.size());
        while (running.Step()) {
            for (std::size_t i = 0; i < values.size(); ++i) running.Read(static_cast<int>(i), values[i]);
            rows_.Add(values);
        }
    }

    bool First() override { return Forward(0); }
    bool Last() override { return Backward(rows_.Size()); }
    bool Next() override { return Forward(at_ + 1); }
    bool Previous() override { return Backward(at_); }
    bool Find(const std::vector<jet::Term>& terms) override {
        const std::vector<std::size_t> columns = ColumnsOf(terms);
        for (std::size_t i = at_; i < rows_.Size(); ++i) {
            if (Shown(i) && Meets(Row(i), terms, columns)) return To(i);
        }
        return false;
    }
    void Filter(std::vector<jet::Term> terms) override {
        filterColumns_ = ColumnsOf(terms);
        filter_ = std::move(terms);
        at_ = 0;
    }
    long Count() override {
        if (filter_.empty()) return static_cast<long>(rows_.Size());
        long count = 0;
        for (std::size_t i = 0; i < rows_.Size(); ++i) count += Shown(i) ? 1 : 0;
        return count;
    }
    bool IsEmpty() override { return Count() == 0; }
    Bookmark Mark() const override { return static_cast<Bookmark>(at_); }
    bool Goto(Bookmark bookmark) override {
        return bookmark >= 0 && static_cast<std::size_t>(bookmark) < rows_.Size() &&
               To(static_cast<std::size_t>(bookmark));
    }

private:
    bool To(std::size_t index) {
        at_ = index;
        rows_.Read(index, values);
        return true;
    }
    bool Forward(std::size_t index) {
        while (index < rows_.Size() && !Shown(index)) ++index;
        return index < rows_.Size() && To(index);
    }
    bool Backward(std::size_t index) {
        while (index-- > 0) {
            if (Shown(index)) return To(index);
        }
        return false;
    }
    const std::vector<Value>& Row(std::size_t index) const {
        looked_.resize(fields.size());
        rows_.Read(index, looked_);
        return looked_;
    }
    bool Shown(std::size_t index) const {
        return filter_.empty() || Meets(Row(index), filter_, filterColumns_);
    }

    std::vector<std::size_t> ColumnsOf(const std::vector<jet::Term>& terms) const {
        std::vector<std::size_t> columns;
        for (const jet::Term& term : terms) {
            std::size_t i = 0;
            while (i < fields.size() && !EqualsNoCase(fields[i].name, term.column)) ++i;
            if (i == fields.size())
                throw DataError(UnknownColumn, "There is no column named \"" + term.column + "\".");
            columns.push_back(i);
        }
        return columns;
    }

    bool Meets(const std::vector<Value>& row, const std::vector<jet::Term>& terms,
               const std::vector<std::size_t>& columns) const {
        const Regional& regional = *session_.Surroundings().regional;
        using Operator = jet::Term::Operator;
        for (std::size_t i = 0; i < terms.size(); ++i) {
            const jet::Term& term = terms[i];
            const Value& value = row[columns[i]];
            bool meets = false;
            if (term.value.IsNull()) {
                meets = value.IsNull() == (term.comparison != Operator::Unequal);
            } else if (term.comparison == Operator::Like) {
                meets =
                    !value.IsNull() && jet::Like(ShowValue(term.value, regional), ShowValue(value, regional));
            } else if (const std::optional<int> order = Compare(value, term.value, regional)) {
                switch (term.comparison) {
                case Operator::Equal:
                    meets = *order == 0;
                    break;
                case Operator::Unequal:
                    meets = *order != 0;
                    break;
                case Operator::Less:
                    meets = *order < 0;
                    break;
                case Operator::LessEqual:
                    meets = *order <= 0;
                    break;
                case Operator::Greater:
                    meets = *order > 0;
                    break;
                case Operator::GreaterEqual:
                    meets = *order >= 0;
                    break;
                case Operator::Like:
                    break;
                }
            }
            if (!meets) return false;
        }
        return true;
    }

    Session& session_;
    PackedRows rows_;
    mutable std::vector<Value> looked_; // a row under test
    std::size_t at_ = 0;
    std::vector<jet::Term> filter_;
    std::vector<std::size_t> filterColumns_;
};

} // namespace

std::unique_ptr<Cursor> OpenStaticCursor(CursorSource source) {
    return std::make_unique<StaticCursor>(std::move(source));
}

} // namespace varnik::ado
