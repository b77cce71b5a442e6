// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

#include <memory>

// A timer that a Clock drives. Things that wait minutes (the automatic
// refresh, waiting for a free slot) use these instead of QTimer, so tests
// can move time on without waiting for it.
class Alarm : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Alarm)

public:
    using QObject::QObject;

    // Fires every intervalMs until stopped; starting again restarts it.
    virtual void start(int intervalMs) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;

signals:
    void fired();
};

// The time of day and the alarms of the slow timers of the program.
class Clock {
public:
    virtual ~Clock() = default;
    // Milliseconds since 1970, UTC.
    virtual qint64 nowMs() const = 0;
    virtual std::unique_ptr<Alarm> makeAlarm() = 0;
};

// The real clock: the system time and QTimer.
class SystemClock final : public Clock {
public:
    qint64 nowMs() const override;
    std::unique_ptr<Alarm> makeAlarm() override;
};
