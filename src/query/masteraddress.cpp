// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/masteraddress.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>

#include <algorithm>

namespace {

std::optional<quint16> parsePort(QStringView text)
{
    bool ok = false;
    const uint value = text.toUInt(&ok);
    if (!ok || value == 0 || value > 65535)
        return std::nullopt;
    return quint16(value);
}

// An IPv6 address (the only host with colons), or a name the name service
// can be asked for: an IPv4 address or letters, digits, dots, hyphens and
// underscores, international names in their ASCII form. Anything else
// would be refused by the lookup anyway, after a wait; and written back
// into the setting it would not read the same.
bool isHostName(QStringView host)
{
    if (host.contains(QLatin1Char(':')))
        return QHostAddress(host.toString()).protocol() == QAbstractSocket::IPv6Protocol;
    const QByteArray ace = QUrl::toAce(host.toString());
    if (ace.isEmpty() || ace.size() > 253)
        return false;
    return std::all_of(ace.cbegin(), ace.cend(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' ||
               c == '_';
    });
}

} // namespace

std::optional<MasterAddress> parseMasterAddress(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return MasterAddress{MasterAddress::DefaultHost, MasterAddress::DefaultPort};

    QStringView host = text;
    QStringView portText;
    if (text.startsWith(QLatin1Char('['))) {
        const qsizetype close = text.indexOf(QLatin1Char(']'));
        if (close < 0)
            return std::nullopt;
        host = text.mid(1, close - 1);
        const QStringView rest = text.mid(close + 1);
        if (!rest.isEmpty()) {
            if (!rest.startsWith(QLatin1Char(':')))
                return std::nullopt;
            portText = rest.mid(1);
        }
    } else if (text.count(QLatin1Char(':')) == 1) {
        const qsizetype colon = text.indexOf(QLatin1Char(':'));
        host = text.left(colon);
        portText = text.mid(colon + 1);
    }
    // More than one colon without brackets: a bare IPv6 address.

    if (!isHostName(host))
        return std::nullopt;
    MasterAddress result{host.toString(), MasterAddress::DefaultPort};
    if (!portText.isNull()) {
        const auto port = parsePort(portText);
        if (!port)
            return std::nullopt;
        result.port = *port;
    }
    return result;
}

MasterList parseMasterList(QStringView text)
{
    MasterList result;
    static const QRegularExpression separators(QStringLiteral("[,\\s]+"));
    const QStringList entries = text.toString().split(separators, Qt::SkipEmptyParts);
    if (entries.isEmpty()) {
        result.masters = MasterAddress::defaults();
        return result;
    }
    QSet<QString> seen;
    for (const QString& entry : entries) {
        const auto master = parseMasterAddress(entry);
        if (!master) {
            result.refused.append(entry);
            continue;
        }
        // Host names are not case sensitive: "Master.Example" is the same master.
        const QString key = masterAddressText({master->host.toLower(), master->port});
        if (seen.contains(key))
            continue;
        seen.insert(key);
        if (result.masters.size() < MasterList::Max)
            result.masters.append(*master);
        else
            ++result.leftOut;
    }
    return result;
}

QString masterAddressText(const MasterAddress& master)
{
    const bool v6 = master.host.contains(QLatin1Char(':'));
    if (master.port == MasterAddress::DefaultPort)
        return master.host;
    return v6 ? QStringLiteral("[%1]:%2").arg(master.host).arg(master.port)
              : QStringLiteral("%1:%2").arg(master.host).arg(master.port);
}

QString masterListText(const QList<MasterAddress>& masters)
{
    QStringList texts;
    for (const MasterAddress& master : masters)
        texts.append(masterAddressText(master));
    return texts.join(QStringLiteral(", "));
}
