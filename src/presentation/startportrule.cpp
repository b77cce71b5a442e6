// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/startportrule.h"

#include "query/lenientnumber.h"
#include "query/queryspeed.h"

namespace StartPortRule {

Range apply(const QString& typed, int speed)
{
    Range range{typed, {}};
    if (!range.start.isEmpty()) {
        const QChar last = range.start.back();
        if (last < QLatin1Char('0') || last > QLatin1Char('9'))
            range.start.chop(1);
    }
    if (range.start.isEmpty())
        return range;
    if (value(range.start) > HighestStart)
        range.start = QString::number(HighestStart);
    const QuerySpeed::PortPlan plan{QuerySpeed::lastSocketIndex(speed, QuerySpeed::DefaultLastSocketIndex),
                                    value(range.start)};
    range.end = QString::number(plan.masterPort());
    return range;
}

int value(const QString& start)
{
    return LenientNumber::toInt(start);
}

bool isAcceptable(const QString& start)
{
    return !start.isEmpty() && value(start) >= LowestStart;
}

} // namespace StartPortRule
