// SPDX-License-Identifier: GPL-2.0-or-later
#include "endpoints.h"
#include "query/masteraddress.h"
#include "query/serverlistreader.h"

#include <QTest>

class TestServerListReader final : public QObject {
    Q_OBJECT

private slots:
    void everyPublishedShapeIsRead_data()
    {
        QTest::addColumn<QByteArray>("reply");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<int>("skipped");
        QTest::addColumn<bool>("json");
        const QStringList two{"1.2.3.4:28004", "q4.example.org:28005"};
        QTest::newRow("array of strings")
            << QByteArray(R"(["1.2.3.4:28004", "q4.example.org:28005"])") << two << 0 << true;
        QTest::newRow("objects with address")
            << QByteArray(R"([{"address":"1.2.3.4:28004","name":"x"},{"address":"q4.example.org:28005"}])") << two << 0
            << true;
        QTest::newRow("ip and numeric port")
            << QByteArray(R"([{"ip":"1.2.3.4","port":28004},{"host":"q4.example.org","port":"28005"}])") << two << 0
            << true;
        QTest::newRow("address plus port")
            << QByteArray(R"([{"address":"1.2.3.4","port":28004},{"address":"q4.example.org","port":28005}])") << two
            << 0 << true;
        QTest::newRow("wrapped in servers")
            << QByteArray(R"({"count":2,"servers":["1.2.3.4:28004","q4.example.org:28005"]})") << two << 0 << true;
        QTest::newRow("wrapped in data")
            << QByteArray(R"({"ok":true,"data":[{"ip":"1.2.3.4","port":28004},"q4.example.org:28005"]})") << two << 0
            << true;
        QTest::newRow("nested data.servers")
            << QByteArray(R"({"data":{"servers":["1.2.3.4:28004","q4.example.org:28005"]}})") << two << 0 << true;
        QTest::newRow("first array of an object")
            << QByteArray(R"({"updated":"now","items":["1.2.3.4:28004","q4.example.org:28005"]})") << two << 0 << true;
        QTest::newRow("bad entries skipped")
            << QByteArray(R"(["1.2.3.4:28004", 7, null, "nohost", "1.2.3.4:0", "1.2.3.4:65536", {"ip":"1.2.3.4"},
                              {"ip":"a b","port":1}, {"ip":"1.2.3.4","port":2.5}, "[::1]:28004", "::1:28004",
                              "q4.example.org:28005"])")
            << two << 10 << true;
        QTest::newRow("object without servers")
            << QByteArray(R"({"error":"rate limited"})") << QStringList() << 0 << true;
        QTest::newRow("text lines") << QByteArray("# servers\n1.2.3.4:28004\r\n\n  q4.example.org:28005  # EU\n") << two
                                    << 0 << false;
        QTest::newRow("text with names after the address")
            << QByteArray("1.2.3.4:28004 My Server\nq4.example.org:28005\tOther\n") << two << 0 << false;
        QTest::newRow("html is garbage") << QByteArray("<html><body>Bad Gateway</body></html>\n") << QStringList() << 1
                                         << false;
        QTest::newRow("empty") << QByteArray() << QStringList() << 0 << false;
        QTest::newRow("binary noise") << QByteArray("\xff\xfe\x00\x01:\x02", 6) << QStringList() << 1 << false;
    }
    void everyPublishedShapeIsRead()
    {
        QFETCH(QByteArray, reply);
        QFETCH(QStringList, expected);
        QFETCH(int, skipped);
        QFETCH(bool, json);
        const ServerListReader::Result result = ServerListReader::read(reply);
        QCOMPARE(endpoints(result.addresses), expected);
        QCOMPARE(result.skipped, skipped);
        QCOMPARE(result.json, json);
        QVERIFY(!result.truncated);
    }

    void aHugeListIsCut()
    {
        QByteArray text;
        QByteArray json = "[";
        for (int i = 0; i < 100000; ++i) {
            const QByteArray entry = "10." + QByteArray::number(i / 65536) + '.' + QByteArray::number(i / 256 % 256) +
                                     '.' + QByteArray::number(i % 256) + ":28004";
            text += entry + '\n';
            json += (i ? ",\"" : "\"") + entry + '"';
        }
        json += ']';
        for (const QByteArray& reply : {text, json}) {
            const auto result = ServerListReader::read(reply);
            QCOMPARE(result.addresses.count(), ServerListReader::MaxAddresses);
            QVERIFY(result.truncated);
            QCOMPARE(result.addresses.at(4999).endpointText(), QStringLiteral("10.0.19.135:28004"));
        }
    }

    void listAddressesAreHttpOnly()
    {
        const ServerListReader::UrlList list = ServerListReader::parseUrls(
            u"https://a.example/list  http://b.example:8080/q4\nftp://c.example/x file:///etc/passwd nothing https://");
        QCOMPARE(list.urls, (QList<QUrl>{QUrl("https://a.example/list"), QUrl("http://b.example:8080/q4")}));
        QCOMPARE(list.refused, (QStringList{"ftp://c.example/x", "file:///etc/passwd", "nothing", "https://"}));
        QCOMPARE(ServerListReader::parseUrls(ServerListReader::urlsText(list.urls)).urls, list.urls);
    }

    void aHandEditedSettingOfThousandsAsksEachSourceOnceAndNoMoreThanTheCap()
    {
        QString urls = QStringLiteral("https://a.example/list HTTPS://A.EXAMPLE/list ");
        QString masters = QStringLiteral("m.example, M.EXAMPLE:27650 m.example:27651 ");
        for (int i = 0; i < 10000; ++i) {
            urls += QStringLiteral("http://list%1.example/q4 https://a.example/list ").arg(i);
            masters += QStringLiteral("master%1.example, m.example ").arg(i);
        }
        const ServerListReader::UrlList lists = ServerListReader::parseUrls(urls);
        QCOMPARE(lists.urls.size(), ServerListReader::UrlList::Max);
        QCOMPARE(lists.urls.first(), QUrl("https://a.example/list"));
        QCOMPARE(lists.urls.at(1), QUrl("http://list0.example/q4"));
        QCOMPARE(lists.leftOut, 10000 - (ServerListReader::UrlList::Max - 1));

        const MasterList list = parseMasterList(masters);
        QCOMPARE(list.masters.size(), MasterList::Max);
        QCOMPARE(list.masters.mid(0, 3),
                 (QList<MasterAddress>{{"m.example", 27650}, {"m.example", 27651}, {"master0.example", 27650}}));
        QCOMPARE(list.leftOut, 10000 - (MasterList::Max - 2));
        QVERIFY(list.refused.isEmpty());
    }

    void severalMastersAreRead()
    {
        const MasterList list =
            parseMasterList(u" a.example, b.example:27777  [::1]:27650,,bad:port 127.0.0.1 [:1] ma$ter.example");
        QCOMPARE(list.masters.size(), 4);
        QCOMPARE(list.masters.at(0), (MasterAddress{"a.example", 27650}));
        QCOMPARE(list.masters.at(1), (MasterAddress{"b.example", 27777}));
        QCOMPARE(list.masters.at(2), (MasterAddress{"::1", 27650}));
        QCOMPARE(list.masters.at(3), (MasterAddress{"127.0.0.1", 27650}));
        // Only what the name service could be asked for: "[:1]" would be written back as ":1".
        QCOMPARE(list.refused, (QStringList{"bad:port", "[:1]", "ma$ter.example"}));
        QCOMPARE(masterListText(list.masters), QStringLiteral("a.example, b.example:27777, ::1, 127.0.0.1"));
        QCOMPARE(parseMasterList(masterListText(list.masters)).masters, list.masters);
        // Nothing at all is the game maker's master and the community one.
        QCOMPARE(parseMasterList(u" , ").masters,
                 (QList<MasterAddress>{{"q4master.idsoftware.com", 27650}, {"master.quakehub.net", 27650}}));
        QCOMPARE(masterAddressText(MasterAddress{"::1", 27000}), QStringLiteral("[::1]:27000"));
    }
};

QTEST_GUILESS_MAIN(TestServerListReader)
#include "tst_serverlistreader.moc"
