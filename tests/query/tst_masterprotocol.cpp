// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/masterprotocol.h"

#include <QTest>

using namespace MasterProtocol;

namespace {

QByteArray record(int a, int b, int c, int d, int port)
{
    QByteArray bytes;
    for (int octet : {a, b, c, d})
        bytes.append(char(octet));
    bytes.append(char(port & 0xFF));
    bytes.append(char((port >> 8) & 0xFF));
    return bytes;
}

QByteArray datagram(int firstRecord, int records)
{
    QByteArray bytes = replyHeader();
    for (int i = 0; i < records; ++i) {
        const int n = firstRecord + i;
        bytes += record(10, (n >> 16) & 0xFF, (n >> 8) & 0xFF, n & 0xFF, 27000 + n % 1000);
    }
    return bytes;
}

AddressTable tableOf(const QByteArray& gathered)
{
    AddressTable table;
    appendAddresses(cutRecords(gathered).value(), table);
    return table;
}

} // namespace

class TestMasterProtocol final : public QObject {
    Q_OBJECT

private slots:
    void requestBytes()
    {
        const QByteArray request = getServersRequest();
        QCOMPARE(request.size(), 21);
        QCOMPARE(request.left(12), QByteArray("\xFF\xFFgetServers"));
        QCOMPARE(request.mid(12), QByteArray(9, '\0'));
        QCOMPARE(replyHeader(), QByteArray("\xFF\xFFservers\0", 10));
    }

    void recordLayout()
    {
        const AddressTable table = tableOf(replyHeader() + QByteArray("\x0A\x00\x00\x01\x64\x6D", 6));
        QCOMPARE(table.count(), 1);
        QCOMPARE(table.at(0).address, QStringLiteral("10.0.0.1"));
        QCOMPARE(table.at(0).port, 28004);
        QCOMPARE(tableOf(record(255, 0, 7, 200, 1)).at(0).address, QStringLiteral("255.0.7.200"));
    }

    void datagramLengthDecidesWhetherMoreFollow()
    {
        // A full datagram carries 231 records; the last one at most 230.
        QCOMPARE(datagram(0, 231).size(), 1396);
        QVERIFY(!isLastDatagram(datagram(0, 231)));
        QCOMPARE(datagram(0, 230).size(), 1390);
        QVERIFY(isLastDatagram(datagram(0, 230)));
        QCOMPARE(tableOf(datagram(0, 230)).count(), 230);
        QVERIFY(isLastDatagram(replyHeader()));
        QVERIFY(!isLastDatagram(QByteArray(5000, 'x')));
    }

    void everyHeaderIsRemovedAndRecordsFollowInOrder()
    {
        const AddressTable table = tableOf(datagram(0, 231) + datagram(231, 3));
        QCOMPARE(table.count(), 234);
        QCOMPARE(table.at(230).address, QStringLiteral("10.0.0.230"));
        QCOMPARE(table.at(231).address, QStringLiteral("10.0.0.231"));
        QCOMPARE(table.at(233).port, 27233);
    }

    void headerBytesAreRemovedWherever()
    {
        QCOMPARE(removeAll(QByteArray("ab--cd--"), "--"), QByteArray("abcd"));
        QCOMPARE(removeAll(QByteArray("---"), "--"), QByteArray("-"));
        QCOMPARE(removeAll(QByteArray("abc"), ""), QByteArray("abc"));
    }

    void shortFinalRecords()
    {
        const QByteArray twelve = record(1, 2, 3, 4, 5) + record(6, 7, 8, 9, 10);
        QCOMPARE(cutRecords(twelve)->size(), 2);
        const auto thirteen = cutRecords(twelve + "x");
        QCOMPARE(thirteen->size(), 3);
        QCOMPARE(thirteen->last(), QByteArray("x"));
        QCOMPARE(tableOf(twelve + "x").count(), 2); // shorter than five: skipped
        // Five bytes give an address, but no port: the previous one stays.
        const AddressTable five = tableOf(twelve + QByteArray("\x0B\x0C\x0D\x0E\x01", 5));
        QCOMPARE(five.count(), 3);
        QCOMPARE(five.at(2).address, QStringLiteral("11.12.13.14"));
        QCOMPARE(five.at(2).port, 10);
    }

    void highPortsKeepThePreviousPort()
    {
        const AddressTable table =
            tableOf(record(1, 1, 1, 1, 40000) + record(2, 2, 2, 2, 27960) + record(3, 3, 3, 3, 32768) +
                    record(4, 4, 4, 4, 32767) + record(5, 5, 5, 5, 65535));
        QCOMPARE(table.count(), 5);
        QCOMPARE(table.at(0).port, 0);
        QCOMPARE(table.at(1).port, 27960);
        QCOMPARE(table.at(2).port, 27960);
        QCOMPARE(table.at(3).port, 32767);
        QCOMPARE(table.at(4).port, 32767);
    }

    // A list split over datagrams read one by one keeps carrying the port.
    void theCarriedPortCrossesDatagrams()
    {
        AddressTable table;
        const int carried = appendAddresses(cutRecords(replyHeader() + record(1, 1, 1, 1, 27960)).value(), table);
        QCOMPARE(carried, 27960);
        QCOMPARE(appendAddresses(cutRecords(replyHeader() + record(2, 2, 2, 2, 40000)).value(), table, carried), 27960);
        QCOMPARE(table.at(1).port, 27960);
    }

    void duplicatesAreKept()
    {
        const AddressTable table = tableOf(record(1, 2, 3, 4, 28004) + record(1, 2, 3, 4, 28004));
        QCOMPARE(table.count(), 2);
        QCOMPARE(table.at(0), table.at(1));
    }

    void recordCounterLimit()
    {
        QByteArray limit;
        for (int i = 0; i < MaxRecords; ++i)
            limit += record(1, 1, (i >> 8) & 0xFF, i & 0xFF, 1000);
        QCOMPARE(cutRecords(limit)->size(), MaxRecords);
        QVERIFY(!cutRecords(limit + "x").has_value());
        QVERIFY(!cutRecords(limit + record(9, 9, 9, 9, 9)).has_value());
    }

    // Gathering stops early only when no header cut by a boundary could
    // bring the list back under the limit.
    void surelyTooLongLeavesRoomForCutHeaders()
    {
        const qsizetype limitBytes = qsizetype(MaxRecords) * 6;
        QVERIFY(!surelyTooLong(limitBytes, 1, limitBytes + 10));
        QVERIFY(!surelyTooLong(limitBytes + 20, 1, limitBytes + 30));
        QVERIFY(surelyTooLong(limitBytes + 21, 1, limitBytes + 31));
        QVERIFY(!surelyTooLong(limitBytes + 24 * 20, 24, limitBytes + 24 * 30));
        // Header after header holds no records, but cannot go on for ever.
        QVERIFY(!surelyTooLong(0, 1000, MaxReplyBytes));
        QVERIFY(surelyTooLong(0, 1000, MaxReplyBytes + 1));
    }

    void emptyReplyGivesNoAddresses()
    {
        QCOMPARE(tableOf(replyHeader()).count(), 0);
        QCOMPARE(tableOf(QByteArray()).count(), 0);
    }
};

QTEST_APPLESS_MAIN(TestMasterProtocol)
#include "tst_masterprotocol.moc"
