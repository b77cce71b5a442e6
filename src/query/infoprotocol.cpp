// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/infoprotocol.h"

#include "query/lenientnumber.h"

#include <QtEndian>

#include <limits>

namespace InfoProtocol {

namespace {

// True when the whole text is a number (blanks around it allowed) of at
// most 7: such a player section is a count, not player data.
bool isSmallNumber(const QByteArray& text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && value <= 7;
}

// A 16-bit little-endian value whose high byte is below 128; a larger one
// does not fit the signed arithmetic and reads as nothing.
std::optional<qint32> signed16At(const QByteArray& bytes, qsizetype offset)
{
    if (offset < 0 || offset + 1 >= bytes.size())
        return std::nullopt;
    const uchar low = uchar(bytes.at(offset));
    const uchar high = uchar(bytes.at(offset + 1));
    if (high >= 128)
        return std::nullopt;
    return high * 256 + low;
}

QString latin1(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes);
}

void readPlayers(const QByteArray& section, ServerRecord& server)
{
    const QByteArray pair("\0\0", 2);
    qsizetype p = 0;
    int index = 0;
    while (section.indexOf(pair, p) >= 0) {
        PlayerRecord player;
        if (p < section.size())
            player.clientNumber = qint16(uchar(section.at(p)));
        player.ping = signed16At(section, p + 1).value_or(0);
        player.rate = signed16At(section, p + 3).value_or(0);

        const qsizetype nameStart = std::min(p + 7, section.size());
        qsizetype nameEnd = section.indexOf('\0', nameStart);
        if (nameEnd < 0)
            nameEnd = section.size();
        player.name = latin1(section.mid(nameStart, nameEnd - nameStart));
        const qsizetype clanStart = std::min(nameEnd + 1, section.size());
        qsizetype clanEnd = section.indexOf('\0', clanStart);
        if (clanEnd < 0)
            clanEnd = section.size();
        player.clan = latin1(section.mid(clanStart, clanEnd - clanStart));
        p = clanEnd + 1;

        if (index <= server.maxPlayers)
            server.players.append(player);
        ++index;
        if (server.playerCount < std::numeric_limits<qint16>::max())
            ++server.playerCount;
        if (player.ping == 0)
            ++server.zeroPingCount;
    }
}

} // namespace

QByteArray getInfoRequest()
{
    return QByteArray("\xFF\xFFgetInfo\0\x04\0\0\0", 14);
}

QByteArray replyPrefix()
{
    return QByteArray("\xFF\xFFinfoResponse\0", 15);
}

std::optional<Header> readHeader(const QByteArray& datagram)
{
    if (datagram.size() < HeaderLength || !datagram.startsWith(replyPrefix()))
        return std::nullopt;
    const auto* bytes = reinterpret_cast<const uchar*>(datagram.constData());
    const Header header{qFromLittleEndian<quint32>(bytes + 15), qFromLittleEndian<quint32>(bytes + 19)};
    if (header.version >> 16 != GameMajorVersion)
        return std::nullopt;
    return header;
}

QString versionText(quint32 version)
{
    return QString::number(version >> 16) + QLatin1Char('.') + QString::number(version & 0xFFFF);
}

Sections splitSections(const QByteArray& datagram)
{
    const QByteArray text = datagram.mid(HeaderLength);
    const qsizetype end = text.indexOf(QByteArray("\0\0\0", 3));
    if (end < 0)
        return Sections{text, {}};
    QByteArray players = text.mid(end + 3);
    players.chop(3);
    return Sections{text.left(end), players};
}

std::optional<ServerRecord> parseReply(const QByteArray& datagram)
{
    const std::optional<Header> header = readHeader(datagram);
    if (!header)
        return std::nullopt;
    const Sections sections = splitSections(datagram);
    ServerRecord server;
    server.protocol = versionText(header->version);
    server.tokens = {QString(ProtocolKey), server.protocol};
    if (!sections.keyValues.isEmpty()) {
        const QList<QByteArray> tokens = sections.keyValues.split('\0');
        server.tokens.reserve(tokens.size() + 2);
        for (const QByteArray& token : tokens)
            server.tokens.append(latin1(token));
        for (qsizetype i = 0; i + 1 < tokens.size(); i += 2) {
            const QByteArray key = tokens.at(i).toLower();
            const QByteArray& value = tokens.at(i + 1);
            if (key == "si_maxplayers") {
                const int players = LenientNumber::toInt(QString::fromLatin1(value));
                if (players >= std::numeric_limits<qint16>::min() && players <= std::numeric_limits<qint16>::max())
                    server.maxPlayers = qint16(players);
            } else if (key == "si_name") {
                server.name = latin1(value);
            } else if (key == "si_map") {
                server.map = latin1(value);
            } else if (key == "si_gametype") {
                server.gameType = latin1(value);
            } else if (key == "gamename") {
                server.gameName = latin1(value);
            } else if (key == "si_usepass") {
                server.passwordMark =
                    LenientNumber::toInt(QString::fromLatin1(value)) == 1 ? QStringLiteral("*") : QString();
            }
        }
    }
    if (sections.keyValues.size() >= MinimumKeyValueLength && !isSmallNumber(sections.players))
        readPlayers(sections.players, server);
    return server;
}

} // namespace InfoProtocol
