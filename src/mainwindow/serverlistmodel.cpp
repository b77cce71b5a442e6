// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverlistmodel.h"

#include "presentation/colourcodes.h"
#include "presentation/countries.h"
#include "presentation/rowtones.h"

#include <QDateTime>
#include <QLocale>

ServerListModel::ServerListModel(QObject* parent)
    : ReportModel(Columns, parent)
{
}

int ServerListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_store.count();
}

QString ServerListModel::cellText(int row, int column) const
{
    const ServerRecord& server = m_store.at(row);
    switch (column) {
    case Name:
        return m_plainNames.at(row);
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
    case Country:
        return m_countries && !server.country.isEmpty() ? m_countries->name(server.country) : server.country;
    default:
        return {};
    }
}

namespace {

// No slot left: what "Hide full" hides too.
bool isFull(const ServerRecord& server)
{
    return server.maxPlayers > 0 && server.playerCount >= server.maxPlayers;
}

} // namespace

QVariant ServerListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_store.count())
        return {};
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return cellText(row, index.column());
    case RowMarks::Role:
        return (m_hasFriend && m_hasFriend(row) ? RowMarks::Friend : 0) |
               (m_silent.at(size_t(row)) ? RowMarks::Silent : 0) | (isFull(m_store.at(row)) ? RowMarks::Full : 0) |
               (m_isFavourite && m_isFavourite(row) ? RowMarks::Favourite : 0);
    case RowMarks::ToneRole:
        if (index.column() == Ping)
            return int(RowTones::ofPing(m_store.at(row).ping));
        if (index.column() == Players && isFull(m_store.at(row)))
            return int(RowTones::Tier::Poor);
        return {};
    case Qt::DecorationRole:
        // The flag before the name.
        if (index.column() == Name && m_countries && !m_store.at(row).country.isEmpty())
            return m_countries->flag(m_store.at(row).country);
        return {};
    case Qt::ToolTipRole: {
        QStringList tips;
        if (m_countries && !m_store.at(row).country.isEmpty())
            tips.append(m_countries->name(m_store.at(row).country));
        const ServerRecord& server = m_store.at(row);
        if (m_isFavourite && m_isFavourite(row))
            tips.append(tr("One of your favourites"));
        if (isFull(server))
            tips.append(tr("Full: %1 of %2 players").arg(server.playerCount).arg(server.maxPlayers));
        if (m_silent.at(size_t(row)))
            tips.append(tr("No answer to the last refresh; last seen at %1")
                            .arg(QLocale().toString(QDateTime::fromMSecsSinceEpoch(m_lastSeen.at(size_t(row))).time(),
                                                    QLocale::ShortFormat)));
        return tips.isEmpty() ? QVariant() : QVariant(tips.join(QLatin1Char('\n')));
    }
    default:
        return {};
    }
}

void ServerListModel::clear()
{
    beginResetModel();
    m_store.clear();
    m_plainNames.clear();
    m_lastSeen.clear();
    m_silent.clear();
    endResetModel();
}

int ServerListModel::append(const QList<ServerRecord>& servers, qint64 nowMs)
{
    const int first = m_store.count();
    if (servers.isEmpty())
        return first;
    beginInsertRows({}, first, first + int(servers.size()) - 1);
    for (const ServerRecord& server : servers) {
        m_plainNames.append(ColourCodes::StripColourCodesCounted(server.name));
        m_store.add(server);
        m_lastSeen.push_back(nowMs);
        m_silent.push_back(false);
    }
    endInsertRows();
    return first;
}

void ServerListModel::replace(int storeIndex, const ServerRecord& server, qint64 nowMs)
{
    m_plainNames[storeIndex] = ColourCodes::StripColourCodesCounted(server.name);
    m_store.replace(storeIndex, server);
    m_lastSeen[size_t(storeIndex)] = nowMs;
    m_silent[size_t(storeIndex)] = false;
    emit dataChanged(index(storeIndex, 0), index(storeIndex, ColumnCount - 1));
}

void ServerListModel::setSilent(int storeIndex)
{
    if (m_silent.at(size_t(storeIndex)))
        return;
    m_silent[size_t(storeIndex)] = true;
    emit dataChanged(index(storeIndex, 0), index(storeIndex, ColumnCount - 1));
}

void ServerListModel::retranslate()
{
    ReportModel::retranslate();
    if (m_store.count() > 0)
        emit dataChanged(index(0, Country), index(m_store.count() - 1, Country), {Qt::DisplayRole});
}

void ServerListModel::marksChanged()
{
    if (m_store.count() > 0)
        emit dataChanged(index(0, 0), index(m_store.count() - 1, ColumnCount - 1), {RowMarks::Role});
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
        keys.texts.append(cellText(row, column).toCaseFolded());
    return keys;
}
