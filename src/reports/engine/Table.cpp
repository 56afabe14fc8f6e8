#include "reports/engine/Table.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "reports/engine/Draw.h"
#include "reports/engine/Statement.h"
#include "reports/engine/TextMetrics.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace varnik::reports {

namespace {

constexpr double SmallestSize = 6.5;    // points; below it figures shrink one by one
constexpr double ShownFraction = 0.005; // half a hundredth is what two decimals can show

// A named text of the request: a parameter, or one of the company's lines.
std::string Parameter(const Facts& facts, std::string_view name) {
    for (const auto& [key, value] : facts.parameters)
        if (EqualsNoCase(key, name)) return value;
    for (std::size_t line = 0; line < facts.company.size(); ++line)
        if (EqualsNoCase(name, "Judul" + std::to_string(line + 1))) return facts.company[line];
    return {};
}

// Order of two cells: empty ones first, figures by value, dates by day, texts without case.
int Compare(const Rows& rows, std::uint32_t a, std::uint32_t b, int column) {
    const bool noA = rows.IsNull(a, column), noB = rows.IsNull(b, column);
    if (noA || noB) return static_cast<int>(noB) - static_cast<int>(noA);
    if (rows.IsText(a, column) && rows.IsText(b, column)) {
        const std::string_view left = rows.Text(a, column), right = rows.Text(b, column);
        const auto lower = [](unsigned char c) { return c >= 'A' && c <= 'Z' ? c + 32 : +c; };
        const std::size_t shared = std::min(left.size(), right.size());
        for (std::size_t i = 0; i < shared; ++i) {
            const int difference =
                lower(static_cast<unsigned char>(left[i])) - lower(static_cast<unsigned char>(right[i]));
            if (difference != 0) return difference;
        }
        return left.size() < right.size() ? -1 : left.size() > right.size() ? 1 : 0;
    }
    if (rows.IsDate(a, column) && rows.IsDate(b, column)) {
        const DateTime left = rows.Get(a, column).Date(), right = rows.Get(b, column).Date();
        return left < right ? -1 : left > right ? 1 : 0;
    }
    const double left = rows.Number(a, column), right = rows.Number(b, column);
    return left < right ? -1 : left > right ? 1 : 0;
}

} // namespace

Table::Table(Definition definition, Rows rows, Facts facts, double width)
    : definition_(std::move(definition)), rows_(std::move(rows)), facts_(std::move(facts)) {
    const bool groupsInOneLine = std::any_of(definition_.groups.begin(), definition_.groups.end(),
                                             [](const Group& group) { return group.summary; });
    summary_ = groupsInOneLine && (definition_.summary || EqualsNoCase(Parameter(facts_, "Detail"), "S"));
    if (summary_) // what stands under the group that is one line has no place
        while (!definition_.groups.back().summary) definition_.groups.pop_back();
    ChooseColumns();
    OrderRows();
    Balance();
    FindGroups();
    ChooseMasks();
    ChooseWidths(width);
}

void Table::ChooseColumns() {
    for (const Column& column : definition_.columns) {
        if (column.show == Show::Detail && summary_) continue;
        if (column.show == Show::Summary && !summary_) continue;
        Slot slot;
        slot.column = &column;
        bool there = column.running;
        if (!column.field.empty()) {
            slot.field = rows_.Find(column.field);
            there = slot.field >= 0;
        } else if (column.formula) {
            slot.formula = *column.formula;
            slot.formula.Bind(rows_);
            there = slot.formula.HasAllColumns();
        } else if (!column.text.Empty()) {
            for (const std::string& name : column.text.Names()) there = there || rows_.Find(name) >= 0;
        } else if (!column.days.empty()) {
            there = rows_.Find(column.days) >= 0;
        }
        if (column.optional && (!there || (column.hideZero && AllZero(slot)))) continue;
        if (column.age) slot.ageDate = rows_.Find(column.age->date);
        if (!column.days.empty()) slot.ageDate = rows_.Find(column.days);
        const bool summed = column.total || !column.totalOf.empty();
        slot.figures = column.formula.has_value() || column.running || summed || !column.days.empty();
        for (std::size_t row = 0; !slot.figures && slot.field >= 0 && row < rows_.Count(); ++row) {
            if (rows_.IsNull(row, slot.field)) continue;
            slot.figures = rows_.IsNumber(row, slot.field);
            break;
        }
        slot.align = column.align.value_or(slot.figures ? Align::Right : Align::Left);
        if (summed) slot.sum = sums_++;
        slots_.push_back(std::move(slot));
    }
}

// Rows of which none has anything else to show in a column of the statement.
bool Table::AllZero(const Slot& slot) const {
    if (slot.field < 0 || rows_.Count() == 0) return false;
    for (std::size_t row = 0; row < rows_.Count(); ++row)
        if (rows_.Number(row, slot.field) != 0) return false;
    return true;
}

void Table::OrderRows() {
    const int leaveOut = definition_.leaveOutZero.empty() ? -1 : rows_.Find(definition_.leaveOutZero);
    order_.reserve(rows_.Count());
    for (std::uint32_t row = 0; row < rows_.Count(); ++row)
        if (leaveOut < 0 || std::abs(rows_.Number(row, leaveOut)) >= ShownFraction) order_.push_back(row);
    std::vector<int> keys;
    for (const std::string& name : definition_.sort)
        if (const int column = rows_.Find(name); column >= 0) keys.push_back(column);
    if (keys.empty()) return;
    const auto before = [&](std::uint32_t a, std::uint32_t b) {
        for (const int key : keys)
            if (const int order = Compare(rows_, a, b, key); order != 0) return order < 0;
        return false;
    };
    // Most statements bring the order along, and looking is much cheaper than sorting.
    if (!std::is_sorted(order_.begin(), order_.end(), before))
        std::stable_sort(order_.begin(), order_.end(), before);
}

void Table::Balance() {
    if (!definition_.running) return;
    Running& running = *definition_.running;
    running.change.Bind(rows_);
    if (BalancesGroups()) {
        const int balance = rows_.Find(running.balance);
        for (const std::uint32_t stored : order_)
            running_.push_back(balance < 0 ? 0 : rows_.Number(stored, balance));
        return;
    }
    long double sum = 0;
    running_.reserve(order_.size());
    for (const std::uint32_t stored : order_) {
        sum += running.change.Evaluate(rows_, stored);
        running_.push_back(static_cast<double>(sum));
    }
    const std::string opening = Parameter(facts_, running.opening);
    const std::string closing = Parameter(facts_, running.closing);
    // A request that brings the closing balance alone has its opening one told back from the movements.
    hasOpening_ = !opening.empty() || !closing.empty();
    opening_ = !opening.empty()   ? ToNumber(opening, facts_.regional)
               : !closing.empty() ? ToNumber(closing, facts_.regional) - static_cast<double>(sum)
                                  : 0;
    closing_ = !closing.empty() ? ToNumber(closing, facts_.regional) : opening_ + static_cast<double>(sum);
    for (double& balance : running_) balance += opening_;
}

double Table::OpeningOf(Span group) const {
    return running_[group.first] - definition_.running->change.Evaluate(rows_, order_[group.first]);
}

void Table::FindGroups() {
    const auto addUp = [&](Span span, std::vector<double>& into) {
        for (const Slot& slot : slots_) {
            if (slot.sum < 0) continue;
            long double sum = 0;
            for (std::uint32_t row = span.first; row < span.last; ++row) sum += Number(slot, row);
            into.push_back(static_cast<double>(sum));
        }
    };
    std::vector<int> keys;
    for (const Group& group : definition_.groups) {
        keys.push_back(rows_.Find(group.by));
        Level level;
        for (std::uint32_t row = 0; row < RowCount(); ++row) {
            // A change on an outer level begins a new group on this one too.
            const bool fresh = row == 0 || std::any_of(keys.begin(), keys.end(), [&](int key) {
                                   return key >= 0 && Compare(rows_, order_[row - 1], order_[row], key) != 0;
                               });
            if (fresh) level.spans.push_back({row, row});
            level.spans.back().last = row + 1;
        }
        for (const Span& span : level.spans) addUp(span, level.sums);
        groups_.push_back(std::move(level));
    }
    addUp(All(), grandSums_);
}

bool Table::HasTotals() const {
    return std::any_of(slots_.begin(), slots_.end(), [](const Slot& slot) { return slot.column->total; });
}

bool Table::ShowsSum(const Slot& slot, std::size_t level) const {
    return slot.column->total ||
           (slot.sum >= 0 && EqualsNoCase(slot.column->totalOf, definition_.groups[level].by));
}

std::size_t Table::GroupOf(std::size_t level, std::uint32_t row) const {
    const std::vector<Span>& spans = groups_[level].spans;
    const auto after = std::upper_bound(spans.begin(), spans.end(), row,
                                        [](std::uint32_t r, const Span& span) { return r < span.first; });
    return static_cast<std::size_t>(after - spans.begin()) - 1;
}

void Table::ChooseMasks() {
    // Amounts that are added up or carried stand side by side: all have decimals when one of them has some.
    const auto amount = [](const Slot& slot) { return slot.column->total || slot.column->running; };
    bool amountFractions = false;
    for (Slot& slot : slots_) {
        double least = 0, most = 0;
        bool fractions = false;
        const auto look = [&](double number) {
            least = std::min(least, number);
            most = std::max(most, number);
            fractions = fractions || std::abs(number - std::round(number)) >= ShownFraction;
        };
        if (slot.figures) {
            for (std::uint32_t row = 0; row < RowCount(); ++row) look(Number(slot, row));
            if (ShowsGrandSum(slot)) look(grandSums_[static_cast<std::size_t>(slot.sum)]);
            if (slot.column->running && BalancesGroups()) {
                for (std::size_t group = 0; !groups_.empty() && group < groups_.back().spans.size(); ++group)
                    look(OpeningOf(groups_.back().spans[group]));
            } else if (slot.column->running) {
                look(Opening());
                look(Closing());
            }
            for (std::size_t level = 0; level < groups_.size(); ++level)
                for (std::size_t group = 0; ShowsSum(slot, level) && group < groups_[level].spans.size();
                     ++group)
                    look(groups_[level].sums[group * static_cast<std::size_t>(sums_) +
                                             static_cast<std::size_t>(slot.sum)]);
        }
        slot.mask = !slot.column->mask.empty() ? slot.column->mask : fractions ? "#,##0.00" : "#,##0";
        amountFractions = amountFractions || (fractions && amount(slot));
        extremes_.emplace_back(least, most);
    }
    for (Slot& slot : slots_)
        if (amountFractions && amount(slot) && slot.column->mask.empty()) slot.mask = "#,##0.00";
}

double Table::NeededWidth(const Slot& slot, double size) const {
    double needed = slot.column->width * size / definition_.fontSize;
    for (const std::string& word : Split(slot.column->heading, ' '))
        needed = std::max(needed, TextWidth(word, size, true) + 2 * look::CellPadding);
    if (slot.figures) {
        const auto& [least, most] = extremes_[static_cast<std::size_t>(&slot - slots_.data())];
        for (const double number : {least, most})
            needed = std::max(needed, TextWidth(NumberText(number, slot.mask), size, true) +
                                          2 * look::CellPadding + look::FigureGap);
    }
    return needed;
}

void Table::ChooseWidths(double width) {
    double sum = 0;
    for (fontSize_ = definition_.fontSize;; fontSize_ -= 0.5) {
        sum = 0;
        for (Slot& slot : slots_) {
            slot.width = NeededWidth(slot, fontSize_);
            sum += slot.width;
        }
        if (sum <= width || fontSize_ - 0.5 < SmallestSize) break;
    }
    // What is left goes to the flexible columns; without any, and when all is too wide, to (from) all.
    double flexible = 0;
    for (const Slot& slot : slots_)
        if (slot.column->flex) flexible += slot.width;
    const bool all = sum > width || flexible == 0;
    double x = 0;
    for (Slot& slot : slots_) {
        if (all)
            slot.width *= width / sum;
        else if (slot.column->flex)
            slot.width += (width - sum) * slot.width / flexible;
        slot.x = x;
        x += slot.width;
    }
}

std::optional<int> Table::Days(const Slot& slot, std::size_t stored) const {
    if (slot.ageDate < 0 || !rows_.IsDate(stored, slot.ageDate)) return {};
    return facts_.now.day - rows_.Get(stored, slot.ageDate).Date().day;
}

bool Table::InAge(const Slot& slot, std::size_t stored) const {
    if (!slot.column->age) return true;
    const std::optional<int> days = Days(slot, stored);
    return days && *days >= slot.column->age->from && *days <= slot.column->age->upTo;
}

double Table::Number(const Slot& slot, std::uint32_t row) const {
    const std::uint32_t stored = order_[row];
    if (slot.column->running) return running_[row];
    if (slot.column->formula) return slot.formula.Evaluate(rows_, stored);
    if (!slot.column->days.empty()) return Days(slot, stored).value_or(0);
    if (slot.field < 0 || !InAge(slot, stored)) return 0;
    return rows_.Number(stored, slot.field);
}

Value Table::CellValue(const Slot& slot, std::uint32_t row) const {
    const std::uint32_t stored = order_[row];
    if (slot.column->running) return Value(running_[row]);
    if (slot.column->formula)
        return slot.formula.HasColumns() ? Value(slot.formula.Evaluate(rows_, stored)) : Value();
    if (!slot.column->text.Empty()) return Value(Fill(slot.column->text, {row, row + 1}));
    if (!slot.column->days.empty()) {
        const std::optional<int> days = Days(slot, stored);
        return days ? Value(static_cast<double>(*days)) : Value();
    }
    if (slot.field < 0 || !InAge(slot, stored)) return {};
    return rows_.Get(stored, slot.field);
}

std::string Table::CellText(const Slot& slot, std::uint32_t row) const {
    const Value value = CellValue(slot, row);
    if (value.IsText()) return value.Text();
    if (value.IsBool()) return value.Bool() ? "Yes" : "No";
    if (value.IsDate()) return ShortDate(value.Date(), facts_.regional);
    if (value.IsNull()) return {};
    return FigureText(slot, value.IsDouble() ? value.Double() : static_cast<double>(value.Integer()));
}

std::string Table::FigureText(const Slot& slot, double number) const {
    if (slot.column->hideZero && number == 0) return {};
    return NumberText(number, slot.mask);
}

std::string Table::NumberText(double number, const std::string& mask) const {
    if (mask == "quantity") { // up to three decimals, only those that say something
        std::string text = FormatNumber(number, "#,##0.000", facts_.regional);
        while (text.ends_with('0')) text.pop_back();
        if (text.ends_with(facts_.regional.decimal)) text.pop_back();
        return text;
    }
    return FormatNumber(number, mask, facts_.regional);
}

std::string Table::GroupSum(const Slot& slot, std::size_t level, std::size_t group) const {
    return FigureText(
        slot,
        groups_[level].sums[group * static_cast<std::size_t>(sums_) + static_cast<std::size_t>(slot.sum)]);
}

std::string Table::GrandSum(const Slot& slot) const {
    return NumberText(grandSums_[static_cast<std::size_t>(slot.sum)], slot.mask);
}

std::string Table::Fill(const Template& text, Span span, bool decimals) const {
    return text.Fill([&](const Template::Place& place) { return FillPlace(place, span, decimals); });
}

std::string Table::FillIfGiven(const Template& text, Span span) const {
    bool given = false;
    std::string filled = text.Fill([&](const Template::Place& place) {
        std::string found = FillPlace(place, span, false);
        given = given || !found.empty();
        return found;
    });
    return given || text.Names().empty() ? filled : "";
}

// A sum is named after a column of the rows, or after the heading of a calculated one.
double Table::Sum(const std::string& name, Span span) const {
    long double sum = 0;
    const int column = rows_.Find(name);
    for (const Slot& slot : slots_)
        if (column < 0 && EqualsNoCase(slot.column->heading, name))
            for (std::uint32_t row = span.first; row < span.last; ++row) sum += Number(slot, row);
    for (std::uint32_t row = span.first; column >= 0 && row < span.last; ++row)
        sum += rows_.Number(order_[row], column);
    return static_cast<double>(sum);
}

std::string Table::FillPlace(const Template::Place& place, Span span, bool decimals) const {
    const auto words = [&](double number) {
        return Trim(AmountInWords(FormatNumber(number, "#0", facts_.regional)));
    };
    const int column = rows_.Find(place.name);
    if (column < 0 && !place.sum) {
        const std::string given = Parameter(facts_, place.name);
        return place.words && !given.empty() ? words(ToNumber(given, facts_.regional)) : given;
    }
    // Without rows a code and a month that the statement asks for are still known.
    if (span.first >= span.last && place.month) {
        const auto asked = MonthAskedOf(facts_.request.SQLQuery, place.name);
        return asked ? MonthName(asked->month) + " " + std::to_string(asked->year) : "";
    }
    if (span.first >= span.last)
        return place.sum ? "" : ComparedWith(facts_.request.SQLQuery, place.name).value_or("");
    const Value value = place.sum ? Value(Sum(place.name, span)) : rows_.Get(order_[span.first], column);
    if (value.IsText()) return value.Text();
    if (value.IsBool()) return value.Bool() ? "Yes" : "No";
    if (value.IsDate() && place.month) {
        const CalendarDate date = ToCalendar(value.Date());
        return MonthName(date.month) + " " + std::to_string(date.year);
    }
    if (value.IsDate()) return ShortDate(value.Date(), facts_.regional);
    if (value.IsNull()) return {};
    if (place.words) return words(value.Double());
    decimals = decimals || std::abs(value.Double() - std::round(value.Double())) >= ShownFraction;
    return NumberText(value.Double(), !place.mask.empty() ? place.mask : decimals ? "#,##0.00" : "#,##0");
}

std::string Table::Title() const {
    // A request may give the period as Judul; a definition that takes it as its subtitle has a title instead.
    const std::vector<std::string> below = definition_.subtitle.Names();
    const bool period = std::any_of(below.begin(), below.end(),
                                    [](const std::string& name) { return EqualsNoCase(name, "Judul"); });
    if (const std::string title = Trim(Parameter(facts_, "Judul")); !period && !title.empty()) return title;
    if (const std::string title = Fill(definition_.title, All()); period && !title.empty()) return title;
    if (const std::string title = Trim(facts_.request.ReportTitle); !title.empty()) return title;
    if (const std::string title = Fill(definition_.title, All()); !title.empty()) return title;
    return Trim(facts_.request.WindowTitle);
}

} // namespace varnik::reports
