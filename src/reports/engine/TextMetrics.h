#pragma once
// How wide a text runs, without a toolkit: the advance widths of the sans-serif that pages are set in
// (Liberation Sans and every font made to its measure). Enough to wrap, to size columns and to fit figures.

#include <string>
#include <string_view>
#include <vector>

namespace varnik::reports {

// Width in mm at a size in points.
double TextWidth(std::string_view text, double size, bool bold = false);
// Height of a line in mm at a size in points, leading included.
double LineHeight(double size);
// The lines into which a text falls at a width in mm: at line breaks, at blanks, inside a word that is
// wider than the line. At least one line; blanks at the ends of lines are dropped.
std::vector<std::string> Wrap(std::string_view text, double width, double size, bool bold = false);
// How many lines Wrap would give, without building them where one look shows that it is one.
int WrappedLines(std::string_view text, double width, double size, bool bold = false);
// The size at which the text fits into the width: the size given, or a smaller one.
double FittingSize(std::string_view text, double width, double size, bool bold = false);

} // namespace varnik::reports
