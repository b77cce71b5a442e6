// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/records.h"

#include <QTest>

class TestRecords final : public QObject {
    Q_OBJECT

private slots:
    void lastMatchingFavouriteWins()
    {
        AddressTable table;
        table.add(QStringLiteral("1.2.3.4"), 28004, QStringLiteral("A"), QStringLiteral("first"));
        table.add(QStringLiteral("1.2.3.4"), 28005, QStringLiteral("B"), QStringLiteral("other port"));
        table.add(QStringLiteral("1.2.3.4"), 28004, QStringLiteral("C"), QStringLiteral("second"));
        QCOMPARE(table.lastMatching(QStringLiteral("1.2.3.4:28004"))->password, QStringLiteral("second"));
        QCOMPARE(table.lastMatching(QStringLiteral("1.2.3.4:28005"))->name, QStringLiteral("B"));
        QVERIFY(!table.lastMatching(QStringLiteral("1.2.3.4:1")));
    }

    void serverStoreIndexesRowsAndCountsPlayers()
    {
        ServerStore store;
        ServerRecord first;
        first.address = QStringLiteral("1.1.1.1");
        first.port = 28004;
        first.players = {PlayerRecord{{}, "^1a", 0, 25000, 40}, PlayerRecord{"clan", "b", 1, 9000, 0}};
        first.playerCount = 2;
        ServerRecord second = first;
        second.address = QStringLiteral("2.2.2.2");
        second.players.clear();

        QCOMPARE(store.add(first), 0);
        QCOMPARE(store.add(second), 1);
        QCOMPARE(store.storedPlayerCount(), 2);
        QCOMPARE(store.indexOf(QStringLiteral("2.2.2.2"), 28004), 1);
        QCOMPARE(store.indexOf(QStringLiteral("2.2.2.2"), 28005), -1);

        // A refresh replaces the record in place: same index, new players.
        ServerRecord refreshed = second;
        refreshed.players = {PlayerRecord{}, PlayerRecord{}, PlayerRecord{}};
        store.replace(1, refreshed);
        QCOMPARE(store.at(1).players.size(), 3);
        QCOMPARE(store.storedPlayerCount(), 5);

        store.clear();
        QCOMPARE(store.count(), 0);
        QCOMPARE(store.storedPlayerCount(), 0);
        QCOMPARE(store.add(second), 0);
    }

    void whatNamesAServer_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("server");
        QTest::newRow("host") << "q4.example.org" << true;
        QTest::newRow("host and port") << " 10.0.0.1:28004 " << true;
        QTest::newRow("blank inside") << "foo bar" << false;
        QTest::newRow("port 0") << "host:0" << false;
        QTest::newRow("port too high") << "host:65536" << false;
        QTest::newRow("no host") << ":28004" << false;
        QTest::newRow("no port") << "host:" << false;
        QTest::newRow("two colons") << "a:1:2" << false;
        QTest::newRow("leading dot") << ".host" << false;
    }
    void whatNamesAServer()
    {
        QFETCH(QString, text);
        QFETCH(bool, server);
        QCOMPARE(isServerAddress(text), server);
    }

    void oneSpellingPerHost()
    {
        for (const char* spelling : {"127.1", "2130706433", "0x7f000001", "127.0.0.01", "127.0.0.1"})
            QCOMPARE(canonicalHost(QLatin1String(spelling)), QStringLiteral("127.0.0.1"));
        QCOMPARE(canonicalHost(QStringLiteral("Q4.Example.ORG")), QStringLiteral("q4.example.org"));
    }
};

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
