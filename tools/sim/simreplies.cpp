// SPDX-License-Identifier: GPL-2.0-or-later
#include "simreplies.h"

namespace SimReplies {

namespace {

const QByteArray ListHeader("\xFF\xFFservers\0", 10);
constexpr int IdRecordsPerDatagram = 231;

void appendLong(QByteArray& bytes, quint32 value)
{
    for (int shift : {0, 8, 16, 24})
        bytes += char((value >> shift) & 0xFF);
}

QList<QByteArray> chunks(const QList<QPair<quint32, quint16>>& servers, int perDatagram)
{
    QList<QByteArray> datagrams;
    for (qsizetype next = 0; next < servers.size();) {
        QByteArray datagram = ListHeader;
        for (int i = 0; i < perDatagram && next < servers.size(); ++i, ++next) {
            const auto [address, port] = servers.at(next);
            datagram += char(address >> 24);
            datagram += char((address >> 16) & 0xFF);
            datagram += char((address >> 8) & 0xFF);
            datagram += char(address & 0xFF);
            datagram += char(port & 0xFF);
            datagram += char(port >> 8);
        }
        datagrams.append(datagram);
    }
    return datagrams;
}

} // namespace

QByteArray infoResponse(const Rules& rules, const QList<Player>& players, const Format& format)
{
    QByteArray bytes("\xFF\xFFinfoResponse\0", 15);
    appendLong(bytes, format.challenge);
    appendLong(bytes, format.protocol);
    for (const auto& [key, value] : rules) {
        bytes += key;
        bytes += '\0';
        bytes += value;
        bytes += '\0';
    }
    bytes += QByteArray(2, '\0');
    for (const Player& player : players) {
        bytes += char(player.number);
        bytes += char(player.ping & 0xFF);
        bytes += char(player.ping >> 8);
        appendLong(bytes, player.rate);
        bytes += player.name;
        bytes += '\0';
        bytes += player.clan;
        bytes += '\0';
    }
    if (format.documentedTrailer) {
        bytes += QByteArray("\x20\0\0", 3);
    } else {
        bytes += char(32);
        appendLong(bytes, format.osMask);
    }
    return bytes;
}

QList<QByteArray> serverList(const QList<QPair<quint32, quint16>>& servers)
{
    QList<QByteArray> datagrams = chunks(servers, IdRecordsPerDatagram);
    // The browser takes a datagram shorter than a full one as the last: a
    // list that fills its datagrams exactly needs one more to say it ended.
    if (datagrams.isEmpty() || datagrams.last().size() == ListHeader.size() + 6 * IdRecordsPerDatagram)
        datagrams.append(ListHeader);
    return datagrams;
}

QList<QByteArray> splitServerList(const QList<QPair<quint32, quint16>>& servers, int recordsPerDatagram)
{
    return chunks(servers, std::max(1, recordsPerDatagram));
}

} // namespace SimReplies
