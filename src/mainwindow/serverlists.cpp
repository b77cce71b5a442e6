#include "serverlists.h"

ServerLists::ServerLists(QObject* parent)
    : QObject(parent)
    , m_visibleServers([this](int row) { return m_visibility.isVisible(row); },
                       [this](int column) { return m_servers.sortKeys(column); })
    , m_visiblePlayers([this](int row) { return m_visibility.isVisible(m_players.row(row).server); },
                       [this](int column) { return m_players.sortKeys(column); })
{
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
    m_players.appendServersFrom(m_servers.append(batch));
}

int ServerLists::replace(const ServerRecord& server)
{
    const int index = m_servers.store().indexOf(server.address, server.port);
    if (index < 0)
        return -1;
    m_servers.replace(index, server);
    m_players.replaceServer(index);
    m_visibility.forget(index);
    m_visibleServers.refilter();
    m_visiblePlayers.refilter();
    return index;
}

void ServerLists::setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn)
{
    m_visibility.setRules(filters, builtIn);
}
