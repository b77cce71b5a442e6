// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/hostlookup.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <chrono>
#include <thread>

namespace {

// A resolver that answers after a while, as a slow name server does.
HostLookup::Resolver slowResolver(std::chrono::milliseconds delay, std::atomic<int>* calls = nullptr)
{
    return [delay, calls](const QString& host) {
        if (calls)
            ++*calls;
        std::this_thread::sleep_for(delay);
        if (host == QLatin1String("two.test"))
            return HostLookup::Result{{QHostAddress("::1"), QHostAddress("10.0.0.2")}, {}};
        return HostLookup::Result{{}, "Name or service not known"};
    };
}

} // namespace

class TestHostLookup final : public QObject {
    Q_OBJECT

private slots:
    void cleanup() { HostLookup::setResolver({}); }

    void answersArriveOnTheOwnersThread()
    {
        HostLookup::setResolver(slowResolver(std::chrono::milliseconds(20)));
        HostLookup lookup;
        QSignalSpy finished(&lookup, &HostLookup::finished);
        QThread* const mine = QThread::currentThread();
        QThread* seen = nullptr;
        connect(&lookup, &HostLookup::finished, this, [&seen] { seen = QThread::currentThread(); });
        lookup.start(QStringLiteral("two.test"));
        QVERIFY(lookup.isRunning());
        QVERIFY(finished.wait(2000));
        QCOMPARE(seen, mine);
        QVERIFY(!lookup.isRunning());
        const auto result = finished.first().first().value<HostLookup::Result>();
        QCOMPARE(result.addresses.size(), 2);
        QCOMPARE(HostLookup::firstOf(result.addresses, QAbstractSocket::IPv4Protocol),
                 QHostAddress(QStringLiteral("10.0.0.2")));
        QCOMPARE(HostLookup::firstOf(result.addresses, QAbstractSocket::IPv6Protocol), QHostAddress::LocalHostIPv6);

        lookup.start(QStringLiteral("nothing.test"));
        QVERIFY(finished.wait(2000));
        const auto failure = finished.last().first().value<HostLookup::Result>();
        QVERIFY(failure.addresses.isEmpty());
        QCOMPARE(failure.error, QStringLiteral("Name or service not known"));
    }

    void forgottenLookupsNeverReport()
    {
        HostLookup::setResolver(slowResolver(std::chrono::milliseconds(100)));
        HostLookup lookup;
        QSignalSpy finished(&lookup, &HostLookup::finished);
        lookup.start(QStringLiteral("two.test"));
        lookup.abort();
        QVERIFY(!lookup.isRunning());
        // A newer lookup replaces an older one: only its answer comes.
        lookup.start(QStringLiteral("first.test"));
        lookup.start(QStringLiteral("two.test"));
        QVERIFY(finished.wait(2000));
        QTest::qWait(250);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().first().value<HostLookup::Result>().addresses.size(), 2);

        // An owner gone before the answer: nothing is told, nothing breaks.
        std::atomic<int> calls = 0;
        HostLookup::setResolver(slowResolver(std::chrono::milliseconds(100), &calls));
        {
            HostLookup gone;
            gone.start(QStringLiteral("two.test"));
        }
        QTRY_COMPARE(calls.load(), 1);
        QTest::qWait(200);
    }

    void literalAddressesNeedNoNameServer()
    {
        // Numbers are read by the resolver itself: no question leaves the machine.
        const auto four = HostLookup::resolveWithSystem(QStringLiteral("127.0.0.1"));
        QCOMPARE(four.addresses, QList<QHostAddress>{QHostAddress::LocalHost});
        const auto six = HostLookup::resolveWithSystem(QStringLiteral("::1"));
        QCOMPARE(six.addresses, QList<QHostAddress>{QHostAddress::LocalHostIPv6});
        QVERIFY(!HostLookup::resolveWithSystem(QString()).error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestHostLookup)
#include "tst_hostlookup.moc"
