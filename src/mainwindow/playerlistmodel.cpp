// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/playerlistmodel.h"

#include "mainwindow/serverlistmodel.h"
#include "presentation/colourcodes.h"
#include "presentation/rowtones.h"

PlayerListModel::PlayerListModel(const ServerListModel& servers, QObject* parent)
    : ReportModel(Columns, parent)
    , m_servers(servers)
{
}

int PlayerListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant PlayerListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row& row = m_rows.at(index.row());
    if (role == RowMarks::Role)
        return row.isFriend ? RowMarks::Friend : 0;
    if (role != Qt::DisplayRole && role != RowMarks::ToneRole)
        return {};
    const ServerRecord& server = m_servers.record(row.server);
    if (row.player >= server.players.size())
        return {};
    const PlayerRecord& player = server.players.at(row.player);
    if (role == RowMarks::ToneRole) {
        // A player's own ping, and the server's as the server list shows it.
        if (index.column() == Ping)
            return int(RowTones::ofPing(player.ping));
        if (index.column() == ServerPing)
            return int(RowTones::ofPing(server.ping));
        return {};
    }
    switch (index.column()) {
    case Name:
        return row.plainName;
    case Clan:
        return row.plainClan;
    case Ping:
        return QString::number(player.ping);
    case Rate:
        return QString::number(player.rate);
    case ServerName:
        return m_servers.plainName(row.server);
    case Map:
        return server.map;
    case Players:
        return server.playersText();
    case ServerPing:
        return QString::number(server.ping);
    case Password:
        return server.passwordMark;
    case Mod:
        return server.gameName;
    case GameType:
        return server.gameType;
    default:
        return {};
    }
}

void PlayerListModel::clear()
{
    beginResetModel();
    m_rows.clear();
    m_friendsOn.clear();
    endResetModel();
}

PlayerListModel::Row PlayerListModel::rowOf(int server, int player) const
{
    const PlayerRecord& stored = m_servers.record(server).players.at(player);
    Row row{server, player, ColourCodes::StripColourCodes(stored.name), ColourCodes::StripColourCodes(stored.clan),
            stored.name};
    row.isFriend = m_friends.matches(row.plainName);
    return row;
}

QList<PlayerListModel::Row> PlayerListModel::rowsOf(int server) const
{
    QList<Row> rows;
    const int players = int(m_servers.record(server).players.size());
    rows.reserve(players);
    for (int player = 0; player < players; ++player)
        rows.append(rowOf(server, player));
    return rows;
}

void PlayerListModel::count(const Row& row, int change)
{
    if (!row.isFriend)
        return;
    if (m_friendsOn.size() <= size_t(row.server))
        m_friendsOn.resize(size_t(row.server) + 1, 0);
    m_friendsOn[size_t(row.server)] += change;
}

void PlayerListModel::appendRows(const QList<Row>& rows)
{
    if (rows.isEmpty())
        return;
    for (const Row& row : rows)
        count(row, 1);
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + rows.size()) - 1);
    m_rows += rows;
    endInsertRows();
}

void PlayerListModel::appendServersFrom(int firstServer)
{
    QList<Row> rows;
    for (int server = firstServer; server < m_servers.store().count(); ++server)
        rows += rowsOf(server);
    appendRows(rows);
}

void PlayerListModel::setFriends(const Friends::Matcher& friends)
{
    m_friends = friends;
    m_friendsOn.clear();
    for (Row& row : m_rows) {
        row.isFriend = m_friends.matches(row.plainName);
        count(row, 1);
    }
    if (!m_rows.isEmpty())
        emit dataChanged(index(0, 0), index(int(m_rows.size()) - 1, ColumnCount - 1), {RowMarks::Role});
}

void PlayerListModel::updateServers(const QList<int>& servers)
{
    if (servers.isEmpty())
        return;
    // Each server's rows, found in one pass over the list.
    QHash<int, QList<qsizetype>> rowsOf;
    for (int server : servers)
        rowsOf.insert(server, {});
    for (qsizetype at = 0; at < m_rows.size(); ++at) {
        const auto found = rowsOf.find(m_rows.at(at).server);
        if (found != rowsOf.end())
            found->append(at);
    }
    QList<qsizetype> leaving;
    QList<Row> arriving;
    for (auto it = rowsOf.cbegin(); it != rowsOf.cend(); ++it) {
        const int server = it.key();
        const ServerRecord& record = m_servers.record(server);
        // The new answer's players by raw name; each old row takes one of
        // its name, so two players of the same name both stay.
        QHash<QString, QList<int>> fresh;
        for (int player = int(record.players.size()) - 1; player >= 0; --player)
            fresh[record.players.at(player).name].append(player);
        QList<qsizetype> gone;
        for (qsizetype at : it.value()) {
            auto same = fresh.find(m_rows.at(at).rawName);
            if (same == fresh.end() || same->isEmpty()) {
                gone.append(at);
                continue;
            }
            setRow(at, rowOf(server, same->takeLast()));
        }
        QList<int> newcomers;
        for (const QList<int>& left : std::as_const(fresh))
            newcomers += left;
        std::sort(newcomers.begin(), newcomers.end());
        qsizetype reused = 0;
        for (; reused < std::min(gone.size(), newcomers.size()); ++reused)
            setRow(gone.at(reused), rowOf(server, newcomers.at(reused)));
        leaving += gone.mid(reused);
        for (qsizetype i = reused; i < newcomers.size(); ++i)
            arriving.append(rowOf(server, newcomers.at(i)));
    }
    // From the end, so the positions still to remove stay valid.
    std::sort(leaving.begin(), leaving.end(), std::greater<>());
    for (qsizetype i = 0; i < leaving.size();) {
        qsizetype first = leaving.at(i);
        qsizetype j = i + 1;
        while (j < leaving.size() && leaving.at(j) == first - 1)
            first = leaving.at(j++);
        const qsizetype last = leaving.at(i);
        for (qsizetype at = first; at <= last; ++at)
            count(m_rows.at(at), -1);
        beginRemoveRows({}, int(first), int(last));
        m_rows.remove(first, last - first + 1);
        endRemoveRows();
        i = j;
    }
    appendRows(arriving);
}

void PlayerListModel::setRow(qsizetype at, const Row& row)
{
    count(m_rows.at(at), -1);
    m_rows[at] = row;
    count(row, 1);
    emit dataChanged(index(int(at), 0), index(int(at), ColumnCount - 1));
}

SortKeys PlayerListModel::sortKeys(int column) const
{
    SortKeys keys;
    keys.numeric = column == Ping || column == Rate || column == Players || column == ServerPing;
    if (keys.numeric) {
        keys.numbers.reserve(size_t(m_rows.size()));
        for (const Row& row : m_rows) {
            const ServerRecord& server = m_servers.record(row.server);
            const PlayerRecord& player = server.players.at(row.player);
            switch (column) {
            case Ping:
                keys.numbers.push_back(player.ping);
                break;
            case Rate:
                keys.numbers.push_back(player.rate);
                break;
            case Players:
                keys.numbers.push_back(server.playersSortKey());
                break;
            default:
                keys.numbers.push_back(server.ping);
                break;
            }
        }
        return keys;
    }
    keys.texts.reserve(m_rows.size());
    for (int row = 0; row < m_rows.size(); ++row)
        keys.texts.append(data(index(row, column)).toString().toCaseFolded());
    return keys;
}
