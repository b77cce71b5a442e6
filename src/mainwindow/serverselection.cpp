// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverselection.h"

#include "mainwindow/joinflow.h"
#include "mainwindow/mapcheck.h"
#include "mainwindow/serverdetails.h"
#include "mainwindow/serverlists.h"
#include "presentation/colourcodes.h"
#include "presentation/countries.h"
#include "presentation/multicolorlabel.h"

#include <QHBoxLayout>
#include <QLabel>

ServerSelection::ServerSelection(const ServerLists& lists, ServerDetails& details, ShowPlayerName showPlayerName,
                                 QWidget* parent)
    : QWidget(parent)
    , m_lists(lists)
    , m_details(details)
    , m_showPlayerName(std::move(showPlayerName))
    , lblSName(new QLabel(this))
    , mclSName(new MulticolorLabel(this))
    , lblSFlag(new QLabel(this))
{
    lblSName->setObjectName(QStringLiteral("lblSName"));
    mclSName->setObjectName(QStringLiteral("mclSName"));
    lblSFlag->setObjectName(QStringLiteral("lblSFlag"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(lblSName);
    row->addWidget(lblSFlag);
    row->addWidget(mclSName, 1);
}

void ServerSelection::showFlag(const ServerRecord* server)
{
    const bool placed = server && m_countries && !server->country.isEmpty();
    lblSFlag->setPixmap(placed ? m_countries->flag(server->country).pixmap(16, 11) : QPixmap());
    lblSFlag->setToolTip(placed ? m_countries->name(server->country) : QString());
    lblSFlag->setVisible(placed);
}

void ServerSelection::showServer(int server)
{
    m_server = server;
    ShowServerName(m_lists.server(server).name);
    showFlag(&m_lists.server(server));
    m_showPlayerName(QString());
    m_details.showServer(&m_lists.server(server));
}

void ServerSelection::showPlayer(int server, int player)
{
    const ServerRecord& record = m_lists.server(server);
    m_showPlayerName(record.players.at(player).name);
    ShowServerName(record.name);
    showFlag(&record);
}

void ServerSelection::followMapCheck(JoinFlow& flow)
{
    m_details.setMapState([&flow](const ServerRecord& server) { return flow.mapState(server); });
    connect(&flow, &JoinFlow::mapStateChanged, this, [this] { refreshed(m_server); });
}

void ServerSelection::refreshed(int server)
{
    if (server != m_server || server < 0)
        return;
    ShowServerName(m_lists.server(server).name);
    showFlag(&m_lists.server(server));
    m_details.showServer(&m_lists.server(server));
}

void ServerSelection::clearNames()
{
    ShowServerName(QString());
    showFlag(nullptr);
    m_showPlayerName(QString());
}

void ServerSelection::clear()
{
    clearNames();
    m_server = -1;
    m_details.showServer(nullptr);
}

void ServerSelection::ShowServerName(const QString& name)
{
    mclSName->setColouredText(ColourCodes::ShowServerName(name));
    retranslate();
}

void ServerSelection::retranslate()
{
    lblSName->setText(mclSName->caption().isEmpty() ? QString() : tr("Server Name:"));
}
