// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/querysession.h"

QuerySession::QuerySession(QObject* parent)
    : QObject(parent)
{
    // Once servers are asked, a master still sending its list does not
    // take the phase back.
    connect(&m_sources, &ServerSources::receiving, this, [this] {
        if (m_phase != Phase::Querying)
            setPhase(Phase::Receiving);
    });
    connect(&m_sources, &ServerSources::sorting, this, [this] {
        if (m_phase != Phase::Querying)
            setPhase(Phase::Sorting);
    });
    connect(&m_sources, &ServerSources::listed, this, &QuerySession::take);
    connect(&m_sources, &ServerSources::reported, this, &QuerySession::sourcesChanged);
    connect(&m_sources, &ServerSources::finished, this, &QuerySession::sourcesDone);
    connect(&m_lan, &LanQuery::serverAnswered, this, [this](const ServerRecord& server) { answered(server, false); });
    connect(&m_lan, &LanQuery::finished, this, [this] {
        cancel();
        emit finished();
    });
    connect(&m_scheduler, &QueryScheduler::requestSent, this, &QuerySession::requestSent);
    connect(&m_scheduler, &QueryScheduler::serverAnswered, this, &QuerySession::answered);
    connect(&m_scheduler, &QueryScheduler::finished, this, [this] {
        cancel();
        emit finished();
    });
}

void QuerySession::setPool(const QuerySpeed::PortPlan& plan)
{
    m_plan = plan;
    m_scheduler.setPool(plan.lastSocketIndex, quint16(plan.startPort));
    m_scheduler.setOwnPorts(plan.startPort, plan.masterPort() + ServerSources::PortSearchSpan);
}

std::optional<QueryError> QuerySession::startMaster(const MasterAddress& master)
{
    SourcePlan plan;
    plan.masters = {master};
    return startSources(plan);
}

std::optional<QueryError> QuerySession::startSources(const SourcePlan& plan)
{
    cancel();
    m_addresses.clear();
    m_clock.start();
    if (auto error = planError())
        return error;
    if (auto error = m_scheduler.openPool())
        return error;
    setPhase(Phase::Requesting);
    if (auto error = m_sources.start(plan, quint16(m_plan.masterPort()))) {
        cancel();
        return error;
    }
    return std::nullopt;
}

void QuerySession::take(const AddressTable& fresh)
{
    if (m_phase == Phase::Querying) {
        for (const AddressEntry& entry : fresh.entries())
            m_addresses.add(entry.address, entry.port, entry.name, entry.password);
        emit addressesAdded(m_addresses.count());
        m_scheduler.append(fresh);
        return;
    }
    m_addresses = fresh;
    setPhase(Phase::Querying);
    m_scheduler.run(m_addresses, m_sources.isRunning());
}

void QuerySession::sourcesDone()
{
    if (m_phase == Phase::Querying) {
        m_scheduler.closeTable();
        return;
    }
    const QList<SourceReport>& reports = m_sources.reports();
    const bool anyAnswered =
        std::any_of(reports.cbegin(), reports.cend(), [](const SourceReport& report) { return !report.failed(); });
    if (anyAnswered) {
        // Lists that were empty: a query of nothing, done at once.
        runTable(AddressTable());
        return;
    }
    // Kept for the caller: cancel() would end the sources' reports too.
    const std::optional<QueryError> single =
        reports.size() == 1 ? reports.first().queryError : std::optional<QueryError>();
    cancel();
    if (single) {
        emit failed(*single);
        return;
    }
    emit masterTimedOut();
}

std::optional<QueryError> QuerySession::startLan(const QList<QHostAddress>& targets)
{
    cancel();
    m_sources.forget();
    m_addresses.clear();
    m_clock.start();
    if (auto error = planError())
        return error;
    // The pool's first port: a firewall opened for the browser lets the
    // answers in.
    if (auto error = m_lan.start(targets, quint16(m_plan.startPort)))
        return error;
    setPhase(Phase::Broadcasting);
    return std::nullopt;
}

std::optional<QueryError> QuerySession::startAddresses(const AddressTable& table)
{
    cancel();
    m_sources.forget();
    m_clock.start();
    if (auto error = m_scheduler.openPool())
        return error;
    runTable(table);
    return std::nullopt;
}

void QuerySession::runTable(const AddressTable& table)
{
    m_addresses = table;
    setPhase(Phase::Querying);
    m_scheduler.run(m_addresses);
}

void QuerySession::cancel()
{
    m_sources.cancel();
    m_lan.cancel();
    m_scheduler.cancel();
    setPhase(Phase::Idle);
}

std::optional<QueryError> QuerySession::refresh(const QString& address, int port)
{
    if (isRunning())
        return std::nullopt;
    return m_scheduler.refresh(address, port);
}

std::optional<QueryError> QuerySession::planError() const
{
    if (m_plan.isValid())
        return std::nullopt;
    return QueryError{QueryError::Kind::PortUnavailable, QString::number(m_plan.masterPort()),
                      QStringLiteral("beyond 65535")};
}

void QuerySession::setPhase(Phase phase)
{
    if (m_phase == phase)
        return;
    m_phase = phase;
    emit phaseChanged(phase);
}

void QuerySession::answered(ServerRecord server, bool refresh)
{
    if (m_countries) {
        server.country = m_countries->countryOf(QHostAddress(server.address));
        // A rule like any other, after the protocol: the rules pane shows
        // it and a filter "country" "DE" tests it.
        if (!server.country.isEmpty()) {
            const qsizetype at = std::min<qsizetype>(2, server.tokens.size());
            server.tokens.insert(at, server.country);
            server.tokens.insert(at, CountryKey);
        }
    }
    emit serverAnswered(server, refresh);
}
