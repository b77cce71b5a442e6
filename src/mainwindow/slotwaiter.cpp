// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/slotwaiter.h"

#include "platform/clock.h"
#include "query/records.h"

namespace SlotWait {

bool hasFreeSlot(const ServerRecord& server)
{
    return server.maxPlayers <= 0 || server.playerCount < server.maxPlayers;
}

Step next(qint64 startedMs, qint64 nowMs, const ServerRecord* answer)
{
    if (answer && hasFreeSlot(*answer))
        return Step::Join;
    return nowMs - startedMs >= MaxWaitMs ? Step::GiveUp : Step::KeepWaiting;
}

} // namespace SlotWait

SlotWaiter::SlotWaiter(Clock& clock, QObject* parent)
    : QObject(parent)
    , m_clock(clock)
    , m_alarm(clock.makeAlarm())
{
    connect(m_alarm.get(), &Alarm::fired, this, &SlotWaiter::tick);
}

SlotWaiter::~SlotWaiter() = default;

void SlotWaiter::begin(const JoinFlow::Target& target, const QString& password, const ServerRecord& server)
{
    m_target = target;
    m_password = password;
    m_address = server.address;
    m_port = server.port;
    m_startedMs = m_clock.nowMs();
    m_alarm->start(SlotWait::IntervalMs);
    if (!m_waiting) {
        m_waiting = true;
        emit waitingChanged(true);
    }
    showWaiting(server);
}

void SlotWaiter::cancel()
{
    if (m_waiting)
        finish();
}

void SlotWaiter::stop()
{
    cancel();
    emit status(tr("Stopped waiting for a free slot."), StatusTone::Hint);
}

void SlotWaiter::answered(const QList<ServerRecord>& batch)
{
    if (!m_waiting)
        return;
    for (const ServerRecord& server : batch)
        answered(server);
}

void SlotWaiter::answered(const ServerRecord& server)
{
    if (!m_waiting || server.address != m_address || server.port != m_port)
        return;
    decide(&server);
}

void SlotWaiter::tick()
{
    // Each round asks once; an answer (or its absence) is judged when the
    // next round comes, so a silent server still meets the deadline.
    decide(nullptr);
    if (m_waiting)
        emit askAgain(m_address, m_port);
}

void SlotWaiter::decide(const ServerRecord* answer)
{
    switch (SlotWait::next(m_startedMs, m_clock.nowMs(), answer)) {
    case SlotWait::Step::KeepWaiting:
        if (answer)
            showWaiting(*answer);
        return;
    case SlotWait::Step::Join: {
        const JoinFlow::Target target = m_target;
        const QString password = m_password;
        finish();
        emit joinNow(target, password);
        return;
    }
    case SlotWait::Step::GiveUp:
        finish();
        emit status(tr("No slot came free on %1 in 30 minutes: stopped waiting.").arg(m_target.serverName),
                    StatusTone::Hint);
        return;
    }
}

void SlotWaiter::finish()
{
    m_alarm->stop();
    m_waiting = false;
    emit waitingChanged(false);
}

void SlotWaiter::showWaiting(const ServerRecord& server)
{
    emit status(tr("%1 is full (%2): waiting for a free slot...").arg(m_target.serverName, server.playersText()),
                StatusTone::Querying);
}
