// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/records.h"

#include <QHostAddress>

QString endpointText(const QString& address, int port)
{
    return address + QLatin1Char(':') + QString::number(port);
}

QString canonicalHost(const QString& host)
{
    const QHostAddress address(host);
    if (address.protocol() == QAbstractSocket::IPv4Protocol)
        return address.toString();
    return host.toLower();
}

bool isHostName(QStringView host)
{
    if (host.isEmpty() || host.size() > 253 || host.startsWith(QLatin1Char('.')) || host.startsWith(QLatin1Char('-')))
        return false;
    for (const QChar c : host) {
        const bool allowed = (c >= QLatin1Char('a') && c <= QLatin1Char('z')) ||
                             (c >= QLatin1Char('A') && c <= QLatin1Char('Z')) ||
                             (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('.') ||
                             c == QLatin1Char('-') || c == QLatin1Char('_');
        if (!allowed)
            return false;
    }
    return true;
}

bool isServerAddress(QStringView text)
{
    text = text.trimmed();
    const qsizetype colon = text.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return isHostName(text);
    bool ok = false;
    const int port = text.mid(colon + 1).toInt(&ok);
    return ok && port >= 1 && port <= 65535 && isHostName(text.left(colon));
}

std::optional<AddressEntry> parseEndpoint(QStringView text)
{
    text = text.trimmed();
    const qsizetype colon = text.lastIndexOf(QLatin1Char(':'));
    if (colon <= 0)
        return std::nullopt;
    const QStringView host = text.left(colon);
    bool ok = false;
    const int port = text.mid(colon + 1).toInt(&ok);
    if (!ok || port < 1 || port > 65535 || !isHostName(host))
        return std::nullopt;
    return AddressEntry{canonicalHost(host.toString()), port, {}, {}};
}

void AddressTable::add(const QString& address, int port, const QString& name, const QString& password)
{
    m_entries.append(AddressEntry{address, port, name, password});
}

std::optional<AddressEntry> AddressTable::lastMatching(const QString& endpointText) const
{
    for (auto it = m_entries.crbegin(); it != m_entries.crend(); ++it) {
        if (it->endpointText() == endpointText)
            return *it;
    }
    return std::nullopt;
}

QString ServerRecord::playersText() const
{
    return QString::number(playerCount) + QLatin1Char('/') + QString::number(maxPlayers);
}

void ServerStore::clear()
{
    m_servers.clear();
    m_first.clear();
    m_storedPlayers = 0;
}

int ServerStore::add(ServerRecord record)
{
    m_storedPlayers += int(record.players.size());
    const int index = int(m_servers.size());
    const QString key = record.endpointText();
    if (!m_first.contains(key))
        m_first.insert(key, index);
    m_servers.append(std::move(record));
    return index;
}

void ServerStore::replace(int index, ServerRecord record)
{
    m_storedPlayers += int(record.players.size()) - int(m_servers.at(index).players.size());
    m_servers[index] = std::move(record);
}

int ServerStore::indexOf(const QString& address, int port) const
{
    return m_first.value(endpointText(address, port), -1);
}
