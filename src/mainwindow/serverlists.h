#pragma once

#include "filters.h"
#include "listpane.h"
#include "playerlistmodel.h"
#include "records.h"
#include "serverlistmodel.h"
#include "visiblelists.h"

#include <QObject>

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

    void clear();
    void append(const QList<ServerRecord>& batch);
    // A listed server answered again: its rows take the new answer and
    // pass the filters anew. Its store index, or -1 when not listed.
    int replace(const ServerRecord& server);
    // New filters; the caller rebuilds the visible lists.
    void setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn);

private:
    ServerListModel m_servers;
    PlayerListModel m_players{m_servers};
    ServerVisibility m_visibility{m_servers.store()};
    VisibleList m_visibleServers;
    VisibleList m_visiblePlayers;
};
