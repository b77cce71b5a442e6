// SPDX-License-Identifier: GPL-2.0-or-later
#include "records.h"

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
