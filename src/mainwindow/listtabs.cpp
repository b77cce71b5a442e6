// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/listtabs.h"

#include "mainwindow/listpane.h"
#include "mainwindow/serverdetails.h"
#include "mainwindow/serverlists.h"
#include "userdata/settingsstore.h"
#include "widgets/namedcontrol.h"
#include "widgets/reportview.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

ListTabs::ListTabs(SettingsStore& settings, ServerLists& lists, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , tabSelect(makeControl<QTabBar>(this, "tabSelect"))
    , chkHideEmpty(makeControl<QCheckBox>(this, "chkHideEmpty"))
    , chkHideFull(makeControl<QCheckBox>(this, "chkHideFull"))
    , rzrPSI(new QSplitter(Qt::Vertical, this))
{
    tabSelect->addTab(QString());
    tabSelect->addTab(QString());
    tabSelect->setExpanding(false);

    rzrPSI->setObjectName(QStringLiteral("rzrPSI"));
    rzrPSI->setChildrenCollapsible(false);
    m_servers = new ListPane(settings, Keys::ServerList, lists.servers(), lists.visibleServers(), lists.serverRows(),
                             QStringLiteral("lstServerList"), rzrPSI);
    m_details = new ServerDetails(settings, rzrPSI);
    rzrPSI->addWidget(m_servers);
    rzrPSI->addWidget(m_details);
    // The stored size is that of the first pane; when the window grows,
    // the extra height goes to the server list, not to the panes below.
    rzrPSI->setStretchFactor(0, 1);
    rzrPSI->setStretchFactor(1, 0);
    m_players = new ListPane(settings, Keys::PlayerList, lists.players(), lists.visiblePlayers(), lists.playerRows(),
                             QStringLiteral("lstPlayerList"), this);

    auto* views = new QVBoxLayout(this);
    views->setContentsMargins(0, 0, 0, 0);
    views->setSpacing(0);
    auto* top = new QHBoxLayout;
    top->setContentsMargins(0, 0, 0, 0);
    top->addWidget(tabSelect);
    top->addStretch();
    top->addWidget(chkHideEmpty);
    top->addWidget(chkHideFull);
    views->addLayout(top);
    views->addWidget(m_players, 1);
    views->addWidget(rzrPSI, 1);
    connect(tabSelect, &QTabBar::currentChanged, this, &ListTabs::showView);
    showView(tabSelect->currentIndex());

    // Ticked hides: the settings say what is listed, as the filters' boxes do.
    connect(chkHideEmpty, &QCheckBox::clicked, this,
            [this](bool hidden) { hideServers(chkHideEmpty, Keys::IncludeEmpty, hidden); });
    connect(chkHideFull, &QCheckBox::clicked, this,
            [this](bool hidden) { hideServers(chkHideFull, Keys::IncludeFull, hidden); });
    connect(&m_settings, &SettingsStore::changed, this, [this](const QString& key) {
        if (key == Keys::IncludeEmpty.key || key == Keys::IncludeFull.key)
            showHiding();
    });
    showHiding();
}

void ListTabs::hideServers(QCheckBox* box, const Keys::FlagSetting& listed, bool hidden)
{
    if (m_settings.set(listed, !hidden))
        return;
    // The filters follow the saved settings: unsaved, nothing changes, so
    // the box goes back to what is in force and says why.
    box->setChecked(!hidden);
    emit status(tr("The settings could not be saved, so the list stays as it was."), StatusTone::Failed);
}

void ListTabs::showHiding()
{
    chkHideEmpty->setChecked(!m_settings.value(Keys::IncludeEmpty));
    chkHideFull->setChecked(!m_settings.value(Keys::IncludeFull));
}

ListPane& ListTabs::shown() const
{
    return playersShown() ? *m_players : *m_servers;
}

bool ListTabs::playersShown() const
{
    return tabSelect->currentIndex() == PlayersTab;
}

void ListTabs::showServers()
{
    tabSelect->setCurrentIndex(ServersTab);
}

void ListTabs::retranslate()
{
    tabSelect->setTabText(PlayersTab, tr("Players"));
    tabSelect->setTabText(ServersTab, tr("Servers"));
    chkHideEmpty->setText(tr("Hide empty"));
    chkHideEmpty->setToolTip(tr("Servers without players are not listed (the filters' \"Empty\" box)"));
    chkHideFull->setText(tr("Hide full"));
    chkHideFull->setToolTip(tr("Full servers are not listed (the filters' \"Full\" box)"));
    m_servers->view()->setAccessibleName(tr("Servers"));
    m_players->view()->setAccessibleName(tr("Players"));
    m_details->retranslate();
}

void ListTabs::showView(int tab)
{
    const bool players = tab == PlayersTab;
    m_players->setVisible(players);
    // The panes go with rzrPSI: hiding them on their own would make the
    // splitter hand their height to the server list.
    rzrPSI->setVisible(!players);
    emit shownChanged(players);
}
