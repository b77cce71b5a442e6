// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/rowtones.h"

#include "presentation/contrast.h"

#include <algorithm>

namespace RowTones {

Tier ofPing(int ms)
{
    if (ms < GoodBelowMs)
        return Tier::Good;
    return ms < FairBelowMs ? Tier::Fair : Tier::Poor;
}

QColor colour(Tier tier, const QColor& background)
{
    // Green, amber and red, in the hue people read them by.
    const int hue = tier == Tier::Good ? 120 : tier == Tier::Fair ? 38 : 0;
    // A deep tone on a list that black stands out on, a light one where
    // white does; then further that way while it does not read well. On a
    // mid grey that ends near black or white: readable before coloured.
    const bool deep = Contrast::outlineFor(background) == QColor(Qt::black);
    // Measured as drawn: eight bits a channel.
    const auto toneAt = [hue](int lightness) { return QColor(QColor::fromHsl(hue, 200, lightness).rgb()); };
    int lightness = deep ? 80 : 170;
    QColor tone = toneAt(lightness);
    while (Contrast::ratio(tone, background) < Readable && lightness > 0 && lightness < 255) {
        lightness = std::clamp(lightness + (deep ? -4 : 4), 0, 255);
        tone = toneAt(lightness);
    }
    return tone;
}

} // namespace RowTones
