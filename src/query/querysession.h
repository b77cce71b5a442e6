// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/countrydatabase.h"
#include "query/lanquery.h"
#include "query/masteraddress.h"
#include "query/queryerror.h"
#include "query/queryscheduler.h"
#include "query/records.h"
#include "query/serversources.h"

#include <QElapsedTimer>
#include <QObject>

#include <optional>

// One query from start to end: the lists of the sources (masters,
// published lists, remembered servers), a given table such as the
// favourites, or the LAN broadcast, queried over the pool. The window and the
// command-line tool drive the engine through this and turn its signals
// into what they show.
class QuerySession final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QuerySession)

public:
    enum class Phase { Idle, Requesting, Receiving, Sorting, Querying, Broadcasting };
    Q_ENUM(Phase)

    explicit QuerySession(QObject* parent = nullptr);

    // Takes effect at the next start; the plan must be valid.
    void setPool(const QuerySpeed::PortPlan& plan);
    // Each answering server is placed in its country (none: no countries).
    void setCountries(std::shared_ptr<const CountryDatabase> countries) { m_countries = std::move(countries); }
    const QuerySpeed::PortPlan& portPlan() const { return m_plan; }
    quint16 masterLocalPort() const { return quint16(m_plan.masterPort()); }

    // Both bind every port first; a port that cannot be bound returns the
    // error and nothing runs.
    std::optional<QueryError> startMaster(const MasterAddress& master);
    // Every source at once, each source's addresses asked the moment it
    // gives them; the query ends when every source settled and the pool is
    // idle. When all of them fail and nothing is known, a single master's
    // failure is reported as it is; several fail as one timed-out master.
    std::optional<QueryError> startSources(const SourcePlan& plan);
    std::optional<QueryError> startAddresses(const AddressTable& table);
    std::optional<QueryError> startLan(const QList<QHostAddress>& targets);
    void cancel();
    bool isRunning() const { return m_phase != Phase::Idle; }
    Phase phase() const { return m_phase; }

    // Queries one server again; only while no query runs.
    std::optional<QueryError> refresh(const QString& address, int port);

    // Every address asked so far, in the order asked.
    const AddressTable& addresses() const { return m_addresses; }
    // What each source gave in the last query from sources (those not yet
    // settled are marked so).
    const QList<SourceReport>& sourceReports() const { return m_sources.reports(); }
    const LanQuery& lan() const { return m_lan; }
    const QueryScheduler& scheduler() const { return m_scheduler; }
    int droppedDatagrams() const
    {
        return m_scheduler.droppedDatagrams() + m_sources.droppedDatagrams() + m_lan.droppedDatagrams();
    }
    qint64 elapsedMs() const { return m_clock.isValid() ? m_clock.elapsed() : 0; }

signals:
    void phaseChanged(QuerySession::Phase phase);
    void requestSent(int sent, int total);
    // A source gave addresses while the servers are asked: addresses()
    // holds count now.
    void addressesAdded(int count);
    // A source of the running query settled (sourceReports()).
    void sourcesChanged();
    void serverAnswered(const ServerRecord& server, bool refresh);
    void finished();
    void masterTimedOut();
    void failed(const QueryError& error);

private:
    void setPhase(Phase phase);
    // The port plan reaches past the last port.
    std::optional<QueryError> planError() const;
    void runTable(const AddressTable& table);
    void take(const AddressTable& fresh);
    void sourcesDone();
    void answered(ServerRecord server, bool refresh);

    QueryScheduler m_scheduler;
    ServerSources m_sources;
    LanQuery m_lan;
    QuerySpeed::PortPlan m_plan;
    AddressTable m_addresses;
    Phase m_phase = Phase::Idle;
    QElapsedTimer m_clock;
    std::shared_ptr<const CountryDatabase> m_countries;
};
