// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>

#include <optional>

// The getInfo/infoResponse exchange with one game server.
namespace InfoProtocol {

// 0xFF 0xFF "infoResponse" 0x00, the challenge and the protocol version,
// each a 32-bit little-endian number.
inline constexpr int HeaderLength = 23;
// Every release of the game speaks protocol 2.x: 2.62 (1.0), 2.66 (the
// demo), 2.67 to 2.77 (1.1 to 1.4.1), 2.85 (1.4.2) and 2.86 (its demo).
// Other games of the engine answer getInfo too, with other major numbers.
inline constexpr quint32 GameMajorVersion = 2;
// The player section is read only after a key/value section this long.
inline constexpr int MinimumKeyValueLength = 6;
// The rule that carries the protocol version, first in every server's
// rules, so the rules pane shows it and the filters can test it.
inline constexpr QLatin1String ProtocolKey("protocol");

// 0xFF 0xFF "getInfo" 0x00 and the challenge 4, little-endian: 14 bytes.
QByteArray getInfoRequest();

// 0xFF 0xFF "infoResponse" 0x00: how every reply starts.
QByteArray replyPrefix();

struct Header {
    quint32 challenge = 0;
    quint32 version = 0;
};
// The header of an infoResponse of this game; nothing for any other
// datagram (too short, another command, another game's protocol).
std::optional<Header> readHeader(const QByteArray& datagram);
// "2.85" for 0x00020055: major in the high 16 bits, minor in the low.
QString versionText(quint32 version);

// Reads one infoResponse into a server record: the listed keys, the
// players, the zero-ping count, the protocol version and every key and
// value as tokens. Address, port and ping are the caller's. A datagram that
// is not an infoResponse of this game gives nothing; in one that is,
// malformed input never fails: what cannot be read keeps its default, as
// the list shows it.
std::optional<ServerRecord> parseReply(const QByteArray& datagram);

// The parts of a reply after its header, as the parser cuts them (for
// tests and tools). The datagram must have a header (readHeader()).
struct Sections {
    QByteArray keyValues;
    QByteArray players;
};
Sections splitSections(const QByteArray& datagram);

} // namespace InfoProtocol
