// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Every server that ever answered, remembered in servers.dat so that a
// query still finds them when every master is down. One line per server:
// "address:port", last time seen (seconds since 1970, UTC), consecutive
// misses and the last name, separated by tabs.
namespace KnownServers {

inline constexpr auto FileName = "servers.dat";
// A server silent in this many finished queries in a row is forgotten,
// as is one not seen for this many days.
inline constexpr int MaxMisses = 5;
inline constexpr int MaxAgeDays = 60;
// The newest this many are kept; the file is read no further than this.
inline constexpr int MaxServers = 5000;
inline constexpr qint64 MaxFileBytes = 4 * 1024 * 1024;

struct Server {
    QString address;
    int port = 0;
    QString name;
    qint64 lastSeen = 0; // seconds since 1970, UTC
    int misses = 0;

    friend bool operator==(const Server&, const Server&) = default;
};
using List = QList<Server>;

QString filePath(const QString& dataFolder);

// Lines that do not read as a server are skipped: a damaged file costs
// its damaged lines, never the rest.
List parse(const QByteArray& bytes);
QByteArray toBytes(const List& servers);
// Missing, unreadable or garbage: an empty list.
List readFile(const QString& path);
// Whole or not at all.
bool writeFile(const QString& path, const List& servers);
bool forget(const QString& path);

AddressTable toAddressTable(const List& servers);

// The list after a query: every answer is (again) known with its name and
// now as its last time; when the query ran to its end, each known server
// it asked that stayed silent has one more miss. Then the forgotten go.
List update(List known, const AddressTable& asked, const QList<AddressEntry>& answered, qint64 now, bool finished);

} // namespace KnownServers
