#pragma once
// A page of a report on any paint device: the screen, the printer, a PDF.

#include "reports/engine/Page.h"

class QPainter;
class QRectF;

namespace varnik::ui {

// Paints the page with its upper left corner at the painter's origin; one unit of the painter is one
// millimetre. A text whose font runs wider than its area is narrowed, never cut.
void PaintPage(QPainter& painter, const reports::Page& page);
// Where the letters of a text stand inside its area, with a little air around them; mm on the page.
QRectF TextPlace(const reports::TextRun& run);

} // namespace varnik::ui
