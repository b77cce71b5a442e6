// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

// When the automatic refresh tells the user something: a friend who starts
// playing, a watched server that fills up. Both compare what the list
// showed before a refresh with what it shows after it.
namespace Alerts {

// A friend seen on a server.
struct Sighting {
    QString player;  // plain name
    QString address; // the server's "address:port"
    QString server;  // plain server name
    friend bool operator==(const Sighting&, const Sighting&) = default;
};

// The friends on a server where they were not before: newly arrived, or
// moved to another server. A friend seen twice counts once.
QList<Sighting> arrivals(const QList<Sighting>& before, const QList<Sighting>& after);

// Players on a watched server, by "address:port".
struct Count {
    QString server; // plain name
    int players = 0;
};
using Counts = QHash<QString, Count>;

// The watched servers that reached the threshold in this refresh: fewer
// players before, at least that many now. A server not listed before is
// not news (it has no "before"); a threshold below 1 means never.
QList<QString> reached(const Counts& before, const Counts& after, int threshold);

// A player's or server's name as news quotes it: one line (controls become
// blanks) of at most MaxNameLength characters, "..." marking a cut. The
// names come from any server; the news must stay readable.
inline constexpr qsizetype MaxNameLength = 48;
QString shortName(const QString& name);

// What fits a notification or the status line: the first lines, the last
// of them giving way to "and N more" when there are more than maxLines.
struct Shown {
    QStringList lines;
    int more = 0;
};
Shown firstLines(const QStringList& lines, int maxLines);

} // namespace Alerts
