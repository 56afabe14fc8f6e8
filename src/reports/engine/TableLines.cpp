// The rows of a report as a spreadsheet and CSV take them.

#include "reports/engine/Table.h"

#include "common/Text.h"

#include <algorithm>

namespace varnik::reports {

// What a voucher without columns is as one line: to whom, its fields, its totals.
std::vector<const Labelled*> Table::SheetCells() const {
    std::vector<const Labelled*> cells;
    for (const auto* labelled : {&definition_.document->fields, &definition_.document->totals})
        for (const Labelled& each : *labelled) cells.push_back(&each);
    return cells;
}

// A date stays a date and an amount an amount where nothing stands around it.
Value Table::SheetValue(const Template& text) const {
    const Template::Place* only = text.Only();
    const bool plain = only != nullptr && !only->sum && !only->words && !only->month && !only->given;
    const int column = plain ? rows_.Find(only->name) : -1;
    return column >= 0 ? rows_.Get(order_.front(), column) : Value(Fill(text, All()));
}

bool Table::IsSheet() const { return slots_.empty() && definition_.document; }

std::size_t Table::LineCount() const {
    if (IsSheet()) return order_.empty() ? 0 : 1;
    return summary_ ? groups_.back().spans.size() : order_.size();
}

bool Table::InFront(const Group& group) const {
    return !group.heading.empty() && std::none_of(slots_.begin(), slots_.end(), [&](const Slot& slot) {
        return EqualsNoCase(slot.column->heading, group.heading);
    });
}

std::vector<std::string> Table::LineHeadings() const {
    std::vector<std::string> headings;
    if (IsSheet()) {
        headings.push_back(definition_.document->toCaption);
        for (const Labelled* cell : SheetCells()) headings.push_back(cell->label);
    }
    for (const Group& group : definition_.groups)
        if (InFront(group)) headings.push_back(group.heading);
    for (const Slot& slot : slots_) headings.push_back(slot.column->heading);
    return headings;
}

std::vector<Value> Table::LineValues(std::size_t line) const {
    std::vector<Value> values;
    if (IsSheet()) {
        std::string to;
        for (const Template& part : definition_.document->to) to += Fill(part, All()) + " ";
        values.push_back(Value(Trim(to)));
        for (const Labelled* cell : SheetCells()) values.push_back(SheetValue(cell->text));
        return values;
    }
    const std::uint32_t row = summary_ ? groups_.back().spans[line].first : static_cast<std::uint32_t>(line);
    for (std::size_t level = 0; level < definition_.groups.size(); ++level)
        if (const Group& group = definition_.groups[level]; InFront(group))
            values.push_back(Value(Fill(group.header, groups_[level].spans[GroupOf(level, row)])));
    for (const Slot& slot : slots_)
        values.push_back(summary_ && ShowsSum(slot, groups_.size() - 1)
                             ? Value(groups_.back().sums[line * static_cast<std::size_t>(sums_) +
                                                         static_cast<std::size_t>(slot.sum)])
                             : CellValue(slot, row));
    return values;
}

} // namespace varnik::reports
