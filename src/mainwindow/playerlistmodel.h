// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/visiblelist.h"
#include "userdata/friends.h"
#include "widgets/reportmodel.h"

class ServerListModel;

// Every player of every answering server: the hidden full player list.
// Rows point into the server list's store (server and player index), so
// the raw names with colour codes and the server's address stay at hand.
class PlayerListModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlayerListModel)

public:
    enum Column { Name, Clan, Ping, Rate, ServerName, Map, Players, ServerPing, Password, Mod, GameType, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Player"), 140},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Clan"), 70},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Ping"), 45},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Rate"), 55},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server"), 180},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Map"), 90},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Players"), 60},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Svr Ping"), 60},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Pw"), 32},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Mod"), 100},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Game"), 60},
    }};

    struct Row {
        int server = 0;
        int player = 0;
        QString plainName;
        QString plainClan;
        QString rawName; // as the server sent it, to know the player again
        bool isFriend = false;
    };

    explicit PlayerListModel(const ServerListModel& servers, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void clear();
    // Appends the stored players of the servers from this store index on.
    void appendServersFrom(int firstServer);
    // These servers answered again: players still there keep their rows
    // (and their places in the views), a newcomer takes the row of one who
    // left the same server, and only what is left over is removed (in
    // contiguous runs) or appended (all at once). Each insertion or removal
    // costs the views a pass over every row, so a refresh of thousands of
    // servers makes as few as it can.
    void updateServers(const QList<int>& servers);

    // Marks the friends' rows; the server list asks friendsOn().
    void setFriends(const Friends::Matcher& friends);
    bool hasFriendOn(int server) const
    {
        return server >= 0 && size_t(server) < m_friendsOn.size() && m_friendsOn[size_t(server)] > 0;
    }

    const Row& row(int row) const { return m_rows.at(row); }
    SortKeys sortKeys(int column) const;

private:
    QList<Row> rowsOf(int server) const;
    Row rowOf(int server, int player) const;
    void count(const Row& row, int change);
    void appendRows(const QList<Row>& rows);
    void setRow(qsizetype at, const Row& row);

    const ServerListModel& m_servers;
    QList<Row> m_rows;
    Friends::Matcher m_friends;
    // Friends' rows per server, by store index.
    std::vector<int> m_friendsOn;
};
