#include "reports/engine/Report.h"

#include "common/Text.h"
#include "reports/engine/Layout.h"

#include <algorithm>
#include <cmath>

namespace varnik::reports {

namespace {

// Capitals of the plain letters; others are compared as they are.
std::string Folded(std::string text) {
    for (char& letter : text)
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

// Whether the text begins in this run; it may go on in the lines that follow in the same cell.
bool BeginsIn(const std::vector<TextRun>& runs, std::size_t at, const std::string& wanted) {
    std::string text = Folded(runs[at].text);
    const std::size_t own = text.size();
    constexpr double Touching = 0.01; // mm
    for (std::size_t next = at + 1; next < runs.size() && text.size() < own + wanted.size(); ++next) {
        const Area &above = runs[next - 1].area, &below = runs[next].area;
        if (below.x != above.x || std::abs(below.y - above.y - above.height) > Touching) break;
        text += ' ' + Folded(runs[next].text);
    }
    return text.find(wanted) < own;
}

} // namespace

Report::Report(Definition definition, Rows rows, Facts facts)
    : layout_(std::make_unique<const Layout>(std::move(definition), std::move(rows), std::move(facts))) {}

Report::~Report() = default;

const Facts& Report::About() const { return layout_->Content().About(); }

std::string Report::WindowTitle() const {
    const std::string& title = About().request.WindowTitle;
    return Trim(title).empty() ? Title() : title;
}

std::string Report::Title() const {
    const auto& document = layout_->Content().Layout().document;
    const std::string title = layout_->Content().Title();
    return title.empty() && document ? document->heading : title;
}

long Report::RowCount() const { return layout_->Content().RowCount(); }

int Report::PageCount() const { return layout_->PageCount(); }

double Report::PageWidth() const { return layout_->PageWidth(); }

double Report::PageHeight() const { return layout_->PageHeight(); }

Page Report::BuildPage(int number) const { return layout_->Build(std::clamp(number, 1, PageCount())); }

std::optional<Hit> Report::Find(const std::string& text, std::optional<Hit> from, bool forward,
                                const Progress& progress) const {
    const std::string wanted = Folded(Trim(text));
    if (wanted.empty()) return {};
    const int pages = PageCount(), step = forward ? 1 : -1;
    const Hit start = from.value_or(forward ? Hit{1, -1} : Hit{pages, 1 << 30});
    int number = std::clamp(start.page, 1, pages);
    // The page of the start is looked through twice: behind the start first, before it last.
    for (int turn = 0; turn <= pages; ++turn, number += step) {
        if (number > pages) number = 1;
        if (number < 1) number = pages;
        if (progress && !progress(turn, pages)) return {};
        const Page page = BuildPage(number);
        const int runs = static_cast<int>(page.runs.size());
        for (int run = forward ? 0 : runs - 1; run >= 0 && run < runs; run += step) {
            const bool behind = forward ? run > start.run : run < start.run;
            if ((turn == 0 && !behind) || (turn == pages && behind)) continue;
            if (BeginsIn(page.runs, static_cast<std::size_t>(run), wanted)) return Hit{number, run};
        }
    }
    return {};
}

} // namespace varnik::reports
