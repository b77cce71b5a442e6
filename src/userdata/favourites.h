// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

// favourites.dat: one line per server, "address[:port]" SOH password SOH
// name, lines ended by CR LF, one byte per character.
namespace Favourites {

inline constexpr int DefaultPort = 27960;
// What the reader takes at most: no real list comes near, and a huge file
// must not freeze the window or fill the memory.
inline constexpr int MaxFavourites = 50000;
inline constexpr qint64 MaxFileBytes = 16 * 1024 * 1024;
inline const QString FileName = QStringLiteral("favourites.dat");
// The file in the data folder.
QString filePath(const QString& dataFolder);

struct Favourite {
    QString address;
    int port = 0;
    QString name;
    QString password;
    friend bool operator==(const Favourite&, const Favourite&) = default;
};

// The records of the file's bytes; nothing when the file is shorter than
// four bytes (no favourites). Kept from the file format's history: a
// missing port reads as 27960, except for an empty address on the very
// first line (port 0); the name of a last line without its line end loses
// two characters. Blank lines are skipped; a line without separators ends
// the reading, since nothing after it can be aligned. At most
// MaxFavourites records.
std::optional<QList<Favourite>> parse(const QByteArray& bytes);

// Reads the file (its first MaxFileBytes); nothing when it is missing,
// unreadable or too short. complete, when given, says whether every
// record of the file was read.
std::optional<QList<Favourite>> readFile(const QString& path, bool* complete = nullptr);

// The favourites as the scheduler's address table, names and passwords
// included.
AddressTable toAddressTable(const QList<Favourite>& favourites);

// The address as the editor shows and writes it: "address:port", or the
// address alone when the port is 0.
QString addressText(const Favourite& favourite);

// One line of the file: address SOH password SOH name CR LF. Line breaks
// and SOH inside a field (a server may send them in its name) become
// blanks, so a field never changes the file's structure.
QByteArray line(const QString& address, const QString& password, const QString& name);
// The whole file for these rows (address cell, password, name), as the
// editor's Apply writes it.
QByteArray toFileBytes(const QList<Favourite>& favourites);
// The bytes that go after `existing` to add a line: a file whose last line
// lacks its line end gets one first.
QByteArray appendBytes(const QByteArray& existing, const QByteArray& line);

// Both write the whole file (writeWholeFile), so a crash or a full disk
// never leaves half a file and an append never loses what was there.
bool writeFile(const QString& path, const QList<Favourite>& favourites);
bool appendToFile(const QString& path, const QString& address, const QString& password, const QString& name);

} // namespace Favourites
