#pragma once

#include "masteraddress.h"
#include "masterquery.h"
#include "queryerror.h"
#include "queryscheduler.h"
#include "records.h"

#include <QElapsedTimer>
#include <QObject>

#include <optional>

// One query from start to end: the master's list (or a given table, such
// as the favourites) queried over the pool. The window and the
// command-line tool drive the engine through this and turn its signals
// into what they show.
class QuerySession final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuerySession)

public:
    enum class Phase { Idle, Requesting, Receiving, Sorting, Querying };
    Q_ENUM(Phase)

    explicit QuerySession(QObject* parent = nullptr);

    // Takes effect at the next start; the plan must be valid.
    void setPool(const QuerySpeed::PortPlan& plan);
    const QuerySpeed::PortPlan& portPlan() const { return m_plan; }
    quint16 masterLocalPort() const { return quint16(m_plan.masterPort()); }

    // Both bind every port first; a port that cannot be bound returns the
    // error and nothing runs.
    std::optional<QueryError> startMaster(const MasterAddress& master);
    std::optional<QueryError> startAddresses(const AddressTable& table);
    void cancel();
    bool isRunning() const { return m_phase != Phase::Idle; }
    Phase phase() const { return m_phase; }

    // Queries one server again; only while no query runs.
    std::optional<QueryError> refresh(const QString& address, int port);

    const AddressTable& addresses() const { return m_addresses; }
    const QueryScheduler& scheduler() const { return m_scheduler; }
    int droppedDatagrams() const { return m_scheduler.droppedDatagrams() + m_master.droppedDatagrams(); }
    qint64 elapsedMs() const { return m_clock.isValid() ? m_clock.elapsed() : 0; }

signals:
    void phaseChanged(QuerySession::Phase phase);
    void requestSent(int sent, int total);
    void serverAnswered(const ServerRecord& server, bool refresh);
    void finished();
    void masterTimedOut();
    void failed(const QueryError& error);

private:
    void setPhase(Phase phase);
    void runTable(const AddressTable& table);

    QueryScheduler m_scheduler;
    MasterQuery m_master;
    QuerySpeed::PortPlan m_plan;
    AddressTable m_addresses;
    Phase m_phase = Phase::Idle;
    QElapsedTimer m_clock;
};
