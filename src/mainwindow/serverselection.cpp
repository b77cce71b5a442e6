// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverselection.h"

#include "mainwindow/serverdetails.h"
#include "mainwindow/serverlists.h"
#include "presentation/colourcodes.h"
#include "presentation/multicolorlabel.h"

#include <QLabel>

ServerSelection::ServerSelection(const ServerLists& lists, ServerDetails& details, ShowPlayerName showPlayerName,
                                 QWidget* window)
    : QObject(window)
    , m_lists(lists)
    , m_details(details)
    , m_showPlayerName(std::move(showPlayerName))
    , lblSName(new QLabel(window))
    , mclSName(new MulticolorLabel(window))
{
    lblSName->setObjectName(QStringLiteral("lblSName"));
    mclSName->setObjectName(QStringLiteral("mclSName"));
}

void ServerSelection::showServer(int server)
{
    m_server = server;
    ShowServerName(m_lists.server(server).name);
    m_showPlayerName(QString());
    m_details.show(&m_lists.server(server));
}

void ServerSelection::showPlayer(int server, int player)
{
    const ServerRecord& record = m_lists.server(server);
    m_showPlayerName(record.players.at(player).name);
    ShowServerName(record.name);
}

void ServerSelection::refreshed(int server)
{
    if (server != m_server)
        return;
    ShowServerName(m_lists.server(server).name);
    m_details.show(&m_lists.server(server));
}

void ServerSelection::clearNames()
{
    ShowServerName(QString());
    m_showPlayerName(QString());
}

void ServerSelection::clear()
{
    m_server = -1;
    m_details.show(nullptr);
}

void ServerSelection::ShowServerName(const QString& name)
{
    mclSName->setColouredText(ColourCodes::ShowServerName(name));
    lblSName->setText(mclSName->caption().isEmpty() ? QString() : tr("Server Name:"));
}
