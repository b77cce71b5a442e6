// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/countrydatabase.h"
#include "simlocations.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class TestCountryDatabase final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void addressesArePlacedByTheirNetwork_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("country");
        // clang-format off
        QTest::newRow("first of a network") << "127.0.0.0" << "DE";
        QTest::newRow("last of it") << "127.0.0.7" << "DE";
        QTest::newRow("the next network") << "127.0.0.8" << "US";
        QTest::newRow("a wider one") << "127.0.0.31" << "RU";
        QTest::newRow("just past it") << "127.0.0.32" << "";
        QTest::newRow("another /24") << "127.0.1.200" << "FR";
        QTest::newRow("nowhere") << "10.1.2.3" << "";
        QTest::newRow("IPv6 not placed") << "2001:db8::1" << "";
        QTest::newRow("no address") << "" << "";
        // clang-format on
    }
    void addressesArePlacedByTheirNetwork()
    {
        QFETCH(QString, address);
        QFETCH(QString, country);
        const QString path = m_dir.filePath(QStringLiteral("loopback.db"));
        QVERIFY(QFile::exists(path) || writeLoopbackCountries(path));
        const auto opened = CountryDatabase::open(path);
        QVERIFY2(opened.database, qPrintable(opened.error));
        QCOMPARE(opened.database->countryOf(QHostAddress(address)), country);
    }

    void countriesHaveTheirNames()
    {
        const QString path = m_dir.filePath(QStringLiteral("names.db"));
        QVERIFY(writeLoopbackCountries(path));
        const auto opened = CountryDatabase::open(path);
        QVERIFY(opened.database);
        QCOMPARE(opened.database->nameOf(QStringLiteral("RU")), QStringLiteral("Russian Federation"));
        QCOMPARE(opened.database->nameOf(QStringLiteral("XX")), QString());
        QCOMPARE(opened.database->nameOf(QStringLiteral("toolong")), QString());
        QVERIFY(opened.database->description().startsWith(QStringLiteral("Quake 4 Vantage tests, ")));
    }

    // A missing, empty, cut or foreign file is no database and says so.
    void whatIsNoDatabaseSaysWhy()
    {
        QCOMPARE(CountryDatabase::open(m_dir.filePath(QStringLiteral("missing.db"))).error,
                 m_dir.filePath(QStringLiteral("missing.db")) + QStringLiteral(" does not exist"));
        const QString good = m_dir.filePath(QStringLiteral("good.db"));
        QVERIFY(writeLoopbackCountries(good));
        QFile whole(good);
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QByteArray bytes = whole.readAll();
        for (const QByteArray& content : {QByteArray(), bytes.left(bytes.size() / 2), QByteArray(4096, 'x')}) {
            const QString path = m_dir.filePath(QStringLiteral("bad.db"));
            QFile bad(path);
            QVERIFY(bad.open(QIODevice::WriteOnly | QIODevice::Truncate));
            bad.write(content);
            bad.close();
            const auto opened = CountryDatabase::open(path);
            if (opened.database) // a cut file may still open; its lookups stay safe
                opened.database->countryOf(QHostAddress(QStringLiteral("127.0.0.1")));
            else
                QVERIFY(opened.error.endsWith(QStringLiteral("is not an IP location database")));
        }
        // A FIFO nobody writes to would hang the open (and the window's
        // start) for ever; a folder is no file either.
        const QString fifo = m_dir.filePath(QStringLiteral("fifo.db"));
        QCOMPARE(QProcess::execute(QStringLiteral("mkfifo"), {fifo}), 0);
        QCOMPARE(CountryDatabase::open(fifo).error, fifo + QStringLiteral(" is not a regular file"));
        QCOMPARE(CountryDatabase::open(m_dir.path()).error, m_dir.path() + QStringLiteral(" is not a regular file"));
    }

    // Debian's own database, when it is installed.
    void aRealAddressIsPlacedByDebiansDatabase()
    {
        if (!QFile::exists(CountryDatabase::DebianPath))
            QSKIP("libloc-database is not installed");
        const auto opened = CountryDatabase::open(CountryDatabase::DebianPath);
        QVERIFY2(opened.database, qPrintable(opened.error));
        QCOMPARE(opened.database->countryOf(QHostAddress(QStringLiteral("193.99.144.80"))), QStringLiteral("DE"));
        QCOMPARE(opened.database->nameOf(QStringLiteral("DE")), QStringLiteral("Germany"));
    }
};

QTEST_GUILESS_MAIN(TestCountryDatabase)
#include "tst_countrydatabase.moc"
