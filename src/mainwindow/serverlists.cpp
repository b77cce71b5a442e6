// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverlists.h"

#include "userdata/favourites.h"

#include <QFileInfo>

ServerLists::ServerLists(QObject* parent)
    : QObject(parent)
    , m_visibleServers([this](int row) { return m_visibility.isVisible(row); },
                       [this](int column) { return m_servers.sortKeys(column); })
    , m_visiblePlayers([this](int row) { return m_visibility.isVisible(m_players.row(row).server); },
                       [this](int column) { return m_players.sortKeys(column); })
{
    m_servers.setFriendLookup([this](int server) { return m_players.hasFriendOn(server); });
    m_servers.setFavouriteLookup(
        [this](int server) { return m_favourites.contains(m_servers.record(server).endpointText()); });
    m_visibleServers.setSourceModel(&m_servers);
    m_visiblePlayers.setSourceModel(&m_players);
}

ListPane::Rows ServerLists::serverRows() const
{
    return {[](int row) { return row; }, [this](int row) { return m_servers.plainName(row); }};
}

ListPane::Rows ServerLists::playerRows() const
{
    return {[this](int row) { return m_players.row(row).server; },
            [this](int row) { return m_players.row(row).plainName; }};
}

void ServerLists::clear()
{
    m_players.clear();
    m_servers.clear();
}

void ServerLists::append(const QList<ServerRecord>& batch)
{
    const int first = m_servers.append(batch, m_nowMs ? m_nowMs() : 0);
    m_players.appendServersFrom(first);
}

int ServerLists::replace(const ServerRecord& server)
{
    return replace(QList<ServerRecord>{server}).first();
}

QList<int> ServerLists::replace(const QList<ServerRecord>& batch)
{
    QList<int> indexes;
    QList<int> listed;
    const qint64 now = m_nowMs ? m_nowMs() : 0;
    for (const ServerRecord& server : batch) {
        const int index = m_servers.store().indexOf(server.address, server.port);
        indexes.append(index);
        if (index < 0)
            continue;
        m_servers.replace(index, server, now);
        listed.append(index);
    }
    m_players.updateServers(listed);
    return indexes;
}

void ServerLists::markSilent(const QList<int>& storeIndexes)
{
    for (int index : storeIndexes)
        m_servers.setSilent(index);
}

void ServerLists::setFriends(const QStringList& entries)
{
    if (entries == m_friends.entries())
        return;
    m_friends = Friends::Matcher(entries);
    m_players.setFriends(m_friends);
    m_servers.marksChanged();
}

void ServerLists::setFavourites(const QSet<QString>& endpoints)
{
    if (endpoints == m_favourites)
        return;
    m_favourites = endpoints;
    m_servers.marksChanged();
}

void ServerLists::followFavourites(const QString& path)
{
    const auto read = [this, path] {
        QSet<QString> endpoints;
        for (const Favourites::Favourite& favourite :
             Favourites::readFile(path).value_or(QList<Favourites::Favourite>{}))
            endpoints.insert(endpointText(favourite.address, favourite.port));
        setFavourites(endpoints);
    };
    delete m_favouritesFolder;
    m_favouritesFolder = new QFileSystemWatcher({QFileInfo(path).absolutePath()}, this);
    connect(m_favouritesFolder, &QFileSystemWatcher::directoryChanged, this, read);
    read();
}

QList<Alerts::Sighting> ServerLists::sightings() const
{
    QList<Alerts::Sighting> seen;
    for (int row = 0; row < m_players.rowCount(); ++row) {
        const PlayerListModel::Row& player = m_players.row(row);
        if (player.isFriend)
            seen.append(
                {player.plainName, m_servers.record(player.server).endpointText(), m_servers.plainName(player.server)});
    }
    return seen;
}

Alerts::Counts ServerLists::counts(const QSet<QString>& addresses) const
{
    Alerts::Counts counts;
    if (addresses.isEmpty())
        return counts;
    for (int server = 0; server < m_servers.store().count(); ++server) {
        const QString address = m_servers.record(server).endpointText();
        if (addresses.contains(address))
            counts.insert(address, {m_servers.plainName(server), m_servers.record(server).playerCount});
    }
    return counts;
}

void ServerLists::setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn)
{
    m_visibility.setRules(filters, builtIn);
}

void ServerLists::retranslate()
{
    m_servers.retranslate();
    m_players.retranslate();
}
