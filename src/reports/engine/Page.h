#pragma once
// A page as the report engine hands it out: texts, lines and tinted areas at fixed places, in millimetres
// from the upper left corner of the sheet. Whoever paints it (preview, printer, PDF, plain text) decides
// nothing about where a thing stands.

#include <cstdint>
#include <string>
#include <vector>

namespace varnik::reports {

enum class Align { Left, Right, Center };
using Ink = std::uint32_t; // 0xRRGGBB

// mm
struct Area {
    double x = 0, y = 0, width = 0, height = 0;
};

// One line of text in its area, centred in the area's height. The engine has chosen a size at which the text
// fits; a painter whose font runs wider narrows it, it never cuts.
struct TextRun {
    Area area;
    std::string text; // UTF-8, no line breaks
    Align align = Align::Left;
    double size = 9; // points
    bool bold = false;
    Ink ink = 0x202428;
};

struct Rule {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // mm
    double weight = 0.2;                   // mm
    Ink ink = 0x202428;
};

struct Shade {
    Area area;
    Ink ink = 0xFFFFFF;
};

struct Page {
    int number = 1;                   // counted from 1
    double width = 210, height = 297; // mm
    std::vector<Shade> shades;        // painted first
    std::vector<Rule> rules;
    std::vector<TextRun> runs; // in reading order
};

} // namespace varnik::reports
