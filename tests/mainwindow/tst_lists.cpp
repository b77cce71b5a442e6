// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/serverplayersmodel.h"
#include "mainwindow/serverrulesmodel.h"
#include "mainwindow/servervisibility.h"
#include "mainwindow/visiblelist.h"

#include <QAbstractItemModelTester>
#include <QTest>

namespace {

ServerRecord server(const char* name, int ping, int players, int maxPlayers, QList<int> playerPings = {})
{
    ServerRecord record;
    record.name = QString::fromLatin1(name);
    record.address = QStringLiteral("10.0.0.1");
    record.port = 27000 + ping;
    record.ping = ping;
    record.playerCount = qint16(players);
    record.maxPlayers = qint16(maxPlayers);
    record.tokens = {"si_name", record.name};
    for (int p : playerPings)
        record.players.append(PlayerRecord{QString(), "^1p" + QString::number(p), 0, 25000, p});
    return record;
}

// The hidden lists with their visible proxies, all under the model tester.
struct Lists {
    ServerListModel servers;
    PlayerListModel players{servers};
    ServerVisibility visibility{servers.store()};
    VisibleList visibleServers{[this](int row) { return visibility.isVisible(row); },
                               [this](int column) { return servers.sortKeys(column); }};
    VisibleList visiblePlayers{[this](int row) { return visibility.isVisible(players.row(row).server); },
                               [this](int column) { return players.sortKeys(column); }};
    QAbstractItemModelTester testers[4]{
        QAbstractItemModelTester(&servers, QAbstractItemModelTester::FailureReportingMode::QtTest),
        QAbstractItemModelTester(&players, QAbstractItemModelTester::FailureReportingMode::QtTest),
        QAbstractItemModelTester(&visibleServers, QAbstractItemModelTester::FailureReportingMode::QtTest),
        QAbstractItemModelTester(&visiblePlayers, QAbstractItemModelTester::FailureReportingMode::QtTest)};

    Lists()
    {
        visibleServers.setSourceModel(&servers);
        visiblePlayers.setSourceModel(&players);
    }
    void add(const QList<ServerRecord>& records) { players.appendServersFrom(servers.append(records)); }
    QStringList column(const QAbstractItemModel& model, int column) const
    {
        QStringList cells;
        for (int row = 0; row < model.rowCount(); ++row)
            cells.append(model.index(row, column).data().toString());
        return cells;
    }
};

} // namespace

class TestLists final : public QObject {
    Q_OBJECT

private slots:
    // A refresh changes the rows where they stand; only the players that
    // really left or came cost rows (under the model testers).
    void aRefreshUpdatesPlayerRowsInPlace()
    {
        Lists lists;
        const auto named = [](ServerRecord record, const QStringList& names) {
            record.players.clear();
            for (const QString& name : names)
                record.players.append(PlayerRecord{QString(), name, 0, 25000, 10});
            return record;
        };
        const ServerRecord a = server("a", 1, 0, 16);
        const ServerRecord b = server("b", 2, 0, 16);
        lists.add({named(a, {"Ann", "Bo", "Cy", "Cy"}), named(b, {"Xe", "Yu"})});
        lists.players.setFriends(Friends::Matcher({"Bo", "Neo"}));
        lists.visiblePlayers.sortBy(PlayerListModel::Name, Qt::DescendingOrder);
        QVERIFY(lists.players.hasFriendOn(0));
        const QPersistentModelIndex yu = lists.visiblePlayers.index(0, 0);
        QCOMPARE(yu.data().toString(), QStringLiteral("Yu"));

        // a: Bo leaves, one Cy leaves, Neo comes (takes a row that was left);
        // b: Xe and Yu stay, Zo comes (appended).
        lists.servers.replace(0, named(a, {"Cy", "Ann", "Neo"}), 0);
        lists.servers.replace(1, named(b, {"Yu", "Xe", "Zo"}), 0);
        lists.players.updateServers({0, 1});
        QCOMPARE(lists.column(lists.players, PlayerListModel::Name),
                 (QStringList{"Ann", "Neo", "Cy", "Xe", "Yu", "Zo"}));
        // The rows stay where the sort put them: Neo where Bo was, the
        // second Cy gone, the newcomer last.
        QCOMPARE(lists.column(lists.visiblePlayers, PlayerListModel::Name),
                 (QStringList{"Yu", "Xe", "Cy", "Neo", "Ann", "Zo"}));
        QCOMPARE(yu.row(), 0);
        QVERIFY(lists.players.hasFriendOn(0)); // Neo now, not Bo
        QVERIFY(!lists.players.hasFriendOn(1));

        // Everybody leaves a: its rows go, in one run.
        lists.servers.replace(0, named(a, {}), 0);
        lists.players.updateServers({0});
        QCOMPARE(lists.column(lists.players, PlayerListModel::Name), (QStringList{"Xe", "Yu", "Zo"}));
        QVERIFY(!lists.players.hasFriendOn(0));
    }

    void numericColumnsSortAsNumbers()
    {
        Lists lists;
        lists.add({server("a", 45, 10, 16), server("b", 5, 2, 8), server("c", 120, 2, 16)});
        lists.visibleServers.sortBy(ServerListModel::Ping, Qt::AscendingOrder);
        QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Ping), (QStringList{"5", "45", "120"}));
        lists.visibleServers.sortBy(ServerListModel::Players, Qt::AscendingOrder);
        QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Players), (QStringList{"2/8", "2/16", "10/16"}));
        lists.visibleServers.sortBy(ServerListModel::Players, Qt::DescendingOrder);
        QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Players), (QStringList{"10/16", "2/16", "2/8"}));
    }

    void playerColumnsSortAsNumbersAndTextIgnoresCase()
    {
        Lists lists;
        lists.add({server("^1Zed", 10, 1, 8, {100}), server("alpha", 9, 2, 8, {7, 30})});
        lists.visiblePlayers.sortBy(PlayerListModel::ServerPing, Qt::AscendingOrder);
        QCOMPARE(lists.column(lists.visiblePlayers, PlayerListModel::ServerPing), (QStringList{"9", "9", "10"}));
        lists.visiblePlayers.sortBy(PlayerListModel::Ping, Qt::DescendingOrder);
        QCOMPARE(lists.column(lists.visiblePlayers, PlayerListModel::Ping), (QStringList{"100", "30", "7"}));
        lists.visiblePlayers.sortBy(PlayerListModel::ServerName, Qt::AscendingOrder);
        QCOMPARE(lists.column(lists.visiblePlayers, PlayerListModel::ServerName),
                 (QStringList{"alpha", "alpha", "Zed"}));
    }

    void equalRowsKeepAnswerOrderBothWays()
    {
        Lists lists;
        lists.add({server("x", 50, 1, 8), server("y", 50, 1, 8), server("z", 50, 1, 8)});
        for (Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            lists.visibleServers.sortBy(ServerListModel::Ping, order);
            QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Name), (QStringList{"x", "y", "z"}));
        }
    }

    void rowsAddedAfterASortAreAppended()
    {
        Lists lists;
        lists.add({server("b", 20, 1, 8), server("a", 10, 1, 8)});
        lists.visibleServers.sortBy(ServerListModel::Ping, Qt::AscendingOrder);
        lists.add({server("c", 5, 1, 8)});
        QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Name), (QStringList{"a", "b", "c"}));
    }

    void playersFollowTheirServersVisibility()
    {
        Lists lists;
        lists.add({server("keep", 10, 2, 8, {10, 20}), server("drop", 20, 1, 8, {30})});
        lists.visibility.setRules({{"si_name", "k*"}}, {});
        lists.visibleServers.refilter();
        lists.visiblePlayers.refilter();
        QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Name), QStringList{"keep"});
        QCOMPARE(lists.column(lists.visiblePlayers, PlayerListModel::Ping), (QStringList{"10", "20"}));

        // A refreshed server is tested again at the next rebuild.
        ServerRecord renamed = server("kept", 20, 1, 8, {40});
        renamed.port = 27020;
        lists.servers.replace(1, renamed);
        lists.players.updateServers({1});
        lists.visibility.setRules({{"si_name", "k*"}}, {});
        lists.visibleServers.refilter();
        lists.visiblePlayers.refilter();
        QCOMPARE(lists.column(lists.visibleServers, ServerListModel::Name), (QStringList{"keep", "kept"}));
        QCOMPARE(lists.column(lists.visiblePlayers, PlayerListModel::Ping), (QStringList{"10", "20", "40"}));
    }
    void panesShowTheSelectedServer()
    {
        ServerPlayersModel players;
        QAbstractItemModelTester tester(&players, QAbstractItemModelTester::FailureReportingMode::QtTest);
        players.setPlayers({PlayerRecord{"^1[C]", "^2Bob", 100, 9000, 45}, PlayerRecord{QString(), "amy", 3, 25000, 45},
                            PlayerRecord{QString(), "Cid", 12, 100, 5}});
        QCOMPARE(players.index(0, ServerPlayersModel::Name).data().toString(), QStringLiteral("Bob"));
        QCOMPARE(players.index(0, ServerPlayersModel::Clan).data().toString(), QStringLiteral("[C]"));
        players.sort(ServerPlayersModel::Number, Qt::AscendingOrder);
        QStringList numbers;
        for (int row = 0; row < 3; ++row)
            numbers.append(players.index(row, ServerPlayersModel::Number).data().toString());
        QCOMPARE(numbers, (QStringList{"3", "12", "100"}));
        players.sort(ServerPlayersModel::Ping, Qt::DescendingOrder);
        QCOMPARE(players.index(0, ServerPlayersModel::Name).data().toString(),
                 QStringLiteral("amy")); // tie: kept order
        players.sort(ServerPlayersModel::Name, Qt::AscendingOrder);
        QCOMPARE(players.index(0, ServerPlayersModel::Name).data().toString(), QStringLiteral("amy"));

        ServerRulesModel rules;
        QAbstractItemModelTester rulesTester(&rules, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rules.setTokens({"si_name", "^^12ab", "^1si_pure", "1", "g_gametype", "^^12ab", "si_usepass", "0", "odd"});
        QCOMPARE(rules.rowCount(), 5);
        QCOMPARE(rules.index(0, 1).data().toString(), QStringLiteral("ab"));   // the server-name rule
        QCOMPARE(rules.index(2, 1).data().toString(), QStringLiteral("^2ab")); // the player-name rule
        QCOMPARE(rules.index(1, 0).data().toString(), QStringLiteral("si_pure"));
        QCOMPARE(rules.index(1, 1).data().toString(), QStringLiteral("True"));
        QCOMPARE(rules.index(3, 1).data().toString(), QStringLiteral("False"));
        QCOMPARE(rules.index(4, 1).data().toString(), QString());
    }
};

QTEST_MAIN(TestLists)
#include "tst_lists.moc"
