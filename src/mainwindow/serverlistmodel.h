// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/visiblelist.h"
#include "query/records.h"
#include "widgets/reportmodel.h"

#include <functional>

class Countries;

// Every server that answered, in answer order: the hidden full server
// list. The visible list is a proxy over it. Each row refers to its record
// in the per-server store by the store's index.
class ServerListModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerListModel)

public:
    enum Column { Name, Map, Players, Ping, Password, GameType, GameName, Address, Country, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server"), 190},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Map"), 105},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Players"), 52},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Ping"), 38},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Pw"), 28},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Type"), 78},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Game"), 95},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server IP Address"), 133},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Country"), 110, true},
    }};

    explicit ServerListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void clear();
    // Appends the servers as new rows, seen at nowMs; returns the store
    // index of the first.
    int append(const QList<ServerRecord>& servers, qint64 nowMs = 0);
    // Puts a new answer of a listed server in place of its old one.
    void replace(int storeIndex, const ServerRecord& server, qint64 nowMs = 0);
    // The server did not answer a refresh: its row stays, greyed, with the
    // time it was last seen.
    void setSilent(int storeIndex);
    bool isSilent(int storeIndex) const { return m_silent.at(size_t(storeIndex)); }
    qint64 lastSeenMs(int storeIndex) const { return m_lastSeen.at(size_t(storeIndex)); }
    // Whether a friend plays on a server (the player list knows).
    void setFriendLookup(std::function<bool(int storeIndex)> hasFriend) { m_hasFriend = std::move(hasFriend); }
    // Whether a server is one of the user's favourites.
    void setFavouriteLookup(std::function<bool(int storeIndex)> isFavourite) { m_isFavourite = std::move(isFavourite); }
    // Flags before the names, the country's name in the tooltip.
    void setCountries(const Countries* countries) { m_countries = countries; }
    // The friends or the favourites changed: every row's mark may have.
    void marksChanged();
    // The captions and the countries' names follow the interface language.
    void retranslate();

    const ServerStore& store() const { return m_store; }
    const ServerRecord& record(int row) const { return m_store.at(row); }
    // The server name as the lists show it (colour codes removed).
    const QString& plainName(int row) const { return m_plainNames.at(row); }

    SortKeys sortKeys(int column) const;

private:
    QString cellText(int row, int column) const;

    ServerStore m_store;
    const Countries* m_countries = nullptr;
    QStringList m_plainNames;
    std::vector<qint64> m_lastSeen;
    std::vector<bool> m_silent;
    std::function<bool(int)> m_hasFriend;
    std::function<bool(int)> m_isFavourite;
};
