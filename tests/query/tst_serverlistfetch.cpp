// SPDX-License-Identifier: GPL-2.0-or-later
#include "endpoints.h"
#include "fleet.h"
#include "httpresponder.h"
#include "peakmemory.h"
#include "query/httpproxy.h"
#include "query/serverlistfetch.h"
#include "query/serversources.h"
#include "testports.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

const quint16 PoolPort = TestPorts::at(2000);

// The longest the event loop stood still while this lived.
struct LoopWatch {
    LoopWatch()
    {
        QObject::connect(&ticker, &QTimer::timeout, [this] { longestGap = std::max(longestGap, clock.restart()); });
        clock.start();
        ticker.start(5);
    }
    QElapsedTimer clock;
    QTimer ticker;
    qint64 longestGap = 0;
};

} // namespace

// Published server lists as the sites serve them: slow, huge, endless, or
// behind a proxy. Each costs only itself.
class TestServerListFetch final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<AddressTable>(); }

    void aSlowListCostsOnlyItsTimeOut()
    {
        HttpResponder web;
        web.set(QStringLiteral("/slow"), {200, "127.0.0.1:1\n", "text/plain", ServerListFetch::TimeoutMs + 3000});
        ServerSources sources;
        QSignalSpy finished(&sources, &ServerSources::finished);
        SourcePlan plan;
        plan.listUrls = {web.url("/slow")};
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!sources.start(plan, PoolPort));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, ServerListFetch::TimeoutMs + 2000);
        const qint64 elapsed = clock.elapsed();
        const auto reports = sources.reports();
        QVERIFY2(elapsed >= ServerListFetch::TimeoutMs - 50,
                 qPrintable(QStringLiteral("after %1 ms: %2").arg(elapsed).arg(reports.first().error)));
        QVERIFY(elapsed < ServerListFetch::TimeoutMs + 1000);
        QCOMPARE(reports.first().error, QStringLiteral("no reply within 5 seconds"));
    }

    void aHugeListIsCutWithoutFreezing()
    {
        QByteArray body;
        for (int i = 0; i < 100000; ++i)
            body += "10." + QByteArray::number(i / 65536) + '.' + QByteArray::number(i / 256 % 256) + '.' +
                    QByteArray::number(i % 256) + ":28004\n";
        HttpResponder web;
        web.set(QStringLiteral("/huge"), {200, body, "text/plain", 0});
        ServerSources sources;
        QSignalSpy listed(&sources, &ServerSources::listed);
        QSignalSpy finished(&sources, &ServerSources::finished);
        SourcePlan plan;
        plan.listUrls = {web.url("/huge")};
        QVERIFY(!sources.start(plan, PoolPort));
        LoopWatch loop; // the event loop keeps turning while the list comes in
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 5000);
        QCOMPARE(listed.count(), 1);
        const auto table = listed.first().at(0).value<AddressTable>();
        const auto reports = sources.reports();
        QCOMPARE(table.count(), ServerListReader::MaxAddresses);
        QVERIFY(reports.first().truncated);
        QVERIFY2(loop.longestGap < 500, qPrintable(QStringLiteral("the loop stood still %1 ms").arg(loop.longestGap)));
    }

    // A site that never ends its header or its body costs only its own
    // list: the other list is read, memory stays near the cap, and the next
    // query fetches every list again.
    void anEndlessListCostsOnlyItself_data()
    {
        QTest::addColumn<QByteArray>("head");
        QTest::addColumn<QByteArray>("again");
        QTest::newRow("endless header line")
            << QByteArray("HTTP/1.1 200 OK\r\nX-Filler: ") << QByteArray(64 * 1024, 'a');
        QTest::newRow("endless chunked body") << QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n")
                                              << QByteArray("10000\r\n") + QByteArray(0x10000, 'b') + "\r\n";
    }

    void anEndlessListCostsOnlyItself()
    {
        QFETCH(QByteArray, head);
        QFETCH(QByteArray, again);
        HttpResponder web;
        HttpResponder::Reply endless;
        endless.raw = true;
        endless.body = head;
        endless.again = again;
        endless.repeat = 100000;
        web.set(QStringLiteral("/endless"), endless);
        web.set(QStringLiteral("/good"), {200, "127.0.0.1:28004\n", "text/plain", 0});
        ServerSources sources;
        QSignalSpy listed(&sources, &ServerSources::listed);
        QSignalSpy finished(&sources, &ServerSources::finished);
        SourcePlan plan;
        plan.listUrls = {web.url("/endless"), web.url("/good")};
        LoopWatch loop; // the window must never stand still for a stuck site
        for (int round = 1; round <= 2; ++round) {
            QElapsedTimer clock;
            clock.start();
            const qint64 before = peakMemoryMb(true);
            QVERIFY(!sources.start(plan, PoolPort));
            QTRY_COMPARE_WITH_TIMEOUT(finished.count(), round, ServerListFetch::TimeoutMs + 2000);
            const qint64 grown = peakMemoryMb(false) - before;
            qInfo("round %d: %lld ms, peak %lld MB above the start", round, clock.elapsed(), grown);
            QVERIFY2(!PeakMemoryIsMeaningful || grown < ServerListFetch::MaxReplyBytes / (1024 * 1024) + 24,
                     qPrintable(QStringLiteral("%1 MB more").arg(grown)));
            QVERIFY2(clock.elapsed() < ServerListFetch::TimeoutMs + 300, qPrintable(QString::number(clock.elapsed())));
            QVERIFY2(listed.count() == round, qPrintable(sources.reports().at(1).error));
            QVERIFY(sources.reports().at(0).failed());
            QCOMPARE(sources.reports().at(1).addresses, 1);
        }
        QVERIFY2(loop.longestGap < 500, qPrintable(QStringLiteral("the loop stood still %1 ms").arg(loop.longestGap)));
    }

    void listsGoThroughTheProxy()
    {
        // The responder plays the proxy: a request through a proxy names the
        // whole address on its request line.
        HttpResponder proxy;
        proxy.set(QStringLiteral("http://lists.invalid/q4"), {200, "127.0.0.1:28004\n", "text/plain", 0});
        ServerSources sources;
        QSignalSpy listed(&sources, &ServerSources::listed);
        QSignalSpy finished(&sources, &ServerSources::finished);
        SourcePlan plan;
        plan.listUrls = {QUrl("http://lists.invalid/q4")};
        plan.proxy = httpProxy(true, QStringLiteral("127.0.0.1:%1").arg(proxy.url({}).port()));
        QVERIFY(!sources.start(plan, PoolPort));
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 5000);
        QCOMPARE(endpoints(listed.first().at(0).value<AddressTable>()), QStringList{"127.0.0.1:28004"});
        QVERIFY(proxy.lastRequest().startsWith("GET http://lists.invalid/q4 "));

        QCOMPARE(httpProxy(false, QStringLiteral("proxy:3128")).type(), QNetworkProxy::NoProxy);
        QCOMPARE(httpProxy(true, QString()).type(), QNetworkProxy::NoProxy);
        const QNetworkProxy named = httpProxy(true, QStringLiteral("http://user:pw@proxy.lan:3128"));
        QCOMPARE(named.type(), QNetworkProxy::HttpProxy);
        QCOMPARE(named.hostName(), QStringLiteral("proxy.lan"));
        QCOMPARE(named.port(), 3128);
        QCOMPARE(named.user(), QStringLiteral("user"));
        QCOMPARE(httpProxy(true, QStringLiteral("proxy.lan")).port(), 8080);
    }
};

QTEST_GUILESS_MAIN(TestServerListFetch)
#include "tst_serverlistfetch.moc"
