// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/contrast.h"

#include <algorithm>
#include <cmath>

namespace Contrast {

namespace {

double linear(double channel)
{
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

} // namespace

double luminance(const QColor& colour)
{
    const QColor rgb = colour.toRgb();
    return 0.2126 * linear(rgb.redF()) + 0.7152 * linear(rgb.greenF()) + 0.0722 * linear(rgb.blueF());
}

double ratio(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor outlineFor(const QColor& colour)
{
    return ratio(colour, Qt::black) >= ratio(colour, Qt::white) ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace Contrast
