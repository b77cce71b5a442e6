// SPDX-License-Identifier: GPL-2.0-or-later
#include "endpoints.h"
#include "fleet.h"
#include "httpresponder.h"
#include "query/lanquery.h"
#include "query/masterquery.h"
#include "query/querysession.h"
#include "query/serversources.h"
#include "testports.h"

#include <QElapsedTimer>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QUdpSocket>

namespace {

const quint16 PoolPort = TestPorts::at(2000);

MasterAddress masterAt(quint16 port)
{
    return MasterAddress{"127.0.0.1", port};
}

QStringList fleetEndpoints(const SimFleet& fleet, int from = 0, int count = -1)
{
    QStringList texts;
    const auto& servers = fleet.servers();
    for (int i = from; i < (count < 0 ? servers.size() : from + count); ++i)
        texts.append(endpointText(QStringLiteral("127.0.0.1"), servers.at(i).port));
    return texts;
}

QByteArray lines(const QStringList& endpoints)
{
    return endpoints.join(QLatin1Char('\n')).toLatin1() + '\n';
}

// The answers of a session, by "address:port".
struct Answers {
    explicit Answers(QuerySession& session)
    {
        QObject::connect(&session, &QuerySession::serverAnswered,
                         [this](const ServerRecord& server) { endpoints.append(server.endpointText()); });
    }
    QStringList endpoints;
};

// A session on its own ports, with what it answered and when it finished.
struct Session {
    QuerySession session;
    Answers answers{session};
    QSignalSpy finished{&session, &QuerySession::finished};
    QSignalSpy timedOut{&session, &QuerySession::masterTimedOut};

    explicit Session(QuerySpeed::PortPlan ports) { session.setPool(ports); }
    // Starts the plan and waits for its end.
    bool run(const SourcePlan& plan, int timeoutMs = 8000)
    {
        return !session.startSources(plan) && QTest::qWaitFor([this] { return finished.count() == 1; }, timeoutMs);
    }
};

} // namespace

class TestServerSources final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qRegisterMetaType<ServerRecord>();
        qRegisterMetaType<AddressTable>();
        qRegisterMetaType<QList<SourceReport>>();
    }

    void mergingAsksEachServerOnce()
    {
        AddressTable known;
        known.add(QStringLiteral("3.3.3.3"), 3);
        known.add(QStringLiteral("4.4.4.4"), 4);
        AddressTable first;
        first.add(QStringLiteral("1.1.1.1"), 1);
        first.add(QStringLiteral("2.2.2.2"), 2);
        first.add(QStringLiteral("1.1.1.1"), 1); // the master listed it twice: asked twice
        AddressTable second;
        second.add(QStringLiteral("2.2.2.2"), 2);
        second.add(QStringLiteral("3.3.3.3"), 3);
        second.add(QStringLiteral("5.5.5.5"), 5);
        second.add(QStringLiteral("5.5.5.5"), 5);
        second.add(QStringLiteral("3.3.3.3"), 3); // known, and listed twice by this master
        AddressTable late;
        late.add(QStringLiteral("1.1.1.1"), 1);
        late.add(QStringLiteral("5.5.5.5"), 5);
        late.add(QStringLiteral("6.6.6.6"), 6);
        SourceMerger merger;
        merger.setStandIn(2);
        QCOMPARE(endpoints(merger.take(2, known)), (QStringList{"3.3.3.3:3", "4.4.4.4:4"}));
        QCOMPARE(endpoints(merger.take(0, first)), (QStringList{"1.1.1.1:1", "2.2.2.2:2", "1.1.1.1:1"}));
        // The known server stands for the master's first listing of it; its
        // second listing is asked as without the known servers.
        QCOMPARE(endpoints(merger.take(1, second)), (QStringList{"5.5.5.5:5", "5.5.5.5:5", "3.3.3.3:3"}));
        // The rest of the first master's list, split into a later datagram.
        QCOMPARE(endpoints(merger.take(0, late)), (QStringList{"1.1.1.1:1", "6.6.6.6:6"}));
        merger.clear();
        QCOMPARE(merger.take(1, second).count(), 5);
    }

    void overlappingMastersAskEachServerOnce()
    {
        SimFleet a(fleetOf(5, TestPorts::at(201)));
        SimFleet b(fleetOf(5, TestPorts::at(301)));
        QVERIFY(!a.start());
        QVERIFY(!b.start());
        // b lists three of a's servers, and its own first server twice.
        QList<QPair<quint32, quint16>> listed;
        for (int i = 0; i < 3; ++i)
            listed.append({0x7F000001u, a.servers().at(i).port});
        listed.append({0x7F000001u, b.servers().at(0).port});
        for (int i = 0; i < 5; ++i)
            listed.append({0x7F000001u, b.servers().at(i).port});
        b.setMasterDatagrams(SimReplies::serverList(listed));
        Session run({5, PoolPort + 100});
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(201)), masterAt(TestPorts::at(301))};
        QVERIFY(run.run(plan));
        const QStringList expected = fleetEndpoints(a) + fleetEndpoints(b, 0, 1) + fleetEndpoints(b);
        // Whichever master answers first gives the shared servers.
        QStringList asked = endpoints(run.session.addresses());
        asked.sort();
        QStringList wanted = expected;
        wanted.sort();
        QCOMPARE(asked, wanted);
        QCOMPARE(run.answers.endpoints.size(), 11);
        for (const QString& endpoint : fleetEndpoints(a))
            QCOMPARE(run.answers.endpoints.count(endpoint), 1);
        QCOMPARE(a.infoRequests(), 5);
    }

    // The default sources of today: a master that no longer answers beside
    // a published list, and the servers known from before.
    void liveServersAreAskedBeforeASilentMasterGivesUp()
    {
        SimFleet fleet(fleetOf(32, TestPorts::at(801)));
        QVERIFY(!fleet.start());
        fleet.setMasterSilent(true);
        const QStringList all = fleetEndpoints(fleet);
        HttpResponder web;
        constexpr int ListDelayMs = 300;
        // The list names every server but the two known ones, and one of
        // those again.
        web.set(QStringLiteral("/q4"), {200, lines(all.mid(1)), "text/plain", ListDelayMs});
        QuerySession session;
        session.setPool({5, PoolPort + 700});
        QElapsedTimer clock;
        qint64 listedAt = -1;
        qint64 lastAnswerAt = -1;
        QStringList answered;
        connect(&session, &QuerySession::addressesAdded, this, [&] { listedAt = clock.elapsed(); });
        connect(&session, &QuerySession::serverAnswered, this, [&](const ServerRecord& server) {
            answered.append(server.endpointText());
            lastAnswerAt = clock.elapsed();
        });
        QSignalSpy finished(&session, &QuerySession::finished);
        QSignalSpy timedOut(&session, &QuerySession::masterTimedOut);
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(801))};
        plan.listUrls = {web.url("/q4")};
        plan.known.add(QStringLiteral("127.0.0.1"), fleet.servers().at(0).port);
        plan.known.add(QStringLiteral("127.0.0.1"), fleet.servers().at(1).port);
        clock.start();
        QVERIFY(!session.startSources(plan));
        // The known servers are asked before any source answered.
        QCOMPARE(session.phase(), QuerySession::Phase::Querying);
        QCOMPARE(session.addresses().count(), 2);
        QTRY_COMPARE_WITH_TIMEOUT(answered.size(), 32, MasterQuery::TimeoutMs);
        QVERIFY2(listedAt >= ListDelayMs && lastAnswerAt - listedAt < 250,
                 qPrintable(QStringLiteral("list at %1 ms, last answer at %2 ms").arg(listedAt).arg(lastAnswerAt)));
        // Still waiting for the master, which costs only its own time-out.
        QCOMPARE(finished.count(), 0);
        QVERIFY(session.isRunning());
        QVERIFY(!session.sourceReports().first().settled);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, MasterQuery::TimeoutMs);
        QVERIFY(clock.elapsed() >= MasterQuery::TimeoutMs);
        QCOMPARE(timedOut.count(), 0); // one silent source among others is no time-out
        answered.sort();
        QStringList expected = all;
        expected.sort();
        QCOMPARE(answered, expected);
        QCOMPARE(fleet.infoRequests(), 32);
        const auto& reports = session.sourceReports();
        QVERIFY(reports.at(0).timedOut);
        QCOMPARE(reports.at(1).addresses, 31);
        QCOMPARE(reports.at(2).kind, SourceReport::Kind::Known);
        QCOMPARE(reports.at(2).addresses, 2);
    }

    // The community master sends 198 records a datagram, no count and no
    // end mark: by the length rule its first datagram is already the last.
    void aMasterThatSplitsItsListIsListedInFull()
    {
        FleetOptions options = fleetOf(600, TestPorts::at(1001));
        options.masterSplit = 198;
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        Session run({19, PoolPort + 800});
        QSignalSpy phases(&run.session, &QuerySession::phaseChanged);
        QElapsedTimer clock;
        clock.start();
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(1001))};
        QVERIFY(run.run(plan));
        QCOMPARE(run.answers.endpoints.size(), 600);
        QCOMPARE(endpoints(run.session.addresses()), fleetEndpoints(fleet));
        QCOMPARE(run.session.sourceReports().first().addresses, 600);
        QCOMPARE(fleet.infoRequests(), 600);
        // Listening for the rest did not hold the end up.
        QVERIFY2(clock.elapsed() < MasterQuery::TimeoutMs, qPrintable(QString::number(clock.elapsed())));
        QList<QuerySession::Phase> seen;
        for (const auto& arguments : phases)
            seen.append(arguments.at(0).value<QuerySession::Phase>());
        QCOMPARE(seen, (QList<QuerySession::Phase>{QuerySession::Phase::Requesting, QuerySession::Phase::Receiving,
                                                   QuerySession::Phase::Sorting, QuerySession::Phase::Querying,
                                                   QuerySession::Phase::Idle}));
    }

    void everySourceFailingIsTheMasterTimeOut()
    {
        SimFleet a(fleetOf(2, TestPorts::at(401)));
        SimFleet b(fleetOf(2, TestPorts::at(451)));
        QVERIFY(!a.start());
        QVERIFY(!b.start());
        a.setMasterSilent(true);
        b.setMasterSilent(true);
        HttpResponder web;
        Session run({1, PoolPort + 200});
        QSignalSpy failed(&run.session, &QuerySession::failed);
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(401)), masterAt(TestPorts::at(451))};
        plan.listUrls = {web.url("/missing")};
        QVERIFY(!run.session.startSources(plan));
        QTRY_COMPARE_WITH_TIMEOUT(run.timedOut.count(), 1, 6000);
        QCOMPARE(run.finished.count(), 0);
        QCOMPARE(failed.count(), 0);
        QVERIFY(!run.session.isRunning());
        QCOMPARE(run.session.sourceReports().at(2).error, QStringLiteral("HTTP 404 Not Found"));

        // A player who queried before still gets the servers they knew.
        plan.known.add(QStringLiteral("127.0.0.1"), a.servers().at(0).port);
        plan.known.add(QStringLiteral("127.0.0.1"), b.servers().at(1).port);
        QVERIFY(run.run(plan, 6000));
        QCOMPARE(run.timedOut.count(), 1);
        QCOMPARE(run.answers.endpoints.size(), 2);
        QCOMPARE(run.session.sourceReports().last().kind, SourceReport::Kind::Known);
        QCOMPARE(run.session.sourceReports().last().addresses, 2);
    }

    void publishedListsAreFetchedAndMerged()
    {
        SimFleet fleet(fleetOf(8, TestPorts::at(501)));
        QVERIFY(!fleet.start());
        fleet.setMasterSilent(true);
        const QStringList all = fleetEndpoints(fleet);
        HttpResponder web;
        QByteArray json = "{\"servers\":[";
        for (int i = 0; i < 4; ++i)
            json += (i ? ",{\"ip\":\"127.0.0.1\",\"port\":" : "{\"ip\":\"127.0.0.1\",\"port\":") +
                    QByteArray::number(fleet.servers().at(i).port) + '}';
        json += "]}";
        web.set("/json", {200, json, "application/json", 0});
        web.set("/text", {200, "# more\n" + lines(all.mid(2)), "text/plain", 0});
        web.set("/garbage", {200, "<html>oops</html>\nnot:a:server\n", "text/html", 0});
        Session run({5, PoolPort + 300});
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(501))};
        plan.listUrls = {web.url("/json"), web.url("/text"), web.url("/garbage"), web.url("/gone")};
        QVERIFY(run.run(plan));
        QCOMPARE(endpoints(run.session.addresses()), all);
        QCOMPARE(run.answers.endpoints.size(), 8);
        const auto& reports = run.session.sourceReports();
        QCOMPARE(reports.size(), 5);
        QVERIFY(reports.at(0).timedOut);
        QCOMPARE(reports.at(1).addresses, 4);
        QCOMPARE(reports.at(2).addresses, 6);
        QCOMPARE(reports.at(3).addresses, 0);
        QCOMPARE(reports.at(3).skipped, 2);
        QVERIFY(!reports.at(3).failed());
        QCOMPARE(reports.at(4).error, "HTTP 404 Not Found");
    }

    // A list can aim every reader's browser at one server, and name it in
    // many ways: it is asked once. A list naming the program's own query
    // ports makes no phantom servers.
    void aListNeverMultipliesOneServerNorAsksItself()
    {
        SimFleet fleet(fleetOf(1, TestPorts::at(1701)));
        QVERIFY(!fleet.start());
        fleet.setMasterSilent(true);
        const QByteArray port = QByteArray::number(fleet.servers().first().port);
        QByteArray list;
        for (int i = 0; i < 6000; ++i)
            list += "127.0.0.1:" + port + '\n';
        for (const char* spelling : {"localhost", "LOCALHOST", "127.1", "2130706433", "0x7f000001", "127.0.0.01"})
            list += spelling + (':' + port) + '\n';
        const QuerySpeed::PortPlan ports{5, PoolPort + 900};
        for (int own = ports.startPort; own <= ports.masterPort(); ++own)
            list += "127.0.0.1:" + QByteArray::number(own) + '\n';
        HttpResponder web;
        web.set(QStringLiteral("/aimed"), {200, list, "text/plain", 0});
        Session run(ports);
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(1701))};
        plan.listUrls = {web.url("/aimed")};
        QVERIFY(run.run(plan));
        QCOMPARE(run.answers.endpoints, QStringList{"127.0.0.1:" + QString::fromLatin1(port)});
        QCOMPARE(fleet.infoRequests(), 1);
        QCOMPARE(run.session.scheduler().skippedCount(), ports.masterPort() - ports.startPort + 1 + 1);
        QCOMPARE(run.session.scheduler().timedOutCount(), 0);
    }

    void laterMastersMovePastTakenPorts()
    {
        SimFleet a(fleetOf(2, TestPorts::at(601)));
        SimFleet b(fleetOf(3, TestPorts::at(651)));
        QVERIFY(!a.start());
        QVERIFY(!b.start());
        const QuerySpeed::PortPlan ports{1, PoolPort + 500};
        QUdpSocket squatter;
        QVERIFY(squatter.bind(QHostAddress::AnyIPv4, quint16(ports.masterPort() + 1)));
        Session run(ports);
        SourcePlan plan;
        plan.masters = {masterAt(TestPorts::at(601)), masterAt(TestPorts::at(651))};
        QVERIFY(run.run(plan, 6000));
        QCOMPARE(run.session.addresses().count(), 5);
        // The first master's port is the documented one: taken, nothing runs.
        QUdpSocket firstSquatter;
        QVERIFY(firstSquatter.bind(QHostAddress::AnyIPv4, quint16(ports.masterPort())));
        const auto error = run.session.startSources(plan);
        QVERIFY(error);
        QCOMPARE(error->kind, QueryError::Kind::PortUnavailable);
    }

    void theLanIsSearchedByBroadcast()
    {
        // A fleet whose servers sit on the first two game ports.
        SimFleet lan(fleetOf(2, LanQuery::FirstGamePort - 1));
        if (const auto error = lan.start())
            QSKIP(qPrintable(QStringLiteral("the game ports are taken here: %1").arg(*error)));
        QuerySession session;
        session.setPool({1, PoolPort + 600});
        Answers answers(session);
        QSignalSpy finished(&session, &QuerySession::finished);
        QSignalSpy phases(&session, &QuerySession::phaseChanged);
        QElapsedTimer clock;
        clock.start();
        // Twice the same network: each server is listed once.
        QVERIFY(!session.startLan({QHostAddress::LocalHost, QHostAddress::LocalHost}));
        QCOMPARE(session.phase(), QuerySession::Phase::Broadcasting);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, LanQuery::WaitMs + 1000);
        QVERIFY(clock.elapsed() >= LanQuery::WaitMs - 50);
        QCOMPARE(answers.endpoints, fleetEndpoints(lan));
        QCOMPARE(session.lan().sentCount(), 16);
        QCOMPARE(lan.infoRequests(), 4);
        QVERIFY(!session.isRunning());
    }
};

QTEST_GUILESS_MAIN(TestServerSources)
#include "tst_serversources.moc"
