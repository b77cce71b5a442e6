// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/playhistory.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using PlayHistory::Entry;

class TestPlayHistory final : public QObject {
    Q_OBJECT

private slots:
    void aJoinGoesToTheTopOnce()
    {
        PlayHistory::List list{{"10.0.0.1", 28004, "One", 100}, {"10.0.0.2", 28004, "Two", 50}};
        list = PlayHistory::record(list, {"10.0.0.2", 28004, "Two renamed", 200});
        QCOMPARE(list, (PlayHistory::List{{"10.0.0.2", 28004, "Two renamed", 200}, {"10.0.0.1", 28004, "One", 100}}));
        // Another port of the same host is another server.
        list = PlayHistory::record(list, {"10.0.0.1", 28005, "One b", 300});
        QCOMPARE(list.size(), 3);
        QCOMPARE(list.first().port, 28005);
    }

    void theOldestGoBeyondTheLimit()
    {
        PlayHistory::List list;
        for (int i = 0; i < PlayHistory::MaxEntries + 5; ++i)
            list = PlayHistory::record(list, {QStringLiteral("10.0.%1.%2").arg(i / 200).arg(i % 200), 28004, {}, i});
        QCOMPARE(list.size(), PlayHistory::MaxEntries);
        QCOMPARE(list.first().joinedAt, PlayHistory::MaxEntries + 4);
        QCOMPARE(list.last().joinedAt, 5);
    }

    void roundTripKeepsEveryField()
    {
        const PlayHistory::List list{{"10.0.0.1", 28004, "^1Red\r\nTwo lines", 1700000000},
                                     {"q4.example.org", 27960, "", 1}};
        const QByteArray bytes = PlayHistory::toBytes(list);
        // A line break in a name is written as blanks; the file keeps its lines.
        QCOMPARE(PlayHistory::parse(bytes).first().name, QStringLiteral("^1Red  Two lines"));
        QCOMPARE(PlayHistory::parse(bytes).last(), list.last());
        QCOMPARE(PlayHistory::toBytes(PlayHistory::parse(bytes)), bytes);
    }

    void damagedLinesCostOnlyThemselves()
    {
        const QByteArray bytes = "# comment\r\n"
                                 "10.0.0.1:28004\t100\tGood\r\n"
                                 "10.0.0.2:28004\tnot a time\tBad time\r\n"
                                 "no port\t100\tBad address\r\n"
                                 "10.0.0.3:28004\t100\r\n"
                                 "[::1]:28004\t100\tIPv6\r\n"
                                 "10.0.0.4:28004\t-5\tNegative\r\n"
                                 "10.0.0.1:28004\t50\tOlder duplicate\r\n"
                                 "10.0.0.5:28004\t7\tLast, no line end";
        const PlayHistory::List list = PlayHistory::parse(bytes);
        QCOMPARE(list,
                 (PlayHistory::List{{"10.0.0.1", 28004, "Good", 100}, {"10.0.0.5", 28004, "Last, no line end", 7}}));
    }

    void filesOnDisk()
    {
        QTemporaryDir dir;
        const QString path = PlayHistory::filePath(dir.path());
        QVERIFY(PlayHistory::readFile(path).isEmpty());
        const PlayHistory::List list{{"10.0.0.1", 28004, "One", 100}};
        QVERIFY(PlayHistory::writeFile(path, list));
        QCOMPARE(PlayHistory::readFile(path), list);
        QCOMPARE(PlayHistory::toAddressTable(list).at(0).endpointText(), QStringLiteral("10.0.0.1:28004"));

        // Where no file can go (a file stands where the folder should be,
        // which stops root too), the write says so.
        QVERIFY(!PlayHistory::writeFile(path + QStringLiteral("/history.dat"), {}));
        QCOMPARE(PlayHistory::readFile(path), list);

        // A large file is read only as far as the limit.
        QFile big(path);
        QVERIFY(big.open(QIODevice::WriteOnly));
        for (int i = 0; i < 20000; ++i)
            big.write(QStringLiteral("10.%1.%2.1:28004\t%3\tName\r\n").arg(i / 250).arg(i % 250).arg(i).toLatin1());
        big.close();
        QCOMPARE(PlayHistory::readFile(path).size(), PlayHistory::MaxEntries);
    }
};

QTEST_APPLESS_MAIN(TestPlayHistory)
#include "tst_playhistory.moc"
