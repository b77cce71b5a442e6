#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>

// What a game server and a master server put on the wire, built the way
// the browser expects to read it.
namespace SimReplies {

struct Player {
    quint8 number = 0;
    quint16 ping = 0;
    quint32 rate = 0;
    QByteArray name;
    QByteArray clan;
};

using Rules = QList<QPair<QByteArray, QByteArray>>;

// Header, the last protocol version byte, the key/value pairs, the empty
// pair that ends them, the players, and three trailing bytes.
QByteArray infoResponse(const Rules& rules, const QList<Player>& players);

// The master's reply for these IPv4 addresses (host order) and ports:
// 231 records per full datagram, the last one shorter. An empty list is a
// single header.
QList<QByteArray> serverList(const QList<QPair<quint32, quint16>>& servers);

} // namespace SimReplies
