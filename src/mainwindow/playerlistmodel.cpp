#include "playerlistmodel.h"

#include "colourcodes.h"
#include "serverlistmodel.h"

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
    if (!index.isValid() || index.row() >= m_rows.size() || role != Qt::DisplayRole)
        return {};
    const Row& row = m_rows.at(index.row());
    const ServerRecord& server = m_servers.record(row.server);
    const PlayerRecord& player = server.players.at(row.player);
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
    endResetModel();
}

QList<PlayerListModel::Row> PlayerListModel::rowsOf(int server) const
{
    QList<Row> rows;
    const ServerRecord& record = m_servers.record(server);
    rows.reserve(record.players.size());
    for (int player = 0; player < record.players.size(); ++player) {
        const PlayerRecord& stored = record.players.at(player);
        rows.append(Row{server, player, ColourCodes::StripColourCodes(stored.name),
                        ColourCodes::StripColourCodes(stored.clan)});
    }
    return rows;
}

void PlayerListModel::appendServersFrom(int firstServer)
{
    QList<Row> rows;
    for (int server = firstServer; server < m_servers.store().count(); ++server)
        rows += rowsOf(server);
    if (rows.isEmpty())
        return;
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + rows.size()) - 1);
    m_rows += rows;
    endInsertRows();
}

void PlayerListModel::replaceServer(int server)
{
    // Remove the server's old rows in contiguous runs, from the end, so the
    // views keep their other rows.
    for (qsizetype end = m_rows.size(); end > 0;) {
        if (m_rows.at(end - 1).server != server) {
            --end;
            continue;
        }
        qsizetype begin = end - 1;
        while (begin > 0 && m_rows.at(begin - 1).server == server)
            --begin;
        beginRemoveRows({}, int(begin), int(end) - 1);
        m_rows.remove(begin, end - begin);
        endRemoveRows();
        end = begin;
    }
    const QList<Row> rows = rowsOf(server);
    if (rows.isEmpty())
        return;
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size() + rows.size()) - 1);
    m_rows += rows;
    endInsertRows();
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
