#include "reports/engine/Draw.h"

#include "common/Text.h"

#include <algorithm>

namespace varnik::reports::look {

double Line(Page& page, double x, double y, double width, const std::string& text, const Style& style) {
    const double height = LineHeight(style.size);
    if (text.empty()) return height;
    const double size = FittingSize(text, width, style.size, style.bold);
    page.runs.push_back({{x, y, width, height}, text, style.align, size, style.bold, style.ink});
    return height;
}

double Paragraph(Page& page, double x, double y, double width, const std::string& text, const Style& style) {
    double height = 0;
    for (const std::string& line : Wrap(text, width, style.size, style.bold))
        height += Line(page, x, y + height, width, line, style);
    return height;
}

void HorizontalRule(Page& page, double x, double y, double width, Ink ink, double weight) {
    page.rules.push_back({x, y, x + width, y, weight, ink});
}

void Append(Page& page, const Page& from, double lower) {
    for (Shade shade : from.shades) {
        shade.area.y += lower;
        page.shades.push_back(shade);
    }
    for (Rule rule : from.rules) {
        rule.y1 += lower;
        rule.y2 += lower;
        page.rules.push_back(rule);
    }
    for (TextRun run : from.runs) {
        run.area.y += lower;
        page.runs.push_back(std::move(run));
    }
}

namespace {

// The company's four lines, the first large.
double Company(const Table& table, double width, Page& page) {
    const auto& company = table.About().company;
    double y = Margin;
    if (!company[0].empty()) y += Line(page, Margin, y, width, company[0], {14, true, Accent}) + 0.6;
    for (std::size_t i = 1; i < company.size(); ++i)
        if (!Trim(company[i]).empty())
            y += Paragraph(page, Margin, y, width, company[i], {8.5, false, Muted});
    return y - Margin;
}

} // namespace

double FirstHead(const Table& table, double width, Page& page) {
    const auto& document = table.Layout().document;
    // The title stands beside the company block, so both get a share of the width.
    const double share = width * 0.55, titleX = Margin + share + 4, titleWidth = width - share - 4;
    const double left = Company(table, share, page);
    double right = 0;
    if (document) {
        right += Line(page, titleX, Margin, titleWidth, document->heading, {20, true, Accent, Align::Right});
    } else {
        // On one line where a slightly smaller type does it.
        const double size = FittingSize(table.Title(), titleWidth, 14, true);
        right += Paragraph(page, titleX, Margin, titleWidth, table.Title(),
                           {size < 11 ? 14 : size, true, Black, Align::Right});
        if (const std::string subtitle = table.Subtitle(); !subtitle.empty())
            right += Paragraph(page, titleX, Margin + right + 0.6, titleWidth, subtitle,
                               {9, false, Muted, Align::Right}) +
                     0.6;
    }
    double height = std::max(left, right) + 2;
    HorizontalRule(page, Margin, Margin + height, width, Accent, 0.6);
    height += 3.5;
    if (document) {
        Page head;
        const double more = DocumentHead(table, width, head);
        Append(page, head, Margin + height);
        height += more;
    }
    return height;
}

double NextHead(const Table& table, double width, Page& page) {
    const auto& document = table.Layout().document;
    std::string title = document ? document->heading : table.Title();
    if (document && !document->fields.empty())
        title += "  " + table.Fill(document->fields.front().text, table.All());
    // Whose book it is stands on every page.
    const std::string subtitle = document ? "" : table.Subtitle();
    constexpr double NameShare = 0.3; // of the line
    const double name = width * NameShare, rest = width - name;
    const double titleWidth = std::min(rest, TextWidth(title, 9, true) + CellPadding);
    Line(page, Margin, Margin, name, table.About().company[0], {9, true, Accent});
    if (!subtitle.empty())
        Line(page, Margin + name, Margin, rest - titleWidth - CellPadding, subtitle,
             {9, false, Muted, Align::Right});
    const double height =
        Line(page, Margin + width - titleWidth, Margin, titleWidth, title, {9, true, Black, Align::Right}) +
        1.2;
    HorizontalRule(page, Margin, Margin + height, width, Accent, 0.4);
    return height + 2.5;
}

double DocumentHead(const Table& table, double width, Page& page) {
    const Document& document = *table.Layout().document;
    const double fieldsWidth = std::min(82.0, width * 0.45), labelWidth = 32;
    const double fieldsX = Margin + width - fieldsWidth, toWidth = width - fieldsWidth - 8;
    double left = 0, right = 0;
    if (!document.toCaption.empty())
        left += Line(page, Margin, 0, toWidth, document.toCaption, {8, true, Muted}) + 0.4;
    bool first = true;
    for (const Template& line : document.to) {
        const std::string text = table.Fill(line, table.All());
        if (text.empty()) continue;
        left += Paragraph(page, Margin, left, toWidth, text, {first ? 11.0 : 9.5, first});
        first = false;
    }
    for (const Labelled& field : document.fields) {
        const std::string text = table.Fill(field.text, table.All());
        if (text.empty()) continue;
        Line(page, fieldsX, right, labelWidth - 2, field.label, {9, false, Muted});
        right += Paragraph(page, fieldsX + labelWidth, right, fieldsWidth - labelWidth, text,
                           {9.5, right == 0, Black}) +
                 0.5;
    }
    return std::max(left, right) + 5;
}

double DocumentFoot(const Table& table, double width, Page& page) {
    const Document& document = *table.Layout().document;
    const double totalsWidth = std::min(84.0, width * 0.46), totalsX = Margin + width - totalsWidth;
    const double leftWidth = width - totalsWidth - 8;

    // Figures under each other line up: all with decimals when one has some.
    const auto fill = [&](const Labelled& total, bool decimals) {
        return table.Fill(total.text, table.All(), decimals);
    };
    bool decimals = false;
    for (const Labelled& total : document.totals)
        decimals = decimals || fill(total, false).find(table.About().regional.decimal) != std::string::npos;
    double right = 2.5;
    for (const Labelled& total : document.totals) {
        const std::string text = fill(total, decimals);
        if (text.empty()) continue;
        const bool large = &total == &document.totals.back();
        const double size = large ? 13 : 9.5, padding = large ? 1.6 : 0.4;
        const double height = LineHeight(size) + 2 * padding;
        if (large) page.shades.push_back({{totalsX, right, totalsWidth, height}, HeadingTint});
        Page line;
        Line(line, totalsX + 2, padding, totalsWidth * 0.4 - 2, total.label,
             {large ? 11.0 : 9.5, large, large ? Accent : Muted});
        Line(line, totalsX + totalsWidth * 0.4, padding, totalsWidth * 0.6 - CellPadding, text,
             {size, large, large ? Accent : Black, Align::Right});
        if (large && line.runs.size() == 2) line.runs[0].area.height = line.runs[1].area.height;
        Append(page, line, right);
        right += height;
    }

    double left = 2.5;
    if (const std::string words = table.Fill(document.words, table.All()); !words.empty()) {
        left += Line(page, Margin, left, leftWidth, document.wordsCaption, {8, true, Muted}) + 0.4;
        left += Paragraph(page, Margin, left, leftWidth, words, {9.5}) + 2;
    }
    for (const Template& note : document.notes)
        if (const std::string text = table.FillIfGiven(note, table.All()); !text.empty())
            left += Paragraph(page, Margin, left, leftWidth, text, {8.5, false, Muted});

    double y = std::max(left, right) + 8;
    if (document.signatures.empty()) return y - 6;
    const double share = width / static_cast<double>(document.signatures.size());
    double x = Margin;
    for (const std::string& signature : document.signatures) {
        Line(page, x, y, share, signature, {9, false, Black, Align::Center});
        HorizontalRule(page, x + share * 0.15, y + 24, share * 0.7, Muted, 0.25);
        x += share;
    }
    return y + 26;
}

} // namespace varnik::reports::look
