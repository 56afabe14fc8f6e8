#include "reports/engine/TextMetrics.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace varnik::reports {

namespace {

constexpr double PointsPerMm = 72.0 / 25.4;

// Advance widths of the characters 32 to 126, in thousandths of the size.
constexpr std::array<std::uint16_t, 95> Regular = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr std::array<std::uint16_t, 95> Bold = {
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
    611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
    667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
    278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584};

// Width of the character that begins at `at`, in thousandths; `at` moves behind it.
int NextWidth(std::string_view text, std::size_t& at, bool bold) {
    const auto byte = static_cast<unsigned char>(text[at++]);
    if (byte >= 32 && byte < 127) return (bold ? Bold : Regular)[byte - 32u];
    if (byte < 0x80) return 0;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
    return byte < 0xE0 ? 667 : 1000; // accented letters; beyond them a full square at most
}

std::string_view TrimEnd(std::string_view text) {
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

} // namespace

double TextWidth(std::string_view text, double size, bool bold) {
    int sum = 0;
    for (std::size_t at = 0; at < text.size();) sum += NextWidth(text, at, bold);
    return sum * size / (1000 * PointsPerMm);
}

double LineHeight(double size) { return size * 1.28 / PointsPerMm; }

double FittingSize(std::string_view text, double width, double size, bool bold) {
    const double needed = TextWidth(text, size, bold);
    return needed <= width || needed <= 0 ? size : size * width / needed;
}

std::vector<std::string> Wrap(std::string_view text, double width, double size, bool bold) {
    // Thousandths of the size that fit on a line; at least one wide letter, or nothing would ever end.
    const int room = std::max(1000, static_cast<int>(width * 1000 * PointsPerMm / size + 0.5));
    std::vector<std::string> lines;
    std::size_t start = 0, at = 0;
    std::size_t blank = std::string_view::npos; // last place to break at on this line
    int used = 0;
    const auto end = [&](std::size_t upTo, std::size_t next) {
        lines.emplace_back(TrimEnd(text.substr(start, upTo - start)));
        start = at = next;
        blank = std::string_view::npos;
        used = 0;
    };
    while (at < text.size()) {
        if (text[at] == '\r' || text[at] == '\n') {
            const bool pair = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
            end(at, at + (pair ? 2 : 1));
            continue;
        }
        const std::size_t here = at;
        if (text[here] == ' ') blank = here;
        used += NextWidth(text, at, bold);
        if (used <= room || text[here] == ' ') continue;
        if (blank == std::string_view::npos) {
            end(here, here);
        } else {
            std::size_t next = blank;
            while (next < text.size() && text[next] == ' ') ++next;
            end(blank, next);
        }
    }
    if (start < text.size() || lines.empty()) lines.emplace_back(TrimEnd(text.substr(start)));
    return lines;
}

int WrappedLines(std::string_view text, double width, double size, bool bold) {
    // No character is wider than the size, so a short text needs no second look.
    if (static_cast<double>(text.size()) * size / PointsPerMm <= width &&
        text.find_first_of("\r\n") == std::string_view::npos)
        return 1;
    if (text.find_first_of("\r\n") == std::string_view::npos && TextWidth(text, size, bold) <= width)
        return 1;
    return static_cast<int>(Wrap(text, width, size, bold).size());
}

} // namespace varnik::reports
