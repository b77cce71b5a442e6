// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QList>

#include <optional>

// The master server's getServers/servers exchange, byte for byte.
namespace MasterProtocol {

// A reply datagram this long or longer means more datagrams follow; a
// shorter one is the last. There is no end marker and no count.
inline constexpr int MoreFollowLength = 1396;
// The record counter of the list is a signed 16-bit number and the record
// position 6 x i - 5 overflows past this many records.
inline constexpr int MaxRecords = 5461;

// 0xFF 0xFF "getServers" and nine zero bytes: no protocol, game or filter.
QByteArray getServersRequest();
// 0xFF 0xFF "servers" 0x00, at the start of every reply datagram.
QByteArray replyHeader();

bool isLastDatagram(const QByteArray& datagram);

// While the reply is gathered: true once it surely holds more records than
// the counter can address, so gathering can stop. recordBytes counts the
// bytes of each datagram after its own headers were removed; a header cut
// in two by a datagram boundary is removed only from the whole, so each
// datagram may count up to two header lengths more than it will hold. A
// reply past MaxReplyBytes is refused whatever it holds (a real list of
// 5,461 records is 33 kB).
inline constexpr qsizetype MaxReplyBytes = 1 << 20;
bool surelyTooLong(qsizetype recordBytes, int datagrams, qsizetype gatheredBytes);

// Every occurrence of the pattern removed, scanning from the start.
QByteArray removeAll(QByteArray bytes, const QByteArray& pattern);

// The gathered datagrams with every header removed, cut into six-byte
// records; a short final piece is kept as it is. Nothing when the list
// holds more records than the counter can address.
std::optional<QList<QByteArray>> cutRecords(const QByteArray& gathered);

// Four address bytes and a little-endian port per record. Records shorter
// than five bytes are skipped. The port is a signed 16-bit number: a port
// of 32768 or more (or a missing sixth byte) does not fit and the record
// keeps the port of the record before it (for the first, the port given:
// 0 at the start of a list). Returns the port the next record would keep.
int appendAddresses(const QList<QByteArray>& records, AddressTable& table, int port = 0);

} // namespace MasterProtocol
