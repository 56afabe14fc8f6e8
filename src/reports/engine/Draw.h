#pragma once
// The look of all reports in one place: margins, inks, sizes, and the few strokes that heads, rows and
// documents are drawn with.

#include "reports/engine/Page.h"
#include "reports/engine/Table.h"
#include "reports/engine/TextMetrics.h"

namespace varnik::reports::look {

inline constexpr double Margin = 12;       // mm, on all four sides
inline constexpr double FootRoom = 9;      // mm above the lower margin for the page number
inline constexpr double CellPadding = 1.3; // mm on each side of a cell
inline constexpr double FigureGap = 1.5;   // mm, so that figures side by side do not run together
inline constexpr double GroupGap = 1.8;    // mm above a group's heading
inline constexpr Ink Black = 0x1D2329;
inline constexpr Ink Muted = 0x5C6773;
inline constexpr Ink Accent = 0x1F4E79;
inline constexpr Ink Hairline = 0xD5DBE1;
inline constexpr Ink HeadingTint = 0xE8EEF4;
inline constexpr Ink GroupTint = 0xF4F6F9;

struct Style {
    double size = 9;
    bool bold = false;
    Ink ink = Black;
    Align align = Align::Left;
};

// One line at y; the text gets smaller where it has to. The height of the line in mm.
double Line(Page& page, double x, double y, double width, const std::string& text, const Style& style);
// As many lines as the text needs; their height in mm.
double Paragraph(Page& page, double x, double y, double width, const std::string& text, const Style& style);
void HorizontalRule(Page& page, double x, double y, double width, Ink ink = Hairline, double weight = 0.2);
// Everything of `from`, lowered by mm.
void Append(Page& page, const Page& from, double lower = 0);

// Company lines, title and what stands above the column headings; their height in mm.
double FirstHead(const Table& table, double width, Page& page);
double NextHead(const Table& table, double width, Page& page);
// A document's head and foot, from y = 0 down; `width` of the printable area.
double DocumentHead(const Table& table, double width, Page& page);
double DocumentFoot(const Table& table, double width, Page& page);

} // namespace varnik::reports::look
