// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/alerts.h"

#include <QSet>

namespace Alerts {

namespace {

QString keyOf(const Sighting& sighting)
{
    return sighting.player + QChar(0) + sighting.address;
}

} // namespace

QList<Sighting> arrivals(const QList<Sighting>& before, const QList<Sighting>& after)
{
    QSet<QString> known;
    for (const Sighting& sighting : before)
        known.insert(keyOf(sighting));
    QList<Sighting> arrived;
    for (const Sighting& sighting : after) {
        const QString key = keyOf(sighting);
        if (known.contains(key))
            continue;
        known.insert(key);
        arrived.append(sighting);
    }
    return arrived;
}

QList<QString> reached(const Counts& before, const Counts& after, int threshold)
{
    QList<QString> servers;
    if (threshold < 1)
        return servers;
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        const auto old = before.constFind(it.key());
        if (old != before.cend() && old->players < threshold && it->players >= threshold)
            servers.append(it.key());
    }
    std::sort(servers.begin(), servers.end());
    return servers;
}

QString shortName(const QString& name)
{
    QString line = name.left(MaxNameLength + 1);
    for (QChar& c : line)
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    line = line.trimmed();
    if (line.size() > MaxNameLength)
        line = line.left(MaxNameLength - 3).trimmed() + QStringLiteral("...");
    return line;
}

Shown firstLines(const QStringList& lines, int maxLines)
{
    const int size = int(lines.size());
    if (size <= maxLines)
        return {lines, 0};
    // The last place goes to "and N more", unless it is the only one.
    const int kept = std::max(maxLines - 1, 1);
    return {lines.mid(0, kept), size - kept};
}

} // namespace Alerts
