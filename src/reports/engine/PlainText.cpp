// Pages as fixed-width text, for the console and for comparing what a report says.

#include "reports/engine/Layout.h"
#include "reports/engine/Report.h"

#include "common/Text.h"

#include <algorithm>
#include <cmath>

namespace varnik::reports {

namespace {

constexpr double ColumnWidth = 1.5; // mm of a character
constexpr double SameLine = 1.5;    // mm between the middles of texts that still share a line
constexpr double EmptyLine = 9;     // mm between two lines that leave one free

double Middle(const TextRun& run) { return run.area.y + run.area.height / 2; }

// Where the text begins, in characters from the left edge.
int Place(const TextRun& run) {
    const double start = run.area.x / ColumnWidth, end = (run.area.x + run.area.width) / ColumnWidth;
    const int length = Len(run.text);
    switch (run.align) {
    case Align::Right:
        return static_cast<int>(std::lround(end)) - length;
    case Align::Center:
        return static_cast<int>(std::lround((start + end - length) / 2));
    case Align::Left:
        break;
    }
    return static_cast<int>(std::lround(start));
}

std::string PageText(const Page& page) {
    std::vector<const TextRun*> runs;
    for (const TextRun& run : page.runs) runs.push_back(&run);
    std::stable_sort(runs.begin(), runs.end(),
                     [](const TextRun* a, const TextRun* b) { return Middle(*a) < Middle(*b); });
    std::string text;
    for (std::size_t at = 0; at < runs.size();) {
        std::size_t end = at + 1;
        while (end < runs.size() && Middle(*runs[end]) - Middle(*runs[at]) < SameLine) ++end;
        if (at > 0 && Middle(*runs[at]) - Middle(*runs[at - 1]) > EmptyLine) text += '\n';
        std::stable_sort(runs.begin() + static_cast<std::ptrdiff_t>(at),
                         runs.begin() + static_cast<std::ptrdiff_t>(end),
                         [](const TextRun* a, const TextRun* b) { return a->area.x < b->area.x; });
        std::string line;
        int used = 0;
        for (; at < end; ++at) {
            // A text for which there is no room is moved on, not cut.
            const int place = std::max(Place(*runs[at]), used == 0 ? 0 : used + 1);
            line += Repeat(place - used, ' ') + runs[at]->text;
            used = place + Len(runs[at]->text);
        }
        text += line + '\n';
    }
    return text;
}

} // namespace

std::string Report::Text(int page) const { return PageText(BuildPage(page)); }

std::string Report::Text() const {
    std::string text;
    for (int page = 1; page <= PageCount(); ++page) {
        if (page > 1) text += '\f';
        text += Text(page);
    }
    return text;
}

} // namespace varnik::reports
