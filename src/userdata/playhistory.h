// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QList>
#include <QString>

// The servers the user joined, newest first, in history.dat: one line per
// server, "address:port", the time of the join (seconds since 1970, UTC)
// and the server's name as the list showed it, separated by tabs.
namespace PlayHistory {

inline constexpr auto FileName = "history.dat";
inline constexpr int MaxEntries = 200;
inline constexpr qint64 MaxFileBytes = 256 * 1024;

struct Entry {
    QString address;
    int port = 0;
    QString name;
    qint64 joinedAt = 0; // seconds since 1970, UTC

    QString endpointText() const { return ::endpointText(address, port); }
    friend bool operator==(const Entry&, const Entry&) = default;
};
using List = QList<Entry>;

QString filePath(const QString& dataFolder);

// Damaged lines are skipped; a server listed twice keeps its first
// (newest) line; at most MaxEntries are read.
List parse(const QByteArray& bytes);
QByteArray toBytes(const List& entries);
List readFile(const QString& path);
bool writeFile(const QString& path, const List& entries);

// The history after a join: the server goes to the top with its new name
// and time (a server joined again is listed once), the oldest beyond
// MaxEntries go.
List record(List entries, const Entry& joined);

AddressTable toAddressTable(const List& entries);

} // namespace PlayHistory
