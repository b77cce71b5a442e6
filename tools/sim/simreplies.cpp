#include "simreplies.h"

#include "infoprotocol.h"
#include "masterprotocol.h"

namespace SimReplies {

QByteArray infoResponse(const Rules& rules, const QList<Player>& players)
{
    QByteArray bytes = InfoProtocol::replyHeader();
    bytes += '\0';
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
        for (int shift : {0, 8, 16, 24})
            bytes += char((player.rate >> shift) & 0xFF);
        bytes += player.name;
        bytes += '\0';
        bytes += player.clan;
        bytes += '\0';
    }
    bytes += QByteArray("\x20\0\0", 3);
    return bytes;
}

QList<QByteArray> serverList(const QList<QPair<quint32, quint16>>& servers)
{
    constexpr int perDatagram = (MasterProtocol::MoreFollowLength - 10) / 6;
    QList<QByteArray> datagrams;
    qsizetype next = 0;
    do {
        QByteArray datagram = MasterProtocol::replyHeader();
        // A list that fills its last datagram exactly needs one more,
        // shorter datagram to say that it ended.
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
    } while (!MasterProtocol::isLastDatagram(datagrams.last()));
    return datagrams;
}

} // namespace SimReplies
