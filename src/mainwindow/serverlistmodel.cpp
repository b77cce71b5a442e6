#include "serverlistmodel.h"

#include "colourcodes.h"

ServerListModel::ServerListModel(QObject* parent)
    : ReportModel(Columns, parent)
{
}

int ServerListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_store.count();
}

QString ServerListModel::cellText(const ServerRecord& server, const QString& plainName, int column)
{
    switch (column) {
    case Name:
        return plainName;
    case Map:
        return server.map;
    case Players:
        return server.playersText();
    case Ping:
        return QString::number(server.ping);
    case Password:
        return server.passwordMark;
    case GameType:
        return server.gameType;
    case GameName:
        return server.gameName;
    case Address:
        return server.endpointText();
    default:
        return {};
    }
}

QVariant ServerListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_store.count())
        return {};
    if (role == Qt::DisplayRole)
        return cellText(m_store.at(index.row()), m_plainNames.at(index.row()), index.column());
    return {};
}

void ServerListModel::clear()
{
    beginResetModel();
    m_store.clear();
    m_plainNames.clear();
    endResetModel();
}

int ServerListModel::append(const QList<ServerRecord>& servers)
{
    const int first = m_store.count();
    if (servers.isEmpty())
        return first;
    beginInsertRows({}, first, first + int(servers.size()) - 1);
    for (const ServerRecord& server : servers) {
        m_plainNames.append(ColourCodes::StripColourCodesCounted(server.name));
        m_store.add(server);
    }
    endInsertRows();
    return first;
}

void ServerListModel::replace(int storeIndex, const ServerRecord& server)
{
    m_plainNames[storeIndex] = ColourCodes::StripColourCodesCounted(server.name);
    m_store.replace(storeIndex, server);
    emit dataChanged(index(storeIndex, 0), index(storeIndex, ColumnCount - 1));
}

SortKeys ServerListModel::sortKeys(int column) const
{
    SortKeys keys;
    keys.numeric = column == Players || column == Ping;
    if (keys.numeric) {
        keys.numbers.reserve(size_t(m_store.count()));
        for (int row = 0; row < m_store.count(); ++row) {
            const ServerRecord& server = m_store.at(row);
            keys.numbers.push_back(column == Ping ? server.ping : server.playersSortKey());
        }
        return keys;
    }
    keys.texts.reserve(m_store.count());
    for (int row = 0; row < m_store.count(); ++row)
        keys.texts.append(cellText(m_store.at(row), m_plainNames.at(row), column).toCaseFolded());
    return keys;
}
