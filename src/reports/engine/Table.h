#pragma once
// What a definition makes of the rows before anything has a place on a page: the order of the rows, the
// columns in effect with their widths, the groups and their sums, the running balance, and the text of
// every cell.

#include "reports/engine/Definition.h"
#include "reports/engine/Report.h"
#include "reports/engine/Rows.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varnik::reports {

// Printed rows from first up to, not including, last.
struct Span {
    std::uint32_t first = 0, last = 0;
};

// A column in effect.
struct Slot {
    const Column* column = nullptr;
    Expression formula{};
    int field = -1;   // in the rows; -1 for none
    int ageDate = -1; // the same, of an age or of days
    bool figures = false;
    Align align = Align::Left;
    std::string mask;
    int sum = -1;            // which of the sums; -1 for none
    double x = 0, width = 0; // mm, from the left edge of the table
};

class Table {
public:
    // `width` is what the page offers, in mm.
    Table(Definition definition, Rows rows, Facts facts, double width);
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    const Definition& Layout() const { return definition_; }
    const Facts& About() const { return facts_; }
    const std::vector<Slot>& Slots() const { return slots_; }
    std::uint32_t RowCount() const { return static_cast<std::uint32_t>(order_.size()); }
    bool Summary() const { return summary_; }     // groups marked so stand as one line each
    double FontSize() const { return fontSize_; } // points, of rows
    bool HasTotals() const;
    // Whether the groups of a level show the sum of a column; whether the end does.
    bool ShowsSum(const Slot& slot, std::size_t level) const;
    bool ShowsGrandSum(const Slot& slot) const { return slot.column->total; }

    // Groups of one level, in order; together they hold every row once.
    const std::vector<Span>& Groups(std::size_t level) const { return groups_[level].spans; }
    // The group of this level that holds the printed row.
    std::size_t GroupOf(std::size_t level, std::uint32_t row) const;

    bool HasOpening() const { return hasOpening_; }
    double Opening() const { return opening_; }
    // As the request says; without one in the request, the balance after the last row.
    double Closing() const { return closing_; }

    // Whether the rows themselves hold the balance, so that each innermost group opens and closes by itself.
    bool BalancesGroups() const { return definition_.running && !definition_.running->balance.empty(); }
    double OpeningOf(Span group) const;
    double ClosingOf(Span group) const { return running_[group.last - 1]; }

    // The value and the text of a cell; a cell whose column is missing is empty.
    Value CellValue(const Slot& slot, std::uint32_t row) const;
    std::string CellText(const Slot& slot, std::uint32_t row) const;
    // Text of the sum of a column over one group, or over all rows.
    std::string GroupSum(const Slot& slot, std::size_t level, std::size_t group) const;
    std::string GrandSum(const Slot& slot) const;
    std::string FigureText(const Slot& slot, double number) const;

    // The rows as a spreadsheet takes them: one line for each row, or for each group in the summary form.
    // Groups with a heading of their own stand as columns in front. A voucher without columns is one line,
    // its fields and totals.
    std::size_t LineCount() const;
    std::vector<std::string> LineHeadings() const;
    std::vector<Value> LineValues(std::size_t line) const;

    // Fills a template from the first row of the span, its sums, and the request. Figures show decimals
    // when they have some; with `decimals` always, so that figures under each other line up.
    std::string Fill(const Template& text, Span span, bool decimals = false) const;
    // The same, but nothing when nothing is known of what it names.
    std::string FillIfGiven(const Template& text, Span span) const;
    Span All() const { return {0, RowCount()}; }
    std::string Title() const;
    std::string Subtitle() const { return Fill(definition_.subtitle, All()); }

private:
    struct Level {
        std::vector<Span> spans;
        std::vector<double> sums; // sums_ for each span
    };
    void ChooseColumns();
    bool AllZero(const Slot& slot) const;
    void OrderRows();
    void FindGroups();
    void Balance();
    void ChooseMasks();
    void ChooseWidths(double width);
    // Whether a group stands as a column in front of the lines; not beside a column of the same heading.
    bool InFront(const Group& group) const;
    bool IsSheet() const; // a voucher without columns
    std::vector<const Labelled*> SheetCells() const;
    Value SheetValue(const Template& text) const;
    double NeededWidth(const Slot& slot, double size) const;
    double Number(const Slot& slot, std::uint32_t row) const;
    std::optional<int> Days(const Slot& slot, std::size_t stored) const; // from its date to today
    bool InAge(const Slot& slot, std::size_t stored) const;
    std::string FillPlace(const Template::Place& place, Span span, bool decimals) const;
    double Sum(const std::string& name, Span span) const;
    std::string NumberText(double number, const std::string& mask) const;

    Definition definition_;
    Rows rows_;
    Facts facts_;
    bool summary_ = false;
    double fontSize_ = 9;
    std::vector<Slot> slots_;
    std::vector<std::uint32_t> order_; // printed row -> stored row
    int sums_ = 0;
    std::vector<Level> groups_;
    std::vector<double> grandSums_;
    std::vector<std::pair<double, double>> extremes_; // smallest and largest figure of each slot, sums too
    bool hasOpening_ = false;
    double opening_ = 0, closing_ = 0;
    std::vector<double> running_; // the balance after each printed row
};

} // namespace varnik::reports
