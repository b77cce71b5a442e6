// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "editors/frmhistory.h"
#include "fleet.h"
#include "mainwindow/autorefresh.h"
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/querycontroller.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/serverlists.h"
#include "mainwindow/serverplayersmodel.h"
#include "mainwindow/slotwaiter.h"
#include "presentation/colourcodes.h"
#include "testports.h"
#include "testwindow.h"
#include "userdata/favourites.h"
#include "userdata/playhistory.h"
#include "widgets/reportmodel.h"

#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>

inline const quint16 StartPort = TestPorts::at(2000);
inline const quint16 MasterPort = TestPorts::at(1);
constexpr qint64 Minute = 60 * 1000;

inline SimReplies::Rules rules(const QByteArray& name, int maxPlayers)
{
    return {{"si_name", name}, {"si_map", "mp/q4dm1"}, {"si_maxplayers", QByteArray::number(maxPlayers)}};
}

inline QList<SimReplies::Player> players(const QList<QByteArray>& names)
{
    QList<SimReplies::Player> list;
    for (const QByteArray& name : names)
        list.append({quint8(list.size()), 50, 25000, name, {}});
    return list;
}

// The window of the friends and slot-wait tests: one that has listed a
// fleet of twelve; the first four are known:
// Alpha (room for more), Full (2 of 2), Gamma with the friend Bobby, Delta.
// Refreshes every 5 minutes; friends are Bob*.
struct Listed : RunningFleet, TestWindow {
    explicit Listed(const std::function<void(SettingsStore&)>& more = {})
        : RunningFleet(fleetOf(12, MasterPort))
        , TestWindow(MasterPort, StartPort, [&more](SettingsStore& settings) {
            settings.save(Keys::RefreshServers.key, QStringLiteral("0"));
            settings.save(Keys::CloseAfterJoin.key, QStringLiteral("0"));
            settings.save(Keys::Path.key, QStringLiteral("/opt/quake4/quake4.x86"));
            settings.save(Keys::AutoRefreshMinutes.key, QStringLiteral("5"));
            settings.set(Keys::Friends, QStringList{"Bob*"});
            if (more)
                more(settings);
        })
    {
        fleet.setServer(0, rules("^1Alpha", 8), players({"Zed", "Yan"}));
        fleet.setServer(1, rules("^2Full", 2), players({"One", "Two"}));
        fleet.setServer(2, rules("^3Gamma", 8), players({"^1Bob^7by"}));
        fleet.setServer(3, rules("^4Delta", 8), players({"Quiet"}));
        if (!queryMasters())
            qFatal("the query did not finish");
    }
    QString address(int server) const { return QStringLiteral("127.0.0.1:%1").arg(MasterPort + 1 + server); }
    ReportView* servers() const { return list("lstServerList"); }
    ReportView* playerList() const { return list("lstPlayerList"); }
    int rowOf(ReportView* view, int column, const QString& text) const
    {
        for (int row = 0; row < view->model()->rowCount(); ++row)
            if (view->model()->index(row, column).data().toString() == text)
                return row;
        return -1;
    }
    int serverRow(int server) const { return rowOf(servers(), ServerListModel::Address, address(server)); }
    int marks(ReportView* view, int row) const { return view->model()->index(row, 0).data(RowMarks::Role).toInt(); }
    QStringList addressesShown() const { return column("lstServerList", ServerListModel::Address); }
    void clickRow(ReportView* view, int row, Qt::MouseButton button = Qt::LeftButton) const
    {
        const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mousePress(view->viewport(), button, {}, at);
        QTest::mouseRelease(view->viewport(), button, {}, at);
        find<QMenu>("mPopupAlt")->hide();
    }
    void clickTab(int tab) const
    {
        auto* tabs = find<QTabBar>("tabSelect");
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
    }
    void doubleClickServer(int server) const
    {
        const int row = serverRow(server);
        clickRow(servers(), row);
        QTest::mouseDClick(servers()->viewport(), Qt::LeftButton, {},
                           servers()->visualRect(servers()->model()->index(row, 0)).center());
    }
    // Moves the clock on and waits (really, briefly) for the round it
    // started to hear back from the fleet.
    bool refreshRound() const
    {
        desktop.manualClock.advance(5 * Minute);
        if (!window->queries().isRefreshing())
            return false;
        return QTest::qWaitFor([this] { return !window->queries().isRefreshing(); }, 5000);
    }
    ScriptedDesktop& desktop = TestWindow::desktop;
};
