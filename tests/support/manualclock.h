// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/clock.h"

#include <QList>
#include <QPointer>

// A clock that stands still until the test moves it: advance() fires every
// alarm that falls due on the way, in time order, as often as it would
// have fired.
class ManualClock final : public Clock {
public:
    qint64 nowMs() const override { return m_now; }
    std::unique_ptr<Alarm> makeAlarm() override;
    void advance(qint64 ms);
    int activeAlarms() const;

private:
    class ManualAlarm;
    qint64 m_now = 1'800'000'000'000; // a fixed day in 2027
    QList<QPointer<ManualAlarm>> m_alarms;
};
