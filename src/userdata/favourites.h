#pragma once

#include "records.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

// favourites.dat: one line per server, "address[:port]" SOH password SOH
// name, lines ended by CR LF, one byte per character.
namespace Favourites {

inline constexpr int DefaultPort = 27960;
inline const QString FileName = QStringLiteral("favourites.dat");

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
// the reading, since nothing after it can be aligned.
std::optional<QList<Favourite>> parse(const QByteArray& bytes);

// Reads the file; nothing when it is missing, unreadable or too short.
std::optional<QList<Favourite>> readFile(const QString& path);

// The favourites as the scheduler's address table, names and passwords
// included.
AddressTable toAddressTable(const QList<Favourite>& favourites);

} // namespace Favourites
