// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/updateversion.h"

#include <QTest>

using UpdateVersion::Version;

class TestUpdateVersion final : public QObject {
    Q_OBJECT

private slots:
    void newerByTheRules_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("running");
        QTest::addColumn<bool>("newer");
        QTest::newRow("minor up") << QByteArray("1.1.0") << "1.0.5" << true;
        QTest::newRow("same") << QByteArray("1.0.5") << "1.0.5" << false;
        QTest::newRow("older") << QByteArray("0.9.9") << "1.0.5" << false;
        QTest::newRow("major up, minor down") << QByteArray("2.0.0") << "1.2.0" << true;
        QTest::newRow("revision up, no line end") << QByteArray("1.0.6") << "1.0.5" << true;
        QTest::newRow("trailing line end") << QByteArray("1.0.6\r\n") << "1.0.5" << true;
        QTest::newRow("blanks around parts") << QByteArray(" 1 . 0 . 6 \n") << "1.0.5" << true;
        QTest::newRow("revision up, minor down") << QByteArray("1.0.9") << "1.1.0" << false;
        QTest::newRow("minor up, major down") << QByteArray("0.5.0") << "1.2.0" << false;
        QTest::newRow("two parts, major decides") << QByteArray("2.0") << "1.2.0" << true;
        QTest::newRow("two parts, minor decides") << QByteArray("1.3") << "1.2.0" << true;
        QTest::newRow("two parts, revision missing") << QByteArray("1.2") << "1.2.0" << false;
        QTest::newRow("one part, major missing rules") << QByteArray("100") << "1.2.0" << true;
        QTest::newRow("minor not a number") << QByteArray("1.x.9") << "1.0.5" << false;
        QTest::newRow("major not a number") << QByteArray("abc") << "1.0.5" << false;
        QTest::newRow("text after the line end") << QByteArray("1.0.6\r\nsee you.9") << "1.0.5" << false;
        QTest::newRow("html error page") << QByteArray("<html>404</html>") << "1.0.5" << false;
        QTest::newRow("overflowing number") << QByteArray("99999999999.0.0") << "1.0.5" << false;
    }
    void newerByTheRules()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, running);
        QFETCH(bool, newer);
        const QStringList parts = running.split(QLatin1Char('.'));
        const auto latest = UpdateVersion::latestParts(file);
        QVERIFY(latest);
        QCOMPARE(
            UpdateVersion::isNewer(*latest, Version{parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt()}),
            newer);
    }

    void theVersionFileIsSplitWhole()
    {
        QCOMPARE(UpdateVersion::latestParts("1.0.6"), (QStringList{"1", "0", "6"}));
        QCOMPARE(UpdateVersion::latestParts("1.0.6\r\nnext.7"), (QStringList{"1", "0", "6\r\nnext", "7"}));
        QVERIFY(!UpdateVersion::latestParts("1."));
        QVERIFY(!UpdateVersion::latestParts(""));
        QCOMPARE(UpdateVersion::text(QStringList{"1", "2", "3\r\n"}), QStringLiteral("1.2.3"));
        QCOMPARE(UpdateVersion::text(Version{0, 1, 0}), QStringLiteral("0.1.0"));
        QCOMPARE(UpdateVersion::text(UpdateVersion::running()), QStringLiteral(Q4V_VERSION));
    }

    void theSiteNamesBothFiles()
    {
        QCOMPARE(UpdateVersion::versionFileUrl(QStringLiteral("https://up.example/q4v/")),
                 QUrl(QStringLiteral("https://up.example/q4v/downloads/vantageupdate.txt")));
        QCOMPARE(UpdateVersion::installerUrl(QStringLiteral("http://127.0.0.1:8080")).toString(QUrl::FullyEncoded),
                 QStringLiteral("http://127.0.0.1:8080/downloads/Quake%204%20Vantage%20Setup.exe"));
        QVERIFY(UpdateVersion::versionFileUrl(QString()).isEmpty());
        QVERIFY(UpdateVersion::versionFileUrl(QStringLiteral("no site")).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestUpdateVersion)
#include "tst_updateversion.moc"
