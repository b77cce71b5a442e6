// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/alerts.h"
#include "mainwindow/listpane.h"
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/servervisibility.h"
#include "mainwindow/visiblelist.h"
#include "query/records.h"
#include "userdata/filters.h"
#include "userdata/friends.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QSet>

// The answers of one query: the hidden full server and player lists, and
// the visible lists over them that hold what passes the filters. A player
// row is visible exactly when its server's row is.
class ServerLists final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerLists)

public:
    explicit ServerLists(QObject* parent = nullptr);

    ServerListModel& servers() { return m_servers; }
    const ServerListModel& servers() const { return m_servers; }
    PlayerListModel& players() { return m_players; }
    const PlayerListModel& players() const { return m_players; }
    VisibleList& visibleServers() { return m_visibleServers; }
    const VisibleList& visibleServers() const { return m_visibleServers; }
    VisibleList& visiblePlayers() { return m_visiblePlayers; }
    const VisibleList& visiblePlayers() const { return m_visiblePlayers; }
    const ServerRecord& server(int storeIndex) const { return m_servers.record(storeIndex); }
    int serverCount() const { return m_servers.store().count(); }

    // What the rows of each hidden list stand for, for its list pane.
    ListPane::Rows serverRows() const;
    ListPane::Rows playerRows() const;

    // When rows were last seen (the window's clock).
    void setClock(std::function<qint64()> nowMs) { m_nowMs = std::move(nowMs); }

    void clear();
    // The column captions follow the interface language.
    void retranslate();
    void append(const QList<ServerRecord>& batch);
    // A listed server answered again: its rows take the new answer where
    // they are, so order, selection and scroll position stay; whether it
    // passes the filters is asked again at the next rebuild. Its store
    // index, or -1 when not listed.
    int replace(const ServerRecord& server);
    // The same for a batch of answers (a refresh round): their store
    // indexes, -1 for a server not listed.
    QList<int> replace(const QList<ServerRecord>& batch);
    // The servers that did not answer a refresh stay listed, greyed.
    void markSilent(const QList<int>& storeIndexes);

    void setFriends(const QStringList& entries);
    const Friends::Matcher& friends() const { return m_friends; }
    // The favourites' "address:port": their rows carry a heart.
    void setFavourites(const QSet<QString>& endpoints);
    // Reads the favourites file now and again whenever its folder changes
    // (the menu, the editor, another window of the program wrote it).
    void followFavourites(const QString& path);
    // Every friend listed on a server now.
    QList<Alerts::Sighting> sightings() const;
    // The players on these servers ("address:port") now.
    Alerts::Counts counts(const QSet<QString>& addresses) const;
    // New filters; the caller rebuilds the visible lists.
    void setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn);

private:
    std::function<qint64()> m_nowMs;
    Friends::Matcher m_friends;
    QSet<QString> m_favourites;
    QFileSystemWatcher* m_favouritesFolder = nullptr;
    ServerListModel m_servers;
    PlayerListModel m_players{m_servers};
    ServerVisibility m_visibility{m_servers.store()};
    VisibleList m_visibleServers;
    VisibleList m_visiblePlayers;
};
