#pragma once
// Where everything stands. The rows, headings and totals become a list of items of known height; page
// breaks follow by arithmetic, and a page is drawn only when somebody wants to see it.
//
// What belongs together stays together: a group's heading with its first row, the last row with the
// totals under it, a document's last line with its foot.

#include "reports/engine/Page.h"
#include "reports/engine/Table.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace varnik::reports {

class Layout {
public:
    Layout(Definition definition, Rows rows, Facts facts);

    const Table& Content() const { return table_; }
    double PageWidth() const;  // mm
    double PageHeight() const; // mm
    int PageCount() const { return static_cast<int>(starts_.size()); }
    Page Build(int number) const;

private:
    enum class Kind : std::uint8_t {
        Opening,
        GroupOpening,
        GroupHeader,
        Row,
        SummaryRow,
        GroupFooter,
        Total,
        Foot,
        NoRows
    };
    struct Item {
        Kind kind;
        std::uint8_t level;  // of a group
        std::uint32_t index; // printed row, or group of the level
        float height;        // mm
    };

    void List();
    void ListGroups(std::size_t level, Span span);
    void Add(Kind kind, double height, std::size_t level = 0, std::size_t index = 0);
    bool StaysWithNext(std::size_t item) const;
    void Break();
    double Top(int page) const; // mm, under the page's head and column headings
    std::vector<std::size_t> Continued(std::size_t item) const; // levels going on at the head of a page
    std::uint32_t FirstRow(const Item& item) const;

    double CellsHeight(const std::function<std::string(const Slot&)>& textOf) const;
    double RowHeight(std::uint32_t row) const;
    double SummaryHeight(const Item& item) const;
    double LineItemHeight() const;
    void Draw(const Item& item, double y, Page& page) const;
    void DrawCells(const std::function<std::string(const Slot&)>& textOf, double y, double height,
                   Page& page) const;
    void DrawGroupHeader(std::size_t level, std::size_t group, bool continued, double y, Page& page) const;
    double BalanceOf(const Item& item) const; // of an opening, a group's foot or the end
    void DrawSums(const Item& item, const std::string& caption, double y, Page& page) const;
    void DrawHeadings(double y, Page& page) const;
    void DrawPageFoot(Page& page) const;
    double HeadingsHeight() const;
    std::string SummaryText(const Slot& slot, const Item& item) const;

    Table table_;
    Page firstHead_, nextHead_, foot_; // drawn once, copied onto pages
    double firstHeadHeight_ = 0, nextHeadHeight_ = 0, footHeight_ = 0, headingsHeight_ = 0; // mm
    std::vector<Item> items_;
    std::vector<std::size_t> forced_; // items that begin a page, whatever room is left
    std::vector<std::size_t> starts_; // first item of each page
};

} // namespace varnik::reports
