#pragma once

#include "records.h"

#include <QByteArray>

// The getInfo/infoResponse exchange with one game server.
namespace InfoProtocol {

inline constexpr int HeaderLength = 22;
// The player section is read only after a key/value section this long.
inline constexpr int MinimumKeyValueLength = 6;

// 0xFF 0xFF "getInfo" 0x00 and the challenge 4, little-endian: 14 bytes.
QByteArray getInfoRequest();

// 0xFF 0xFF "infoResponse" 0x00, the challenge, and the first three bytes
// of protocol version 0x0002003E. A reply with another challenge or
// version keeps these bytes and its first key reads wrongly: we know one
// protocol version only.
QByteArray replyHeader();

// Reads one infoResponse into a server record: the listed keys, the
// players, the zero-ping count and every key and value as tokens. Address,
// port and ping are the caller's. Malformed input never fails: what cannot
// be read keeps its default, as the list shows it.
ServerRecord parseReply(const QByteArray& datagram);

// The parts of a reply, as the parser cuts them (for tests and tools).
struct Sections {
    QByteArray keyValues;
    QByteArray players;
};
Sections splitSections(const QByteArray& datagram);

} // namespace InfoProtocol
