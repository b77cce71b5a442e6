// SPDX-License-Identifier: GPL-2.0-or-later
#include "friendsfleet.h"

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
        QCOMPARE(w.settings().value(Keys::Friends), (QStringList{"Bob*", "Zed"}));
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
};

QTEST_MAIN(TestFrmMainFriends)
#include "tst_frmmain_friends.moc"
