// SPDX-License-Identifier: GPL-2.0-or-later
#include "httpresponder.h"
#include "query/lanquery.h"
#include "queryreport.h"
#include "simfleet.h"
#include "simlocations.h"
#include "testports.h"
#include "userdata/knownservers.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

namespace {

const quint16 StartPort = TestPorts::at(2000);

struct Run {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

// Runs the tool while this process's event loop keeps the fleet answering.
const QString Start = QString::number(StartPort);

Run runTool(const QStringList& arguments, const QString& home)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home); // never the user's own settings
    process.setProcessEnvironment(environment);
    QSignalSpy finished(&process, &QProcess::finished);
    process.start(QStringLiteral(QUERY_TOOL), arguments);
    if (!finished.wait(15000))
        process.kill();
    return Run{process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

class TestQueryTool final : public QObject {
    Q_OBJECT

    QTemporaryDir m_home;
    Run runTool(const QStringList& arguments) const { return ::runTool(arguments, m_home.path()); }

private slots:
    void jsonReportKeepsEveryByte()
    {
        ServerRecord server;
        server.address = QStringLiteral("10.0.0.1");
        server.port = 28004;
        server.name = QStringLiteral("^1Caf\u00e9^^^2\u00ff");
        server.tokens = {"si_name", server.name, "lonely"};
        server.players = {PlayerRecord{"[c]", "^2Bob", 7, 25000, 33}};
        server.playerCount = 1;
        const QJsonObject document =
            QJsonDocument::fromJson(QueryReport::json({1, 1, 0, 2, 40, {}}, {server})).object();
        QCOMPARE(document[QStringLiteral("dropped_datagrams")].toInt(), 2);
        const QJsonObject first = document[QStringLiteral("servers")].toArray().first().toObject();
        QCOMPARE(first[QStringLiteral("name")].toString(), server.name);
        QCOMPARE(first[QStringLiteral("name_plain")].toString(),
                 QStringLiteral("Caf\u00e9^")); // the third caret swallows the last
        QCOMPARE(first[QStringLiteral("password")].toString(), QStringLiteral(" "));
        const QJsonArray rules = first[QStringLiteral("rules")].toArray();
        QCOMPARE(rules.size(), 2);
        QCOMPARE(rules.at(1).toArray().at(1).toString(), QString());
        const QJsonObject player = first[QStringLiteral("player_list")].toArray().first().toObject();
        QCOMPARE(player[QStringLiteral("name_plain")].toString(), QStringLiteral("Bob"));
        QCOMPARE(player[QStringLiteral("num")].toInt(), 7);

        // The text summary counts in English: one address, two addresses.
        QueryReport::Writer text(QueryReport::Format::Text);
        QVERIFY(text.finish({1, 1, 0, 0, 40, {}}).startsWith("1 address, 1 answered"));
    }

    void queriesTheMastersListAndExitsZero()
    {
        FleetOptions options;
        options.servers = 30;
        options.masterPort = TestPorts::at(1);
        options.firstServerPort = TestPorts::at(2);
        options.silentFraction = 0.2;
        options.seed = 5;
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        // Placed by a location database that puts 127.0.0.1 in Germany.
        const QString countries = m_home.filePath(QStringLiteral("loopback.db"));
        QVERIFY(writeLoopbackCountries(countries));
        const Run run = runTool({"--master", TestPorts::local(1), "--start-port", Start, "--format", "json",
                                 "--country-database", countries});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject document = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(document[QStringLiteral("addresses")].toInt(), 30);
        QCOMPARE(document[QStringLiteral("answered")].toInt(), fleet.answeringServers());
        QCOMPARE(document[QStringLiteral("timed_out")].toInt(), 30 - fleet.answeringServers());
        const QJsonArray servers = document[QStringLiteral("servers")].toArray();
        QCOMPARE(servers.size(), fleet.answeringServers());
        for (const auto& value : servers) {
            const QJsonObject server = value.toObject();
            const auto& sent = fleet.servers().at(server[QStringLiteral("port")].toInt() - TestPorts::at(2));
            QCOMPARE(server[QStringLiteral("name")].toString(), QString::fromLatin1(sent.rules.at(0).second));
            QCOMPARE(server[QStringLiteral("player_list")].toArray().size(), sent.players.size());
            QCOMPARE(server[QStringLiteral("country")].toString(), QStringLiteral("DE"));
        }
    }

    // A database named by mistake (a FIFO would hang the open) is said,
    // and the query goes on without countries.
    void aBadCountryDatabaseIsSaid()
    {
        FleetOptions options;
        options.servers = 2;
        options.masterPort = TestPorts::at(451);
        options.firstServerPort = TestPorts::at(452);
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        const QString fifo = m_home.filePath(QStringLiteral("fifo.db"));
        QCOMPARE(QProcess::execute(QStringLiteral("mkfifo"), {fifo}), 0);
        const Run run = runTool(
            {"--master", TestPorts::local(451), "--start-port", Start, "--format", "json", "--country-database", fifo});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.contains("no countries: " + fifo.toUtf8() + " is not a regular file"), run.err);
        QCOMPARE(QJsonDocument::fromJson(run.out).object()[QStringLiteral("answered")].toInt(), 2);
    }

    void everySourceIsReportedOnItsOwn()
    {
        FleetOptions options;
        options.servers = 4;
        options.masterPort = TestPorts::at(251);
        options.firstServerPort = TestPorts::at(252);
        SimFleet dead(options);
        options.servers = 5;
        options.masterPort = TestPorts::at(301);
        options.firstServerPort = TestPorts::at(302);
        SimFleet alive(options);
        QVERIFY(!dead.start());
        QVERIFY(!alive.start());
        dead.setMasterSilent(true);
        HttpResponder web;
        web.set(QStringLiteral("/q4.txt"),
                {200, QStringLiteral("%1\n%2\nbroken\n").arg(TestPorts::local(252), TestPorts::local(253)).toLatin1(),
                 "text/plain", 0});
        const QString known = m_home.filePath(QStringLiteral("servers.dat"));
        QVERIFY(KnownServers::writeFile(known, {KnownServers::Server{"127.0.0.1", TestPorts::at(254), {}, 1, 0},
                                                KnownServers::Server{"127.0.0.1", TestPorts::at(302), {}, 1, 0}}));
        const Run run =
            runTool({"--master", TestPorts::local(251), "--master", TestPorts::local(301), "--list-url",
                     web.url("/q4.txt").toString(), "--known", known, "--start-port", Start, "--format", "json"});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject document = QJsonDocument::fromJson(run.out).object();
        const QJsonArray sources = document[QStringLiteral("sources")].toArray();
        QCOMPARE(sources.size(), 4);
        const auto source = [&sources](int i) { return sources.at(i).toObject(); };
        QCOMPARE(source(0)[QStringLiteral("kind")].toString(), QStringLiteral("master"));
        QCOMPARE(source(0)[QStringLiteral("name")].toString(), TestPorts::local(251));
        QCOMPARE(source(0)[QStringLiteral("error")].toString(), QStringLiteral("did not answer"));
        QCOMPARE(source(1)[QStringLiteral("addresses")].toInt(), 5);
        QVERIFY(source(1)[QStringLiteral("error")].isNull());
        QCOMPARE(source(2)[QStringLiteral("kind")].toString(), QStringLiteral("list"));
        QCOMPARE(source(2)[QStringLiteral("addresses")].toInt(), 2);
        QCOMPARE(source(2)[QStringLiteral("skipped")].toInt(), 1);
        QCOMPARE(source(3)[QStringLiteral("kind")].toString(), QStringLiteral("known"));
        // Known servers are asked at once, the one a master lists too.
        QCOMPARE(source(3)[QStringLiteral("addresses")].toInt(), 2);
        QCOMPARE(document[QStringLiteral("addresses")].toInt(), 8);
        QCOMPARE(document[QStringLiteral("answered")].toInt(), 8);

        const Run text = runTool({"--master", TestPorts::local(301), "--known", known, "--start-port", Start});
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.out.contains(
            QStringLiteral("master %1: 5 addresses, 0 skipped\n").arg(TestPorts::local(301)).toLatin1()));
        QVERIFY(text.out.contains("known known servers: 2 addresses, 0 skipped\n"));
    }

    // A script reading the tool through a pipe sees each server the moment
    // it answers, long before a silent master lets the query end.
    void eachServerIsWrittenAsItAnswers()
    {
        FleetOptions options;
        options.servers = 3;
        options.masterPort = TestPorts::at(401);
        options.firstServerPort = TestPorts::at(402);
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        fleet.setMasterSilent(true);
        const QString known = m_home.filePath(QStringLiteral("streamed.dat"));
        QVERIFY(KnownServers::writeFile(known, {KnownServers::Server{"127.0.0.1", TestPorts::at(402), {}, 1, 0}}));
        for (const char* format : {"text", "json"}) {
            QProcess process;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
            process.setProcessEnvironment(environment);
            QElapsedTimer clock;
            qint64 firstOutput = -1;
            connect(&process, &QProcess::readyReadStandardOutput, this, [&] {
                if (firstOutput < 0)
                    firstOutput = clock.elapsed();
            });
            QSignalSpy finished(&process, &QProcess::finished);
            clock.start();
            process.start(QStringLiteral(QUERY_TOOL), {"--master", TestPorts::local(401), "--known", known,
                                                       "--start-port", QString::number(StartPort), "--format", format});
            QVERIFY(finished.wait(15000));
            const qint64 ended = clock.elapsed();
            QCOMPARE(process.exitCode(), 0);
            QVERIFY2(firstOutput >= 0 && ended - firstOutput > 1000,
                     qPrintable(QStringLiteral("%1: first output at %2 ms, exit at %3 ms")
                                    .arg(QLatin1String(format))
                                    .arg(firstOutput)
                                    .arg(ended)));
        }
    }

    void theLanIsSearched()
    {
        FleetOptions options;
        options.servers = 2;
        options.masterPort = LanQuery::FirstGamePort - 1;
        options.firstServerPort = LanQuery::FirstGamePort;
        SimFleet lan(options);
        if (const auto error = lan.start())
            QSKIP(qPrintable(QStringLiteral("the game ports are taken here: %1").arg(*error)));
        const Run run = runTool({"--lan", "--broadcast", "127.0.0.1", "--start-port", Start, "--format", "json"});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject document = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(document[QStringLiteral("servers")].toArray().size(), 2);
        QCOMPARE(document[QStringLiteral("sources")].toArray().first().toObject()[QStringLiteral("kind")].toString(),
                 QStringLiteral("lan"));
        QCOMPARE(runTool({"--lan", "--master", "x"}).exitCode, 2);
        QCOMPARE(runTool({"--lan", "--broadcast", "::1"}).exitCode, 2);
        QCOMPARE(runTool({"--list-url", "ftp://x/y"}).exitCode, 2);
    }

    void exitCodes()
    {
        QCOMPARE(runTool({"--speed", "9"}).exitCode, 2);
        QCOMPARE(runTool({"--server", "nohost"}).exitCode, 2);
        QCOMPARE(runTool({"--format", "xml"}).exitCode, 2);
        const Run six = runTool({"--server", "[::1]:27960"});
        QCOMPARE(six.exitCode, 2);
        QVERIFY(six.err.contains("IPv6 servers are not supported"));

        QUdpSocket squatter;
        QVERIFY(squatter.bind(QHostAddress::AnyIPv4, StartPort));
        const Run busy = runTool({"--server", TestPorts::local(101), "--start-port", Start});
        QCOMPARE(busy.exitCode, 3);
        QVERIFY(busy.err.contains(QByteArray::number(StartPort)));
        squatter.close();

        // Nobody answers on this master port: the master times out.
        const Run silent = runTool({"--master", TestPorts::local(201), "--start-port", Start});
        QCOMPARE(silent.exitCode, 1);
        QVERIFY(silent.err.contains("Timed Out"));
        // JSON is a document whatever happened: the source says why.
        const Run silentJson = runTool({"--master", TestPorts::local(201), "--start-port", Start, "--format", "json"});
        QCOMPARE(silentJson.exitCode, 1);
        const QJsonObject document = QJsonDocument::fromJson(silentJson.out).object();
        QCOMPARE(document[QStringLiteral("sources")].toArray().at(0)[QStringLiteral("error")].toString(),
                 QStringLiteral("did not answer"));

        // Favourites with no server: nothing to wait for, a clear word at once.
        const QString empty = m_home.filePath(QStringLiteral("empty.dat"));
        QFile file(empty);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QElapsedTimer clock;
        clock.start();
        const Run none = runTool({"--favourites", empty, "--start-port", Start});
        QCOMPARE(none.exitCode, 4);
        QVERIFY(none.err.contains("no favourites in"));
        QVERIFY(clock.elapsed() < 5000);
    }

    void aStuckNameLookupDoesNotHoldUpTheExit_data()
    {
        QTest::addColumn<QStringList>("sources");
        QTest::addColumn<qint64>("within");
        // The resolver waits 3 x 4 s; the tool only its own time-outs.
        QTest::newRow("master") << QStringList{"--master", "stuck.example:27650"} << qint64(5000);
        QTest::newRow("list") << QStringList{"--master", "127.0.0.1:9", "--list-url", "http://stuck.example/q4"}
                              << qint64(7000);
    }
    void aStuckNameLookupDoesNotHoldUpTheExit()
    {
        QFETCH(QStringList, sources);
        QFETCH(qint64, within);
        // A network of its own with a name server that swallows every
        // question.
        QTemporaryDir dir;
        QFile resolv(dir.filePath(QStringLiteral("resolv.conf")));
        QVERIFY(resolv.open(QIODevice::WriteOnly));
        resolv.write("nameserver 10.9.9.2\noptions timeout:4 attempts:3\n");
        resolv.close();
        const QString script =
            QStringLiteral("ip link set lo up && ip link add v0 type veth peer name v1 && "
                           "ip addr add 10.9.9.1/24 dev v0 && ip link set v0 up && ip link set v1 up && "
                           "mount --bind \"$0\" /etc/resolv.conf && echo READY >&2 && "
                           "exec \"$@\" --start-port %1")
                .arg(StartPort);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home.path());
        process.setProcessEnvironment(environment);
        QElapsedTimer clock;
        clock.start();
        process.start(QStringLiteral("unshare"),
                      QStringList{"-n", "-m", "sh", "-c", script, resolv.fileName(), QStringLiteral(QUERY_TOOL)} +
                          sources);
        if (!process.waitForFinished(30000))
            process.kill();
        const QByteArray err = process.readAllStandardError();
        if (!err.contains("READY"))
            QSKIP(qPrintable("no network namespace here: " + QString::fromLocal8Bit(err.trimmed())));
        QCOMPARE(process.exitCode(), 1);
        QVERIFY2(err.contains("Timed Out"), err.constData());
        QVERIFY2(clock.elapsed() < within, qPrintable(QString::number(clock.elapsed())));
    }
};

QTEST_GUILESS_MAIN(TestQueryTool)
#include "tst_q4vantage_query.moc"
