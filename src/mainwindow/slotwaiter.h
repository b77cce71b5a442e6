// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/joinflow.h"
#include "widgets/statustone.h"

#include <QObject>

#include <memory>

class Alarm;
class Clock;
struct ServerRecord;

// Waiting for a free slot on a full server before joining it.
namespace SlotWait {

inline constexpr int IntervalMs = 5000;
inline constexpr qint64 MaxWaitMs = 30 * 60 * 1000;

// A server with fewer players than places; one that reports no maximum is
// not taken for full.
bool hasFreeSlot(const ServerRecord& server);

enum class Step { KeepWaiting, Join, GiveUp };
// What to do after an answer (or a silent round: no answer): a free slot
// joins, even on the last round; past the longest wait without one, stop.
Step next(qint64 startedMs, qint64 nowMs, const ServerRecord* answer);

} // namespace SlotWait

// Waits for a free slot on one server: asks it again every five seconds
// (one request, through the window's query engine) until a slot frees,
// the user stops it or joins elsewhere, the program closes, or half an
// hour has passed. Then the join runs as the user started it.
class SlotWaiter final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SlotWaiter)

public:
    SlotWaiter(Clock& clock, QObject* parent = nullptr);
    ~SlotWaiter() override;

    bool isWaiting() const { return m_waiting; }
    const JoinFlow::Target& target() const { return m_target; }

    void begin(const JoinFlow::Target& target, const QString& password, const ServerRecord& server);
    // The user stopped it, or joined something else: nothing more is said
    // than the status the caller gives.
    void cancel();
    // "Stop Waiting": cancels, and says so.
    void stop();
    // A new answer of any server; only the awaited one counts.
    void answered(const ServerRecord& server);
    void answered(const QList<ServerRecord>& batch);

signals:
    // Ask the server again (one request).
    void askAgain(const QString& address, int port);
    // A slot is free: join now, with the password settled before waiting.
    void joinNow(const JoinFlow::Target& target, const QString& password);
    void status(const QString& text, StatusTone tone);
    void waitingChanged(bool waiting);

private:
    void tick();
    void decide(const ServerRecord* answer);
    void finish();
    void showWaiting(const ServerRecord& server);

    Clock& m_clock;
    std::unique_ptr<Alarm> m_alarm;
    bool m_waiting = false;
    JoinFlow::Target m_target;
    QString m_password;
    QString m_address;
    int m_port = 0;
    qint64 m_startedMs = 0;
};
