#pragma once
// The drawn icons of the preview's tool bar.

#include <QColor>
#include <QIcon>

namespace varnik::ui {

enum class PreviewIcon { Print, Pdf, Sheet, Csv, First, Previous, Next, Last, Closer, Farther, Find, Close };

// A line icon in a colour, paler when disabled, crisp on every screen.
QIcon DrawPreviewIcon(PreviewIcon icon, const QColor& colour);

} // namespace varnik::ui
