// SPDX-License-Identifier: GPL-2.0-or-later
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

namespace {

const quint16 StartPort = TestPorts::at(2000);
const quint16 MasterPort = TestPorts::at(1);
constexpr qint64 Minute = 60 * 1000;

SimReplies::Rules rules(const QByteArray& name, int maxPlayers)
{
    return {{"si_name", name}, {"si_map", "q4dm1"}, {"si_maxplayers", QByteArray::number(maxPlayers)}};
}

QList<SimReplies::Player> players(const QList<QByteArray>& names)
{
    QList<SimReplies::Player> list;
    for (const QByteArray& name : names)
        list.append({quint8(list.size()), 50, 25000, name, {}});
    return list;
}

// A window that has listed a fleet of twelve; the first four are known:
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
            settings.set(Keys::Friends, QStringList{QStringLiteral("Bob*")});
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
    QStringList addressesShown() const
    {
        QStringList shown;
        for (int row = 0; row < servers()->model()->rowCount(); ++row)
            shown.append(servers()->model()->index(row, ServerListModel::Address).data().toString());
        return shown;
    }
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

} // namespace

class TestFrmMainFriends final : public QObject {
    Q_OBJECT

private slots:
    void friendsAreMarkedAddedAndFound()
    {
        Listed w;
        const int gamma = w.serverRow(2);
        QCOMPARE(w.marks(w.servers(), gamma), int(RowMarks::Friend));
        QCOMPARE(w.marks(w.servers(), w.serverRow(0)), 0);
        const int bobby = w.rowOf(w.playerList(), PlayerListModel::Name, QStringLiteral("Bobby"));
        QVERIFY(bobby >= 0);
        QCOMPARE(w.marks(w.playerList(), bobby), int(RowMarks::Friend));

        // Add Zed from the player list's menu: his row and Alpha are marked.
        w.clickTab(FrmMain::PlayersTab);
        const int zed = w.rowOf(w.playerList(), PlayerListModel::Name, QStringLiteral("Zed"));
        w.clickRow(w.playerList(), zed, Qt::RightButton);
        auto* add = w.find<QMenu>("mPopupAlt")->findChild<QAction*>(QStringLiteral("mPopAddFriend"));
        QVERIFY(add->isVisible());
        add->trigger();
        QCOMPARE(w.settings().value(Keys::Friends), (QStringList{QStringLiteral("Bob*"), QStringLiteral("Zed")}));
        QCOMPARE(w.marks(w.playerList(), zed), int(RowMarks::Friend));
        QCOMPARE(w.marks(w.servers(), w.serverRow(0)), int(RowMarks::Friend));
        QCOMPARE(w.status(), QStringLiteral("Zed was added to your friends."));
        add->trigger();
        QCOMPARE(w.status(), QStringLiteral("Zed is one of your friends already."));
        QCOMPARE(w.settings().value(Keys::Friends).size(), 2);

        // Next Friend goes from one friend to the other and round again.
        QStringList found;
        for (int i = 0; i < 3; ++i) {
            QTest::mouseClick(w.find<QToolButton>("cmdFindFriend"), Qt::LeftButton);
            found.append(w.playerList()->currentIndex().siblingAtColumn(PlayerListModel::Name).data().toString());
        }
        QCOMPARE(found.at(0) == found.at(2), true);
        QCOMPARE(QSet<QString>(found.cbegin(), found.cend()), (QSet<QString>{"Bobby", "Zed"}));

        // Without friends, the button says how to get some.
        w.settings().set(Keys::Friends, QStringList{});
        QCOMPARE(w.marks(w.playerList(), zed), 0);
        QTest::mouseClick(w.find<QToolButton>("cmdFindFriend"), Qt::LeftButton);
        QCOMPARE(w.status(), QStringLiteral("No friends yet: right-click a player and choose \"Add To Friends\"."));

        // The selected server's players pane has the same entry.
        w.clickTab(FrmMain::ServersTab);
        w.clickRow(w.servers(), w.serverRow(0), Qt::LeftButton);
        auto* pane = w.window->findChild<ReportView*>(QStringLiteral("lvwPlayers"));
        QVERIFY(pane->model()->rowCount() > 0);
        w.clickRow(pane, 0, Qt::RightButton);
        const QString first = pane->model()->index(0, ServerPlayersModel::Name).data().toString();
        w.window->findChild<QAction*>(QStringLiteral("mPopAddFriendP"))->trigger();
        QVERIFY(w.status().startsWith(ColourCodes::StripColourCodes(first)));
    }

    // Players come and go on the fleet; a friend appears; a server dies.
    // The rows change where they are and the user is told.
    void aRefreshUpdatesInPlaceAndTellsOfAFriend()
    {
        Listed w;
        QVERIFY(w.desktop.notifying);
        // Sorted by name, scrolled and with Delta selected, as a user leaves it.
        QTest::mouseClick(w.servers()->header()->viewport(), Qt::LeftButton, {},
                          QPoint(w.servers()->header()->sectionViewportPosition(0) + 5, 5));
        w.clickRow(w.servers(), w.serverRow(3));
        const QStringList order = w.addressesShown();
        const int scroll = w.servers()->verticalScrollBar()->value();

        for (int step = 0; step < 5; ++step)
            w.fleet.churn();
        w.fleet.setServer(0, rules("^1Alpha", 8), players({"Zed", "Yan", "Bob Two"}));
        w.fleet.setServer(3, rules("^4Delta renamed", 8), players({"Quiet", "Loud"}));
        w.fleet.setSilent(5, true);
        QVERIFY(w.refreshRound());

        QCOMPARE(w.addressesShown(), order);
        QCOMPARE(w.servers()->verticalScrollBar()->value(), scroll);
        QCOMPARE(w.servers()->currentIndex().siblingAtColumn(ServerListModel::Address).data().toString(), w.address(3));
        QCOMPARE(w.servers()->model()->index(w.serverRow(3), ServerListModel::Name).data().toString(),
                 QStringLiteral("Delta renamed"));
        QCOMPARE(w.find<QLabel>("lblServers")->text(), QStringLiteral("12 servers found"));
        // The selected server's panes follow its new answer.
        QCOMPARE(w.list("lvwPlayers")->model()->rowCount(), 2);
        const int silent = w.serverRow(5);
        QCOMPARE(w.marks(w.servers(), silent), int(RowMarks::Silent));
        QVERIFY(w.servers()->model()->index(silent, 0).data(Qt::ToolTipRole).toString().contains("last seen"));
        QCOMPARE(w.status(),
                 QStringLiteral("Refreshed at %1\n11 of 12 servers answered")
                     .arg(QLocale().toString(QDateTime::fromMSecsSinceEpoch(w.desktop.manualClock.nowMs()).time(),
                                             QLocale::ShortFormat)));

        // The player list holds exactly the players the fleet has now.
        int fleetPlayers = 0;
        for (int i = 0; i < w.fleet.servers().size(); ++i)
            fleetPlayers += int(w.fleet.servers().at(i).players.size());
        // (the silent server keeps its last players, which the fleet has too)
        QCOMPARE(w.window->lists().players().rowCount(), fleetPlayers);

        QCOMPARE(w.desktop.notifications.size(), 1);
        QCOMPARE(w.desktop.notifications.first().text, QStringLiteral("Bob Two is playing on Alpha"));
        // Nothing new, nothing said; the silent server answers again.
        w.fleet.setSilent(5, false);
        QVERIFY(w.refreshRound());
        QCOMPARE(w.desktop.notifications.size(), 1);
        QCOMPARE(w.marks(w.servers(), w.serverRow(5)), 0);

        // The notification's click shows the server.
        w.clickTab(FrmMain::PlayersTab);
        w.desktop.notifications.first().clicked();
        QCOMPARE(w.window->findChild<QTabBar*>(QStringLiteral("tabSelect"))->currentIndex(), int(FrmMain::ServersTab));
        QCOMPARE(w.servers()->currentIndex().siblingAtColumn(ServerListModel::Address).data().toString(), w.address(0));

        // Off again: no tray icon, no more rounds.
        w.settings().set(Keys::AutoRefreshMinutes, 0);
        QVERIFY(!w.desktop.notifying);
        QCOMPARE(w.desktop.manualClock.activeAlarms(), 0);
    }

    void aFavouriteFillingUpIsTold()
    {
        Listed w([](SettingsStore& settings) { settings.set(Keys::NotifyPlayerCount, 4); });
        QVERIFY(Favourites::appendToFile(w.dataFile(QStringLiteral("favourites.dat")), w.address(0), {}, "Alpha"));
        w.fleet.setServer(0, rules("^1Alpha", 8), players({"a", "b", "c", "d"}));
        QVERIFY(w.refreshRound());
        QCOMPARE(w.desktop.notifications.size(), 1);
        QCOMPARE(w.desktop.notifications.first().text, QStringLiteral("Alpha has 4 players"));

        // Without a tray the news goes to the status line instead.
        w.desktop.notificationsShown = false;
        w.fleet.setServer(0, rules("^1Alpha", 8), players({"a"}));
        QVERIFY(w.refreshRound());
        w.fleet.setServer(0, rules("^1Alpha", 8), players({"a", "b", "c", "d", "e"}));
        QVERIFY(w.refreshRound());
        QCOMPARE(w.desktop.notifications.size(), 2);
        QCOMPARE(w.status(), QStringLiteral("Alpha has 5 players"));

        // Many at once: a few lines and how many more.
        w.desktop.notificationsShown = true;
        for (int server = 6; server < 9; ++server)
            w.fleet.setServer(server, rules("^5Busy " + QByteArray::number(server), 8),
                              players({"Bob" + QByteArray::number(server), "Bobo" + QByteArray::number(server)}));
        QVERIFY(w.refreshRound());
        QCOMPARE(w.desktop.notifications.size(), 3);
        const QStringList lines = w.desktop.notifications.last().text.split(QLatin1Char('\n'));
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines.first().contains(QStringLiteral(" is playing on Busy ")));
        QCOMPARE(lines.last(), QStringLiteral("and 3 more"));
    }

    // The user starts a query while a round runs: the query wins.
    void aQueryEndsARound()
    {
        Listed w;
        w.fleet.setSilent(0, true); // the round cannot end by itself at once
        w.desktop.manualClock.advance(5 * Minute);
        QVERIFY(w.window->queries().isRefreshing());
        QVERIFY(w.queryMasters());
        QVERIFY(!w.window->queries().isRefreshing());
        QCOMPARE(w.window->lists().serverCount(), 11);
    }

    // Full: the user waits, the server is asked every 5 s, a slot frees,
    // the game starts, and the server is in Recently Played.
    void aSlotFreesAndTheJoinRuns()
    {
        Listed w;
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QCOMPARE(w.desktop.messages.last().text,
                 QStringLiteral("Full is full.\nWait for a free slot and join as soon as one opens?"));
        // The buttons say what they do.
        QCOMPARE(w.desktop.messages.last().buttonTexts,
                 (Desktop::ButtonTexts{{QMessageBox::Yes, QStringLiteral("Wait for a Slot")},
                                       {QMessageBox::No, QStringLiteral("Join Anyway")}}));
        QVERIFY(w.window->slotWaiter().isWaiting());
        QVERIFY(w.button("cmdStopWaiting")->isVisible());
        QVERIFY(w.status().startsWith(QLatin1String("Full is full (2/2): waiting")));
        QVERIFY(w.desktop.starts.isEmpty());

        const int asked = w.fleet.servers().at(1).requests;
        w.desktop.manualClock.advance(SlotWait::IntervalMs);
        QVERIFY(QTest::qWaitFor([&] { return w.fleet.servers().at(1).requests == asked + 1; }, 3000));
        QTest::qWait(100); // its answer: still full
        QVERIFY(w.desktop.starts.isEmpty());

        w.fleet.setServer(1, rules("^2Full", 2), players({"One"}));
        w.desktop.manualClock.advance(SlotWait::IntervalMs);
        QVERIFY(QTest::qWaitFor([&] { return !w.desktop.starts.isEmpty(); }, 3000));
        QCOMPARE(w.desktop.starts.first().arguments.join(' '), QStringLiteral("+connect ") + w.address(1));
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QVERIFY(!w.button("cmdStopWaiting")->isVisible());
        QCOMPARE(w.fleet.servers().at(1).requests, asked + 2); // one request a round, never more

        const PlayHistory::List history = PlayHistory::readFile(w.dataFile(QStringLiteral("history.dat")));
        QCOMPARE(history.size(), 1);
        QCOMPARE(history.first().endpointText(), w.address(1));
        QCOMPARE(history.first().name, QStringLiteral("Full"));
        QCOMPARE(history.first().joinedAt, w.desktop.manualClock.nowMs() / 1000);

        // Found again in Recently Played, and queried from there. An older
        // entry is of a server that no longer answers.
        PlayHistory::List older = history;
        older.append({QStringLiteral("127.0.0.1"), 9, QStringLiteral("Gone"), history.first().joinedAt - 60});
        QVERIFY(PlayHistory::writeFile(w.dataFile(QStringLiteral("history.dat")), older));
        QTest::mouseClick(w.button("cmdRecent"), Qt::LeftButton);
        auto* recent = w.window->findChild<FrmHistory*>(QStringLiteral("frmHistory"));
        QVERIFY(recent && recent->isVisible());
        auto* rows = recent->findChild<ReportView*>(QStringLiteral("lstHistory"));
        QCOMPARE(rows->model()->index(0, HistoryModel::Name).data().toString(), QStringLiteral("Full"));
        QCOMPARE(rows->model()->index(0, HistoryModel::Address).data().toString(), w.address(1));
        QTest::mouseClick(recent->findChild<QPushButton*>(QStringLiteral("cmdQueryHistory")), Qt::LeftButton);
        QVERIFY(QTest::qWaitFor([&] { return w.status() == QLatin1String("Done"); }, 5000));
        QCOMPARE(w.addressesShown(), QStringList{w.address(1)});

        // A double click on a listed server shows it in the Servers view;
        // Enter on one that is not listed says how to find it.
        w.clickTab(FrmMain::PlayersTab);
        const QPoint full = rows->visualRect(rows->model()->index(0, 0)).center();
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, full);
        QTest::mouseDClick(rows->viewport(), Qt::LeftButton, {}, full);
        QCOMPARE(w.window->findChild<QTabBar*>(QStringLiteral("tabSelect"))->currentIndex(), int(FrmMain::ServersTab));
        QCOMPARE(w.servers()->currentIndex().siblingAtColumn(ServerListModel::Address).data().toString(), w.address(1));
        rows->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(recent->isVisible());
        QCOMPARE(recent->findChild<QLabel*>(QStringLiteral("lblEmpty"))->text(),
                 QStringLiteral("Gone is not listed now: \"Query Recently Played\" asks every server you played on."));
    }

    void waitingEnds()
    {
        Listed w;
        // Stop Waiting.
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        QTest::mouseClick(w.button("cmdStopWaiting"), Qt::LeftButton);
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.status(), QStringLiteral("Stopped waiting for a free slot."));
        QCOMPARE(w.desktop.manualClock.activeAlarms(), 1); // the refresh's only

        // Joining another server.
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.doubleClickServer(0);
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.desktop.starts.size(), 1);
        QCOMPARE(w.desktop.starts.last().arguments.last(), w.address(0));

        // Half an hour of a silent server.
        w.fleet.setSilent(1, true);
        w.settings().set(Keys::AutoRefreshMinutes, 0);
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        w.desktop.manualClock.advance(SlotWait::MaxWaitMs - SlotWait::IntervalMs);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.desktop.manualClock.advance(SlotWait::IntervalMs);
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.status(), QStringLiteral("No slot came free on Full in 30 minutes: stopped waiting."));
        QCOMPARE(w.desktop.starts.size(), 1);

        // No: the documented join, at once. Cancel: nothing.
        w.desktop.messageAnswers.enqueue(QMessageBox::No);
        w.doubleClickServer(1);
        QCOMPARE(w.desktop.starts.size(), 2);
        w.desktop.messageAnswers.enqueue(QMessageBox::Cancel);
        w.doubleClickServer(1);
        QCOMPARE(w.desktop.starts.size(), 2);
        QVERIFY(!w.window->slotWaiter().isWaiting());

        // A query the user runs meanwhile answers for the awaited server.
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.fleet.setSilent(1, false);
        w.fleet.setServer(1, rules("^2Full", 2), players({"One"}));
        QVERIFY(w.queryMasters());
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.desktop.starts.size(), 3);
        QCOMPARE(w.desktop.starts.last().arguments.last(), w.address(1));
        w.fleet.setServer(1, rules("^2Full", 2), players({"One", "Two"}));
        QVERIFY(w.queryMasters());

        // Closing the program ends it too (the waiter goes with the window).
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.window.reset();
        QCOMPARE(w.desktop.manualClock.activeAlarms(), 0);
    }

    void theOfferCanBeTurnedOff()
    {
        Listed w([](SettingsStore& settings) { settings.set(Keys::OfferSlotWait, false); });
        w.doubleClickServer(1);
        QVERIFY(w.desktop.messages.isEmpty());
        QCOMPARE(w.desktop.starts.size(), 1);
        QCOMPARE(w.desktop.unexpectedCalls, 0);
    }
};

QTEST_MAIN(TestFrmMainFriends)
#include "tst_frmmain_friends.moc"
