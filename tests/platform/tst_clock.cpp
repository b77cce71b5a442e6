// SPDX-License-Identifier: GPL-2.0-or-later
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
};

QTEST_MAIN(TestClock)
#include "tst_clock.moc"
