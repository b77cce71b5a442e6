// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/lenientnumber.h"

#include <limits>

namespace LenientNumber {

int toInt(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() && (text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t')))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == QLatin1Char('-') || text[i] == QLatin1Char('+'))) {
        negative = text[i] == QLatin1Char('-');
        ++i;
    }
    qint64 value = 0;
    constexpr qint64 limit = qint64(std::numeric_limits<int>::max()) + 1;
    for (; i < text.size() && text[i] >= QLatin1Char('0') && text[i] <= QLatin1Char('9'); ++i) {
        value = value * 10 + (text[i].unicode() - '0');
        if (value > limit)
            value = limit;
    }
    if (negative)
        return int(std::max(-value, qint64(std::numeric_limits<int>::min())));
    return int(std::min(value, qint64(std::numeric_limits<int>::max())));
}

} // namespace LenientNumber
