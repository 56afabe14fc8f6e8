#include "reports/engine/Layout.h"

#include "common/Text.h"
#include "reports/engine/Draw.h"

#include <algorithm>

namespace varnik::reports {

using namespace look;

namespace {

constexpr double RowPadding = 1.3; // mm, above and below a row together
constexpr int MostLines = 12;      // of one cell; no column of the data needs more

double PaperWidth(const Definition& definition) { return definition.across ? 297 : 210; }

} // namespace

Layout::Layout(Definition definition, Rows rows, Facts facts)
    : table_(Definition(definition), std::move(rows), std::move(facts), PaperWidth(definition) - 2 * Margin) {
    const double width = PageWidth() - 2 * Margin;
    firstHeadHeight_ = FirstHead(table_, width, firstHead_);
    nextHeadHeight_ = NextHead(table_, width, nextHead_);
    headingsHeight_ = HeadingsHeight();
    if (table_.Layout().document) footHeight_ = DocumentFoot(table_, width, foot_);
    List();
    Break();
}

double Layout::PageWidth() const { return PaperWidth(table_.Layout()); }

double Layout::PageHeight() const { return table_.Layout().across ? 210 : 297; }

void Layout::Add(Kind kind, double height, std::size_t level, std::size_t index) {
    items_.push_back({kind, static_cast<std::uint8_t>(level), static_cast<std::uint32_t>(index),
                      static_cast<float>(height)});
}

void Layout::List() {
    items_.reserve(table_.RowCount() + 8);
    if (table_.HasOpening()) Add(Kind::Opening, LineItemHeight());
    if (table_.RowCount() > 0)
        ListGroups(0, table_.All());
    else
        Add(Kind::NoRows, 2 * LineItemHeight());
    const bool document = table_.Layout().document.has_value();
    const bool closes =
        !table_.BalancesGroups() && (table_.HasOpening() || (table_.HasTotals() && table_.RowCount() > 0));
    if (closes && !document) Add(Kind::Total, LineItemHeight() + 1);
    if (document && table_.RowCount() > 0) Add(Kind::Foot, footHeight_);
}

void Layout::ListGroups(std::size_t level, Span span) {
    const Definition& definition = table_.Layout();
    if (level == definition.groups.size()) {
        for (std::uint32_t row = span.first; row < span.last; ++row) Add(Kind::Row, RowHeight(row), 0, row);
        return;
    }
    const Group& group = definition.groups[level];
    const std::vector<Span>& groups = table_.Groups(level);
    for (std::size_t i = table_.GroupOf(level, span.first); i < groups.size(); ++i) {
        if (groups[i].first >= span.last) break;
        if (group.newPage && i > 0) forced_.push_back(items_.size());
        if (table_.Summary() && group.summary) {
            Add(Kind::SummaryRow, 0, level, i);
            items_.back().height = static_cast<float>(SummaryHeight(items_.back()));
            continue;
        }
        if (!group.header.Empty()) Add(Kind::GroupHeader, LineItemHeight() + GroupGap, level, i);
        if (level + 1 == definition.groups.size() && table_.BalancesGroups())
            Add(Kind::GroupOpening, LineItemHeight(), level, i);
        ListGroups(level + 1, groups[i]);
        const bool enough = groups[i].last - groups[i].first >= static_cast<std::uint32_t>(group.footerFrom);
        if (!group.footer.Empty() && enough && table_.HasTotals())
            Add(Kind::GroupFooter, LineItemHeight(), level, i);
    }
}

bool Layout::StaysWithNext(std::size_t item) const {
    if (item + 1 == items_.size()) return false;
    const Kind kind = items_[item].kind;
    if (kind == Kind::GroupHeader || kind == Kind::Opening || kind == Kind::GroupOpening) return true;
    const Kind next = items_[item + 1].kind;
    return next == Kind::GroupFooter || next == Kind::Total || next == Kind::Foot;
}

void Layout::Break() {
    const double bottom = PageHeight() - Margin - FootRoom;
    starts_ = {0};
    double y = Top(1);
    const auto turn = [&](std::size_t item) {
        starts_.push_back(item);
        y = Top(2) + static_cast<double>(Continued(item).size()) * LineItemHeight();
    };
    auto force = forced_.begin();
    for (std::size_t item = 0; item < items_.size();) {
        std::size_t after = item + 1;
        double height = items_[item].height;
        while (StaysWithNext(after - 1)) height += items_[after++].height;
        const bool forced = force != forced_.end() && *force == item;
        if (forced) ++force;
        if (item > starts_.back() && (forced || y + height > bottom)) turn(item);
        // What is higher than a whole page falls apart after all.
        for (; item < after; ++item) {
            if (item > starts_.back() && y + items_[item].height > bottom) turn(item);
            y += items_[item].height;
        }
    }
}

double Layout::Top(int page) const {
    return Margin + (page == 1 ? firstHeadHeight_ : nextHeadHeight_) + headingsHeight_;
}

// The printed row that an item stands for or under.
std::uint32_t Layout::FirstRow(const Item& item) const {
    switch (item.kind) {
    case Kind::Row:
        return item.index;
    case Kind::GroupHeader:
    case Kind::GroupOpening:
    case Kind::SummaryRow:
        return table_.Groups(item.level)[item.index].first;
    case Kind::GroupFooter:
        return table_.Groups(item.level)[item.index].last - 1;
    default:
        return table_.RowCount();
    }
}

std::vector<std::size_t> Layout::Continued(std::size_t at) const {
    std::vector<std::size_t> levels;
    const Item& item = items_[at];
    const std::uint32_t row = FirstRow(item);
    if (row >= table_.RowCount()) return levels;
    for (std::size_t level = 0; level < table_.Layout().groups.size(); ++level) {
        const Group& group = table_.Layout().groups[level];
        const bool inOneLine = table_.Summary() && group.summary;
        const bool begun = table_.Groups(level)[table_.GroupOf(level, row)].first < row ||
                           (item.kind == Kind::GroupFooter && item.level >= level);
        if (!group.header.Empty() && !inOneLine && begun) levels.push_back(level);
    }
    return levels;
}

double Layout::LineItemHeight() const { return LineHeight(table_.FontSize()) + RowPadding; }

double Layout::CellsHeight(const std::function<std::string(const Slot&)>& textOf) const {
    int lines = 1;
    for (const Slot& slot : table_.Slots()) {
        if (slot.figures) continue;
        lines = std::max(lines, WrappedLines(textOf(slot), slot.width - 2 * CellPadding, table_.FontSize()));
    }
    return std::min(lines, MostLines) * LineHeight(table_.FontSize()) + RowPadding;
}

double Layout::RowHeight(std::uint32_t row) const {
    return CellsHeight([&](const Slot& slot) { return table_.CellText(slot, row); });
}

std::string Layout::SummaryText(const Slot& slot, const Item& item) const {
    if (table_.ShowsSum(slot, item.level)) return table_.GroupSum(slot, item.level, item.index);
    return table_.CellText(slot, table_.Groups(item.level)[item.index].first);
}

double Layout::SummaryHeight(const Item& item) const {
    return CellsHeight([&](const Slot& slot) { return SummaryText(slot, item); });
}

double Layout::HeadingsHeight() const {
    if (!table_.Layout().headings) return 0;
    int lines = 1;
    for (const Slot& slot : table_.Slots())
        lines = std::max(
            lines, WrappedLines(slot.column->heading, slot.width - 2 * CellPadding, table_.FontSize(), true));
    return lines * LineHeight(table_.FontSize()) + 2 * RowPadding;
}

Page Layout::Build(int number) const {
    Page page;
    page.number = number;
    page.width = PageWidth();
    page.height = PageHeight();
    Append(page, number == 1 ? firstHead_ : nextHead_);
    double y = Top(number == 1 ? 1 : 2);
    DrawHeadings(y - headingsHeight_, page);
    const std::size_t index = static_cast<std::size_t>(number) - 1;
    const std::size_t end = index + 1 < starts_.size() ? starts_[index + 1] : items_.size();
    if (number > 1) {
        const Item& first = items_[starts_[index]];
        for (const std::size_t level : Continued(starts_[index])) {
            DrawGroupHeader(level, table_.GroupOf(level, FirstRow(first)), true, y, page);
            y += LineItemHeight();
        }
    }
    for (std::size_t item = starts_[index]; item < end; ++item) {
        Draw(items_[item], y, page);
        y += items_[item].height;
    }
    DrawPageFoot(page);
    return page;
}

void Layout::Draw(const Item& item, double y, Page& page) const {
    const double width = PageWidth() - 2 * Margin;
    const Definition& definition = table_.Layout();
    switch (item.kind) {
    case Kind::Opening:
    case Kind::GroupOpening:
        DrawSums(item, definition.running->openingCaption, y, page);
        HorizontalRule(page, Margin, y + item.height, width);
        break;
    case Kind::GroupHeader:
        DrawGroupHeader(item.level, item.index, false, y + GroupGap, page);
        break;
    case Kind::Row:
        DrawCells([&](const Slot& slot) { return table_.CellText(slot, item.index); }, y, item.height, page);
        break;
    case Kind::SummaryRow:
        DrawCells([&](const Slot& slot) { return SummaryText(slot, item); }, y, item.height, page);
        break;
    case Kind::GroupFooter:
        HorizontalRule(page, Margin, y, width, Muted, 0.2);
        DrawSums(item,
                 table_.Fill(definition.groups[item.level].footer, table_.Groups(item.level)[item.index]), y,
                 page);
        break;
    case Kind::Total:
        page.shades.push_back({{Margin, y, width, item.height}, HeadingTint});
        HorizontalRule(page, Margin, y, width, Accent, 0.4);
        DrawSums(item, definition.running ? definition.running->closingCaption : definition.totalCaption, y,
                 page);
        break;
    case Kind::Foot:
        Append(page, foot_, y);
        break;
    case Kind::NoRows:
        Line(page, Margin, y + LineItemHeight() / 2, width, "No data for this selection",
             {table_.FontSize(), false, Muted, Align::Center});
        break;
    }
}

void Layout::DrawCells(const std::function<std::string(const Slot&)>& textOf, double y, double height,
                       Page& page) const {
    const double size = table_.FontSize();
    for (const Slot& slot : table_.Slots()) {
        const double x = Margin + slot.x + CellPadding, width = slot.width - 2 * CellPadding;
        const Style style{size, false, Black, slot.align};
        const std::string text = textOf(slot);
        if (slot.figures) {
            Line(page, x, y + RowPadding / 2, width, text, style);
            continue;
        }
        std::vector<std::string> lines = Wrap(text, width, size);
        if (lines.size() > static_cast<std::size_t>(MostLines)) {
            lines.resize(MostLines);
            lines.back() += " ...";
        }
        double lineY = y + RowPadding / 2;
        for (const std::string& line : lines) lineY += Line(page, x, lineY, width, line, style);
    }
    HorizontalRule(page, Margin, y + height, PageWidth() - 2 * Margin, Hairline, 0.1);
}

void Layout::DrawGroupHeader(std::size_t level, std::size_t group, bool continued, double y,
                             Page& page) const {
    const double width = PageWidth() - 2 * Margin, indent = 3.0 * static_cast<double>(level);
    std::string text = table_.Fill(table_.Layout().groups[level].header, table_.Groups(level)[group]);
    if (continued) text += " (continued)";
    page.shades.push_back({{Margin, y, width, LineItemHeight()}, GroupTint});
    Line(page, Margin + CellPadding + indent, y + RowPadding / 2, width - 2 * CellPadding - indent, text,
         {table_.FontSize(), true, Accent});
}

double Layout::BalanceOf(const Item& item) const {
    if (item.kind == Kind::GroupOpening) return table_.OpeningOf(table_.Groups(item.level)[item.index]);
    if (item.kind == Kind::GroupFooter) return table_.ClosingOf(table_.Groups(item.level)[item.index]);
    return item.kind == Kind::Opening ? table_.Opening() : table_.Closing();
}

// A caption on the left, sums and balance under their columns.
void Layout::DrawSums(const Item& item, const std::string& caption, double y, Page& page) const {
    const double size = table_.FontSize(), top = y + (item.height - LineHeight(size)) / 2;
    double captionWidth = PageWidth() - 2 * Margin;
    for (const Slot& slot : table_.Slots()) {
        std::string text;
        if (slot.column->running && (item.kind != Kind::GroupFooter || table_.BalancesGroups()))
            text = table_.FigureText(slot, BalanceOf(item));
        else if (item.kind == Kind::GroupFooter && table_.ShowsSum(slot, item.level))
            text = table_.GroupSum(slot, item.level, item.index);
        else if (item.kind == Kind::Total && table_.ShowsGrandSum(slot))
            text = table_.GrandSum(slot);
        if (text.empty()) continue;
        captionWidth = std::min(captionWidth, slot.x);
        Line(page, Margin + slot.x + CellPadding, top, slot.width - 2 * CellPadding, text,
             {size, true, Black, slot.align});
    }
    if (captionWidth > 4 * CellPadding)
        Line(page, Margin + CellPadding, top, captionWidth - 2 * CellPadding, caption, {size, true, Black});
}

void Layout::DrawHeadings(double y, Page& page) const {
    if (headingsHeight_ == 0) return;
    const double size = table_.FontSize(), width = PageWidth() - 2 * Margin;
    page.shades.push_back({{Margin, y, width, headingsHeight_}, HeadingTint});
    HorizontalRule(page, Margin, y + headingsHeight_, width, Accent, 0.3);
    for (const Slot& slot : table_.Slots()) {
        const double inner = slot.width - 2 * CellPadding;
        const std::vector<std::string> lines = Wrap(slot.column->heading, inner, size, true);
        double lineY = y + (headingsHeight_ - static_cast<double>(lines.size()) * LineHeight(size)) / 2;
        for (const std::string& line : lines)
            lineY += Line(page, Margin + slot.x + CellPadding, lineY, inner, line,
                          {size, true, Accent, slot.align});
    }
}

void Layout::DrawPageFoot(Page& page) const {
    const double y = PageHeight() - Margin - LineHeight(8), width = PageWidth() - 2 * Margin;
    const Facts& facts = table_.About();
    HorizontalRule(page, Margin, y - 1.5, width);
    if (!table_.Layout().document)
        Line(page, Margin, y, width / 2,
             "Printed " + ShortDate(facts.now, facts.regional) + " " +
                 FormatDate(facts.now, "hh:mm:ss").substr(0, 5),
             {8, false, Muted});
    Line(page, Margin + width / 2, y, width / 2,
         "Page " + std::to_string(page.number) + " of " + std::to_string(PageCount()),
         {8, false, Muted, Align::Right});
}

} // namespace varnik::reports
