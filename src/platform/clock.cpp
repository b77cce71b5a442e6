// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/clock.h"

#include <QDateTime>
#include <QTimer>

namespace {

class TimerAlarm final : public Alarm {
public:
    TimerAlarm() { connect(&m_timer, &QTimer::timeout, this, &Alarm::fired); }
    void start(int intervalMs) override { m_timer.start(intervalMs); }
    void stop() override { m_timer.stop(); }
    bool isActive() const override { return m_timer.isActive(); }

private:
    QTimer m_timer;
};

} // namespace

qint64 SystemClock::nowMs() const
{
    return QDateTime::currentMSecsSinceEpoch();
}

std::unique_ptr<Alarm> SystemClock::makeAlarm()
{
    return std::make_unique<TimerAlarm>();
}
