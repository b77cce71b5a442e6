// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/masteraddress.h"

#include <QTest>

class TestMasterAddress final : public QObject {
    Q_OBJECT

private slots:
    void parses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("port");
        QTest::newRow("empty is the default master") << "" << true << "q4master.idsoftware.com" << 27650;
        QTest::newRow("host only") << "master.example.org" << true << "master.example.org" << 27650;
        QTest::newRow("host and port") << "127.0.0.1:27951" << true << "127.0.0.1" << 27951;
        QTest::newRow("blanks around") << "  127.0.0.1:1  " << true << "127.0.0.1" << 1;
        QTest::newRow("bracketed v6") << "[::1]:27650" << true << "::1" << 27650;
        QTest::newRow("bare v6") << "::1" << true << "::1" << 27650;
        QTest::newRow("port zero") << "host:0" << false << "" << 0;
        QTest::newRow("port too big") << "host:65536" << false << "" << 0;
        QTest::newRow("port not a number") << "host:abc" << false << "" << 0;
        QTest::newRow("no host") << ":27650" << false << "" << 0;
        QTest::newRow("blank inside") << "my host" << false << "" << 0;
        QTest::newRow("unclosed bracket") << "[::1:27650" << false << "" << 0;
    }
    void parses()
    {
        QFETCH(QString, text);
        QFETCH(bool, valid);
        QFETCH(QString, host);
        QFETCH(int, port);
        const auto address = parseMasterAddress(text);
        QCOMPARE(address.has_value(), valid);
        if (valid) {
            QCOMPARE(address->host, host);
            QCOMPARE(int(address->port), port);
        }
    }
};

QTEST_APPLESS_MAIN(TestMasterAddress)
#include "tst_masteraddress.moc"
