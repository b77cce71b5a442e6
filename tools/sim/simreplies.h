// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

// What a game server and a master server put on the wire, byte for byte as
// the real ones send it (built here on its own, not from the browser's
// parsers, so the two check each other).
namespace SimReplies {

struct Player {
    quint8 number = 0;
    quint16 ping = 0;
    quint32 rate = 0;
    QByteArray name;
    QByteArray clan;
};

using Rules = QList<QPair<QByteArray, QByteArray>>;

// Protocol versions of the game's releases.
inline constexpr quint32 Protocol1_0 = 0x0002003E;   // 2.62
inline constexpr quint32 Protocol1_4_2 = 0x00020055; // 2.85, what live servers run

struct Format {
    quint32 protocol = Protocol1_4_2;
    quint32 challenge = 4; // the browser's
    // After the last player a retail server sends the client number 32
    // and a 32-bit mask of its operating systems; the first release is
    // documented with three bytes there instead.
    bool documentedTrailer = false;
    quint32 osMask = 0x00000004;
};

// Header (challenge, version), the key/value pairs, the empty pair that
// ends them, the players, and the trailer.
QByteArray infoResponse(const Rules& rules, const QList<Player>& players, const Format& format = {});

// The id master's reply for these IPv4 addresses (host order) and ports:
// 231 records per full datagram of 1396 bytes, and a shorter last one
// (a lone header when the list is empty or fills its datagrams exactly).
QList<QByteArray> serverList(const QList<QPair<quint32, quint16>>& servers);

// The community master's reply: datagrams of at most this many records,
// no count, no end mark; an empty list sends nothing at all.
QList<QByteArray> splitServerList(const QList<QPair<quint32, quint16>>& servers, int recordsPerDatagram);

} // namespace SimReplies
