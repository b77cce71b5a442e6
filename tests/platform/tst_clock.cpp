// SPDX-License-Identifier: GPL-2.0-or-later
#include "manualclock.h"
#include "platform/clock.h"

#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

class TestClock final : public QObject {
    Q_OBJECT

private slots:
    // The program's own clock: the time of day, and alarms that repeat
    // until stopped (measured in real, short intervals).
    void systemAlarmsRepeatUntilStopped()
    {
        SystemClock clock;
        QVERIFY(std::abs(clock.nowMs() - QDateTime::currentMSecsSinceEpoch()) < 1000);
        const auto alarm = clock.makeAlarm();
        QSignalSpy fired(alarm.get(), &Alarm::fired);
        QVERIFY(!alarm->isActive());
        alarm->start(20);
        QVERIFY(alarm->isActive());
        QTRY_VERIFY_WITH_TIMEOUT(fired.size() >= 3, 2000);
        alarm->stop();
        QVERIFY(!alarm->isActive());
        const qsizetype count = fired.size();
        QTest::qWait(100);
        QCOMPARE(fired.size(), count);
    }

    // The tests' clock fires every alarm due on the way, in time order, as
    // often as a real one would, and forgets alarms that were deleted.
    void manualTimeFiresWhatFallsDue()
    {
        ManualClock clock;
        const qint64 start = clock.nowMs();
        auto fast = clock.makeAlarm();
        auto slow = clock.makeAlarm();
        QStringList order;
        connect(fast.get(), &Alarm::fired, this,
                [&] { order.append(QStringLiteral("fast@%1").arg(clock.nowMs() - start)); });
        connect(slow.get(), &Alarm::fired, this,
                [&] { order.append(QStringLiteral("slow@%1").arg(clock.nowMs() - start)); });
        fast->start(300);
        slow->start(500);
        clock.advance(1000);
        QCOMPARE(order, (QStringList{"fast@300", "slow@500", "fast@600", "fast@900", "slow@1000"}));
        QCOMPARE(clock.nowMs() - start, 1000);
        QCOMPARE(clock.activeAlarms(), 2);
        slow.reset();
        fast->stop();
        clock.advance(1000);
        QCOMPARE(order.size(), 5);
        QCOMPARE(clock.activeAlarms(), 0);
    }
};

QTEST_MAIN(TestClock)
#include "tst_clock.moc"
