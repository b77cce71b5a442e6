// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>

// Legibility of text on a background, by the WCAG definitions.
namespace Contrast {

// Relative luminance, 0 (black) to 1 (white).
double luminance(const QColor& colour);
// (lighter + 0.05) / (darker + 0.05): 1 for equal colours, 21 for black on white.
double ratio(const QColor& a, const QColor& b);
// Below this, text is hard to read (WCAG's minimum for large text).
inline constexpr double Legible = 3.0;
// Black or white, whichever stands out more against the colour.
QColor outlineFor(const QColor& colour);

} // namespace Contrast
