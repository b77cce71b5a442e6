// SPDX-License-Identifier: GPL-2.0-or-later
#include "fleet.h"
#include "query/infoprotocol.h"
#include "query/queryscheduler.h"
#include "testports.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QUdpSocket>

namespace {

const quint16 PoolPort = TestPorts::at(1);

AddressTable tableOf(const SimFleet& fleet)
{
    AddressTable table;
    for (const auto& server : fleet.servers())
        table.add(QStringLiteral("127.0.0.1"), server.port);
    return table;
}

// An open pool with spies on what it reports.
struct Pool {
    QueryScheduler scheduler;
    QSignalSpy answered{&scheduler, &QueryScheduler::serverAnswered};
    QSignalSpy finished{&scheduler, &QueryScheduler::finished};

    explicit Pool(int lastSocketIndex)
    {
        scheduler.setPool(lastSocketIndex, PoolPort);
        if (const auto error = scheduler.openPool())
            qFatal("pool: %s", qPrintable(error->message()));
    }
};

QList<ServerRecord> answers(const QSignalSpy& spy)
{
    QList<ServerRecord> records;
    for (const auto& arguments : spy)
        records.append(arguments.at(0).value<ServerRecord>());
    return records;
}

} // namespace

class TestQueryScheduler final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<ServerRecord>(); }

    // The master's port is the highest of a query: it decides what fits.
    void portPlanFitsBelow65536()
    {
        QCOMPARE((QuerySpeed::PortPlan{19, 9000}.masterPort()), 9022);
        QVERIFY((QuerySpeed::PortPlan{19, 65513}.isValid()));
        QVERIFY(!(QuerySpeed::PortPlan{19, 65514}.isValid()));
        QVERIFY((QuerySpeed::PortPlan{1, 65531}.isValid()));
        QVERIFY(!(QuerySpeed::PortPlan{1, 0}.isValid()));
    }

    void everyServerAnswersOnceWithItsData()
    {
        SimFleet fleet(fleetOf(60, TestPorts::at(900)));
        QVERIFY(!fleet.start());
        Pool pool(5);
        auto& [scheduler, answered, finished] = pool;
        QSignalSpy sent(&scheduler, &QueryScheduler::requestSent);
        scheduler.run(tableOf(fleet));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 5000);
        QCOMPARE(answered.count(), 60);
        QCOMPARE(sent.count(), 60);
        QCOMPARE(sent.last().at(0).toInt(), 60);
        QCOMPARE(sent.last().at(1).toInt(), 60);
        QVERIFY(!scheduler.isRunning());
        QCOMPARE(scheduler.busySockets(), 0);
        for (const ServerRecord& record : answers(answered)) {
            const auto& server = fleet.servers().at(record.port - TestPorts::at(901));
            const ServerRecord expected = InfoProtocol::parseReply(server.reply).value();
            QCOMPARE(record.address, QStringLiteral("127.0.0.1"));
            QCOMPARE(record.name, expected.name);
            QCOMPARE(record.players, expected.players);
            QCOMPARE(record.tokens, expected.tokens);
            QVERIFY(record.ping >= 0 && record.ping <= 999);
            QCOMPARE(answered.first().at(1).toBool(), false);
        }
        for (const auto& server : fleet.servers())
            QCOMPARE(server.requests, 1);
    }

    void slowestSpeedKeepsTwoRequestsInFlight()
    {
        SimFleet fleet(fleetOf(3, TestPorts::at(1000), 300));
        QVERIFY(!fleet.start());
        Pool pool(QuerySpeed::lastSocketIndex(0, 19));
        auto& [scheduler, answered, finished] = pool;
        QElapsedTimer clock;
        clock.start();
        scheduler.run(tableOf(fleet));
        QCOMPARE(scheduler.busySockets(), 2);
        QCOMPARE(scheduler.sentCount(), 2);
        QTest::qWait(150);
        QCOMPARE(fleet.infoRequests(), 2); // the third waits for a free socket
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 3000);
        QCOMPARE(fleet.infoRequests(), 3);
        QVERIFY2(clock.elapsed() >= 550, "the third request went out only after a reply");
    }

    void silentServersTimeOutAndAreNotRetried()
    {
        FleetOptions options = fleetOf(4, TestPorts::at(1100));
        options.silentFraction = 1.0;
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        Pool pool(19);
        auto& [scheduler, answered, finished] = pool;
        QElapsedTimer clock;
        clock.start();
        scheduler.run(tableOf(fleet));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 4000);
        QVERIFY(clock.elapsed() >= QueryScheduler::TimeoutMs - 50);
        QVERIFY(clock.elapsed() < QueryScheduler::TimeoutMs + 1000);
        QCOMPARE(answered.count(), 0);
        QCOMPARE(scheduler.timedOutCount(), 4);
        QCOMPARE(fleet.infoRequests(), 4);
    }

    void duplicatesAreQueriedTwice()
    {
        SimFleet fleet(fleetOf(2, TestPorts::at(1200)));
        QVERIFY(!fleet.start());
        AddressTable table = tableOf(fleet);
        table.add(QStringLiteral("127.0.0.1"), TestPorts::at(1201));
        Pool pool(0);
        auto& [scheduler, answered, finished] = pool;
        scheduler.run(table);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 3000);
        QCOMPARE(answered.count(), 3);
        QCOMPARE(fleet.servers().at(0).requests, 2);
    }

    // A caller that has not entered its event loop yet still hears it.
    void emptyTableFinishesOnceBackInTheEventLoop()
    {
        Pool pool(19);
        auto& [scheduler, answered, finished] = pool;
        scheduler.run(AddressTable());
        QCOMPARE(finished.count(), 0);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(scheduler.sentCount(), 0);
    }

    void cancelStopsSendingAndFreesThePorts()
    {
        SimFleet fleet(fleetOf(40, TestPorts::at(1300), 60));
        QVERIFY(!fleet.start());
        Pool pool(1);
        auto& [scheduler, answered, finished] = pool;
        scheduler.run(tableOf(fleet));
        QTRY_VERIFY_WITH_TIMEOUT(answered.count() >= 4, 3000);
        scheduler.cancel();
        const int answeredAtCancel = int(answered.count());
        const int requestsAtCancel = fleet.infoRequests();
        QTest::qWait(250);
        QCOMPARE(answered.count(), answeredAtCancel);
        QCOMPARE(fleet.infoRequests(), requestsAtCancel);
        QCOMPARE(finished.count(), 0);
        QVERIFY(!scheduler.isRunning());
        QUdpSocket probe;
        QVERIFY2(probe.bind(QHostAddress::AnyIPv4, PoolPort), "cancel releases the pool's ports");
    }

    void onlyTheAskedServerIsHeard()
    {
        FleetOptions options = fleetOf(1, TestPorts::at(1400));
        options.silentFraction = 1.0;
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        Pool pool(0);
        auto& [scheduler, answered, finished] = pool;
        scheduler.run(tableOf(fleet));
        QTRY_COMPARE(fleet.infoRequests(), 1);

        // A valid reply, but from a port the request did not go to.
        QUdpSocket rogue;
        QVERIFY(rogue.bind(QHostAddress::LocalHost, TestPorts::at(1402)));
        rogue.writeDatagram(SimReplies::infoResponse({{"si_name", "impostor"}}, {}), QHostAddress::LocalHost, PoolPort);
        QTRY_COMPARE(scheduler.droppedDatagrams(), 1);
        QCOMPARE(answered.count(), 0);
        QCOMPARE(scheduler.busySockets(), 1);
    }

    void lateReplyAfterReuseIsNotCreditedToTheNextServer()
    {
        // Server 0 answers after its time-out; by then socket 0 waits for
        // server 1, which is silent. The late reply must be dropped.
        FleetOptions options = fleetOf(2, TestPorts::at(1500), QueryScheduler::TimeoutMs + 300);
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        Pool pool(0);
        auto& [scheduler, answered, finished] = pool;
        AddressTable table;
        table.add(QStringLiteral("127.0.0.1"), TestPorts::at(1501));
        table.add(QStringLiteral("127.0.0.1"), TestPorts::at(1600)); // nobody there
        scheduler.run(table);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(scheduler.droppedDatagrams(), 1, 2000);
        QCOMPARE(answered.count(), 0);
    }

    void refreshQueriesOneServerOutsideAQuery()
    {
        SimFleet fleet(fleetOf(3, TestPorts::at(1600)));
        QVERIFY(!fleet.start());
        QueryScheduler scheduler; // no open pool: a refresh binds what it needs
        scheduler.setPool(19, PoolPort);
        QSignalSpy answered(&scheduler, &QueryScheduler::serverAnswered);
        QVERIFY(!scheduler.refresh(QStringLiteral("127.0.0.1"), TestPorts::at(1602)));
        QTRY_COMPARE(answered.count(), 1);
        QCOMPARE(answered.first().at(0).value<ServerRecord>().port, TestPorts::at(1602));
        QCOMPARE(answered.first().at(1).toBool(), true);
        QCOMPARE(fleet.infoRequests(), 1);
        QTRY_COMPARE(scheduler.busySockets(), 0);
        QUdpSocket probe;
        QVERIFY2(probe.bind(QHostAddress::AnyIPv4, PoolPort), "a refresh does not keep its port");
    }

    void portInUseIsReportedAndNothingStaysBound()
    {
        QUdpSocket squatter;
        QVERIFY(squatter.bind(QHostAddress::AnyIPv4, PoolPort + 3));
        QueryScheduler scheduler;
        scheduler.setPool(5, PoolPort);
        const auto error = scheduler.openPool();
        QVERIFY(error);
        QCOMPARE(error->kind, QueryError::Kind::PortUnavailable);
        QCOMPARE(error->detail, QString::number(PoolPort + 3));
        QVERIFY(error->message().contains(QString::number(PoolPort + 3)));
        QUdpSocket probe;
        QVERIFY(probe.bind(QHostAddress::AnyIPv4, PoolPort));
    }

    void closedPortsAndAFloodChangeNothing()
    {
        // 40 servers, and 10 ports where nothing listens (the system
        // answers those with "port unreachable").
        SimFleet fleet(fleetOf(40, TestPorts::at(1501)));
        QVERIFY(!fleet.start());
        AddressTable table = tableOf(fleet);
        for (quint16 port = TestPorts::at(1601); port < TestPorts::at(1611); ++port)
            table.add(QStringLiteral("127.0.0.1"), port);
        const auto endpoints = [](const QList<ServerRecord>& records) {
            QStringList list;
            for (const ServerRecord& record : records)
                list.append(record.endpointText() + QLatin1Char(' ') + record.name);
            list.sort();
            return list;
        };

        QStringList quiet;
        {
            Pool pool(19);
            pool.scheduler.run(table);
            QTRY_COMPARE_WITH_TIMEOUT(pool.finished.count(), 1, 10000);
            QCOMPARE(pool.scheduler.timedOutCount(), 10);
            QCOMPARE(pool.scheduler.busySockets(), 0);
            quiet = endpoints(answers(pool.answered));
        }
        QCOMPARE(quiet.size(), 40);

        // The same query while strangers send empty, huge and forged
        // datagrams to every socket of the pool.
        Pool pool(19);
        QUdpSocket flooder;
        QVERIFY(flooder.bind(QHostAddress::LocalHost, TestPorts::at(1700)));
        const QByteArray forged = SimReplies::infoResponse({{"si_name", "impostor"}}, {});
        const QByteArray huge(65507, 'x');
        int round = 0;
        QTimer flood;
        connect(&flood, &QTimer::timeout, &flood, [&] {
            for (quint16 port = PoolPort; port < PoolPort + 20; ++port) {
                flooder.writeDatagram(QByteArray(), QHostAddress::LocalHost, port);
                flooder.writeDatagram(forged, QHostAddress::LocalHost, port);
                if (round % 10 == 0)
                    flooder.writeDatagram(huge, QHostAddress::LocalHost, port);
            }
            ++round;
        });
        flood.start(5);
        pool.scheduler.run(table);
        QTRY_COMPARE_WITH_TIMEOUT(pool.finished.count(), 1, 10000);
        flood.stop();
        QCOMPARE(endpoints(answers(pool.answered)), quiet);
        QCOMPARE(pool.scheduler.timedOutCount(), 10);
        QVERIFY2(pool.scheduler.droppedDatagrams() > 100,
                 qPrintable(QString::number(pool.scheduler.droppedDatagrams())));
        QCOMPARE(pool.scheduler.busySockets(), 0);
    }

    void unusablePortsCountAsSilent()
    {
        Pool pool(1);
        auto& [scheduler, answered, finished] = pool;
        AddressTable table;
        table.add(QStringLiteral("127.0.0.1"), 0);
        table.add(QStringLiteral("127.0.0.1"), 70000);
        scheduler.run(table);
        QTRY_COMPARE(finished.count(), 1);
        QCOMPARE(scheduler.sentCount(), 2);
        QCOMPARE(scheduler.timedOutCount(), 2);
    }
};

QTEST_GUILESS_MAIN(TestQueryScheduler)
#include "tst_queryscheduler.moc"
