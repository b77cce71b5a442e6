// SPDX-License-Identifier: GPL-2.0-or-later
#include "manualclock.h"

class ManualClock::ManualAlarm final : public Alarm {
public:
    explicit ManualAlarm(const ManualClock& clock)
        : m_clock(clock)
    {
    }
    void start(int intervalMs) override
    {
        m_interval = std::max(intervalMs, 1);
        m_due = m_clock.m_now + m_interval;
        m_active = true;
    }
    void stop() override { m_active = false; }
    bool isActive() const override { return m_active; }

    const ManualClock& m_clock;
    qint64 m_interval = 0;
    qint64 m_due = 0;
    bool m_active = false;
};

std::unique_ptr<Alarm> ManualClock::makeAlarm()
{
    auto alarm = std::make_unique<ManualAlarm>(*this);
    m_alarms.append(alarm.get());
    return alarm;
}

void ManualClock::advance(qint64 ms)
{
    const qint64 end = m_now + ms;
    for (;;) {
        m_alarms.removeAll(nullptr);
        ManualAlarm* next = nullptr;
        for (const auto& alarm : std::as_const(m_alarms)) {
            if (alarm && alarm->m_active && alarm->m_due <= end && (!next || alarm->m_due < next->m_due))
                next = alarm;
        }
        if (!next)
            break;
        m_now = next->m_due;
        next->m_due += next->m_interval;
        emit next->fired();
    }
    m_now = end;
}

int ManualClock::activeAlarms() const
{
    return int(
        std::count_if(m_alarms.begin(), m_alarms.end(), [](const auto& alarm) { return alarm && alarm->m_active; }));
}
