// SPDX-License-Identifier: GPL-2.0-or-later
#include "fleet.h"
#include "query/hostlookup.h"
#include "query/masterprotocol.h"
#include "query/masterquery.h"
#include "query/querysession.h"
#include "simreplies.h"
#include "testports.h"

#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QSignalSpy>
#include <QTest>
#include <QUdpSocket>

#include <chrono>
#include <thread>

namespace {

const quint16 PoolPort = TestPorts::at(2000);

MasterAddress masterAt(quint16 port)
{
    return MasterAddress{"127.0.0.1", port};
}

// A session on its own pool, with spies on what it reports.
struct Session {
    QuerySession session;
    QSignalSpy phases{&session, &QuerySession::phaseChanged};
    QSignalSpy answered{&session, &QuerySession::serverAnswered};
    QSignalSpy finished{&session, &QuerySession::finished};
    QSignalSpy timedOut{&session, &QuerySession::masterTimedOut};
    QSignalSpy failed{&session, &QuerySession::failed};

    explicit Session(int lastSocketIndex = 1) { session.setPool({lastSocketIndex, PoolPort}); }
};

} // namespace

class TestQuerySession final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<ServerRecord>(); }
    void cleanup() { HostLookup::setResolver({}); }

    void masterListIsQueriedThroughThePhases()
    {
        SimFleet fleet(fleetOf(300, TestPorts::at(1))); // two master datagrams
        QVERIFY(!fleet.start());
        Session run(19);
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        QVERIFY(!session.startMaster(masterAt(TestPorts::at(1))));
        QCOMPARE(session.phase(), QuerySession::Phase::Requesting);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 10000);
        QCOMPARE(answered.count(), 300);
        QCOMPARE(session.addresses().count(), 300);
        QCOMPARE(session.addresses().at(299).port, TestPorts::at(301));
        QList<QuerySession::Phase> seen;
        for (const auto& arguments : phases)
            seen.append(arguments.at(0).value<QuerySession::Phase>());
        QCOMPARE(seen.first(), QuerySession::Phase::Requesting);
        QVERIFY(seen.contains(QuerySession::Phase::Receiving));
        QVERIFY(seen.contains(QuerySession::Phase::Sorting));
        QVERIFY(seen.contains(QuerySession::Phase::Querying));
        QCOMPARE(seen.last(), QuerySession::Phase::Idle);
        QVERIFY(!session.isRunning());
        QCOMPARE(session.droppedDatagrams(), 0);
    }

    void fullLastDatagramWaitsForTheTimeOut()
    {
        SimFleet fleet(fleetOf(1, TestPorts::at(501)));
        QVERIFY(!fleet.start());
        QByteArray full = MasterProtocol::replyHeader();
        full.append(231 * 6, '\x01');
        fleet.setMasterDatagrams({full});
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        QVERIFY(!session.startMaster(masterAt(TestPorts::at(501))));
        QTRY_COMPARE_WITH_TIMEOUT(timedOut.count(), 1, 4000);
        QCOMPARE(session.addresses().count(), 0);
        QVERIFY(phases.count() >= 2); // requesting, receiving, then idle
    }

    void tooLongAListEndsWithAClearError()
    {
        SimFleet fleet(fleetOf(1, TestPorts::at(601)));
        QVERIFY(!fleet.start());
        QList<QPair<quint32, quint16>> listed;
        for (int i = 0; i < MasterProtocol::MaxRecords + 1; ++i)
            listed.append({0x7F000001u, quint16(20000 + i % 1000)});
        fleet.setMasterDatagrams(SimReplies::serverList(listed));
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        QVERIFY(!session.startMaster(masterAt(TestPorts::at(601))));
        QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 4000);
        QCOMPARE(failed.first().at(0).value<QueryError>().kind, QueryError::Kind::TooManyServers);
        QVERIFY(!session.isRunning());
    }

    // A master that streams full datagrams and never ends its list.
    void endlessListIsRefusedBeforeTheTimeOut()
    {
        SimFleet fleet(fleetOf(1, TestPorts::at(651)));
        QVERIFY(!fleet.start());
        QList<QPair<quint32, quint16>> listed;
        for (int i = 0; i < 231 * 40; ++i)
            listed.append({0x7F000001u, quint16(20000 + i % 1000)});
        QList<QByteArray> datagrams = SimReplies::serverList(listed);
        datagrams.removeLast(); // no short datagram: "more follow" for ever
        fleet.setMasterDatagrams(datagrams);
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!session.startMaster(masterAt(TestPorts::at(651))));
        QTRY_COMPARE_WITH_TIMEOUT(failed.count() + timedOut.count(), 1, 4000);
        QCOMPARE(failed.count(), 1);
        QCOMPARE(failed.first().at(0).value<QueryError>().kind, QueryError::Kind::TooManyServers);
        QVERIFY(clock.elapsed() < MasterQuery::TimeoutMs);
    }

    void masterPortInUseStopsBeforeSending()
    {
        QUdpSocket squatter;
        QVERIFY(squatter.bind(QHostAddress::AnyIPv4, PoolPort + 1 + QuerySpeed::MasterPortOffset));
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        const auto error = session.startMaster(masterAt(TestPorts::at(701)));
        QVERIFY(error);
        QCOMPARE(error->kind, QueryError::Kind::PortUnavailable);
        QVERIFY(!session.isRunning());
        QUdpSocket probe;
        QVERIFY2(probe.bind(QHostAddress::AnyIPv4, PoolPort), "the pool was released again");
    }

    void unknownMasterHostFailsClearly()
    {
        HostLookup::setResolver([](const QString&) { return HostLookup::Result{{}, "Name or service not known"}; });
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        QVERIFY(!session.startMaster(MasterAddress{"no-such-host.test", 27650}));
        QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 1000);
        const auto error = failed.first().first().value<QueryError>();
        QCOMPARE(error.kind, QueryError::Kind::MasterNotFound);
        QCOMPARE(error.detail, QStringLiteral("no-such-host.test"));
        QCOMPARE(error.systemText, QStringLiteral("Name or service not known"));
        QVERIFY(error.message().contains(QStringLiteral("no-such-host.test")));
        QVERIFY(!session.isRunning());
    }

    void aStuckNameLookupEndsWithTheTimeOut()
    {
        // A name server that never answers: the master's time-out still
        // ends the query on time, and the lookup is left behind.
        HostLookup::setResolver([](const QString&) {
            std::this_thread::sleep_for(std::chrono::milliseconds(MasterQuery::TimeoutMs + 1500));
            return HostLookup::Result{{QHostAddress::LocalHost}, {}};
        });
        SimFleet fleet(fleetOf(2, TestPorts::at(651)));
        QVERIFY(!fleet.start());
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!session.startMaster(MasterAddress{"stuck.test", TestPorts::at(651)}));
        QTRY_COMPARE_WITH_TIMEOUT(timedOut.count(), 1, MasterQuery::TimeoutMs + 1000);
        QVERIFY(clock.elapsed() < MasterQuery::TimeoutMs + 500);
        QVERIFY(!session.isRunning());
        // The late answer finds nobody waiting and asks no master.
        QTest::qWait(2000);
        QCOMPARE(fleet.masterRequests(), 0);
    }

    void anIPv6MasterIsAskedOverIPv6()
    {
        SimFleet fleet(fleetOf(2, TestPorts::at(661)));
        QVERIFY(!fleet.start());
        QUdpSocket master;
        if (!master.bind(QHostAddress::LocalHostIPv6, TestPorts::at(660)))
            QSKIP("no IPv6 loopback here");
        connect(&master, &QUdpSocket::readyRead, &master, [&master] {
            while (master.hasPendingDatagrams()) {
                const QNetworkDatagram request = master.receiveDatagram();
                // One record: 127.0.0.1, the fleet's first server.
                master.writeDatagram(
                    request.makeReply(SimReplies::serverList({{0x7F000001u, TestPorts::at(662)}}).first()));
            }
        });
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        const auto master6 = parseMasterAddress(QStringLiteral("[::1]:%1").arg(TestPorts::at(660)));
        QVERIFY(master6);
        QVERIFY(!session.startMaster(*master6));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 4000);
        QCOMPARE(answered.count(), 1);
        QCOMPARE(answered.first().first().value<ServerRecord>().port, TestPorts::at(662));
    }

    void answersFromAForeignAddressAreDropped()
    {
        SimFleet fleet(fleetOf(2, TestPorts::at(801)));
        QVERIFY(!fleet.start());
        // The master lists a server that is not the fleet's; a rogue then
        // sends the master's reply from another port.
        Session run;
        auto& [session, phases, answered, finished, timedOut, failed] = run;
        fleet.setMasterSilent(true);
        QVERIFY(!session.startMaster(masterAt(TestPorts::at(801))));
        QUdpSocket rogue;
        QVERIFY(rogue.bind(QHostAddress::LocalHost, TestPorts::at(900)));
        QTRY_COMPARE(fleet.masterRequests(), 1);
        rogue.writeDatagram(MasterProtocol::replyHeader() + QByteArray("\x7F\0\0\x01\x10\x27", 6),
                            QHostAddress::LocalHost, session.masterLocalPort());
        QTRY_COMPARE(session.droppedDatagrams(), 1);
        QTRY_COMPARE_WITH_TIMEOUT(timedOut.count(), 1, 4000);
    }
};

QTEST_GUILESS_MAIN(TestQuerySession)
#include "tst_querysession.moc"
