// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/masterprotocol.h"

namespace MasterProtocol {

QByteArray getServersRequest()
{
    QByteArray request("\xFF\xFFgetServers", 12);
    request.append(9, '\0');
    return request;
}

QByteArray replyHeader()
{
    return QByteArray("\xFF\xFFservers\0", 10);
}

bool isLastDatagram(const QByteArray& datagram)
{
    return datagram.size() < MoreFollowLength;
}

bool surelyTooLong(qsizetype recordBytes, int datagrams, qsizetype gatheredBytes)
{
    if (gatheredBytes > MaxReplyBytes)
        return true;
    const qsizetype surelyHeld = recordBytes - 2 * qsizetype(replyHeader().size()) * datagrams;
    return (surelyHeld + 5) / 6 > MaxRecords;
}

QByteArray removeAll(QByteArray bytes, const QByteArray& pattern)
{
    if (pattern.isEmpty())
        return bytes;
    qsizetype write = 0;
    qsizetype read = 0;
    const qsizetype size = bytes.size();
    char* data = bytes.data();
    while (read < size) {
        if (read + pattern.size() <= size && memcmp(data + read, pattern.constData(), pattern.size()) == 0) {
            read += pattern.size();
            continue;
        }
        data[write++] = data[read++];
    }
    bytes.truncate(write);
    return bytes;
}

std::optional<QList<QByteArray>> cutRecords(const QByteArray& gathered)
{
    const QByteArray buffer = removeAll(gathered, replyHeader());
    const qsizetype count = (buffer.size() + 5) / 6;
    if (count > MaxRecords)
        return std::nullopt;
    QList<QByteArray> records;
    records.reserve(count);
    for (qsizetype offset = 0; offset < buffer.size(); offset += 6)
        records.append(buffer.mid(offset, 6));
    return records;
}

int appendAddresses(const QList<QByteArray>& records, AddressTable& table, int port)
{
    for (const QByteArray& record : records) {
        if (record.size() < 5)
            continue;
        const auto byte = [&record](int i) { return uchar(record.at(i)); };
        const QString address = QString::number(byte(0)) + QLatin1Char('.') + QString::number(byte(1)) +
                                QLatin1Char('.') + QString::number(byte(2)) + QLatin1Char('.') +
                                QString::number(byte(3));
        if (record.size() >= 6 && byte(5) < 128)
            port = byte(5) * 256 + byte(4);
        table.add(address, port);
    }
    return port;
}

} // namespace MasterProtocol
