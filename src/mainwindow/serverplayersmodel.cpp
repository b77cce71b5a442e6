// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverplayersmodel.h"

#include "presentation/colourcodes.h"
#include "presentation/rowtones.h"

#include <algorithm>

ServerPlayersModel::ServerPlayersModel(QObject* parent)
    : ReportModel(ServerPlayersModel::Columns, parent)
{
}

int ServerPlayersModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ServerPlayersModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row& row = m_rows.at(index.row());
    if (role == RowMarks::ToneRole && index.column() == Ping)
        return int(RowTones::ofPing(row.player.ping));
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Number:
        return QString::number(row.player.clientNumber);
    case Name:
        return row.plainName;
    case Clan:
        return row.plainClan;
    case Ping:
        return QString::number(row.player.ping);
    case Rate:
        return QString::number(row.player.rate);
    default:
        return {};
    }
}

void ServerPlayersModel::setPlayers(const QList<PlayerRecord>& players)
{
    beginResetModel();
    m_rows.clear();
    for (const PlayerRecord& player : players)
        m_rows.append(
            Row{player, ColourCodes::StripColourCodes(player.name), ColourCodes::StripColourCodes(player.clan)});
    endResetModel();
}

void ServerPlayersModel::sort(int column, Qt::SortOrder order)
{
    const auto number = [column](const Row& row) -> qint64 {
        return column == Number ? row.player.clientNumber : column == Ping ? row.player.ping : row.player.rate;
    };
    const bool numeric = column == Number || column == Ping || column == Rate;
    emit layoutAboutToBeChanged();
    std::stable_sort(m_rows.begin(), m_rows.end(), [&](const Row& a, const Row& b) {
        if (numeric)
            return order == Qt::AscendingOrder ? number(a) < number(b) : number(a) > number(b);
        const QString& left = column == Name ? a.plainName : a.plainClan;
        const QString& right = column == Name ? b.plainName : b.plainClan;
        const int compared = left.compare(right, Qt::CaseInsensitive);
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    emit layoutChanged();
}
