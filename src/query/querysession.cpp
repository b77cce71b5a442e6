#include "querysession.h"

QuerySession::QuerySession(QObject* parent)
    : QObject(parent)
{
    connect(&m_master, &MasterQuery::receiving, this, [this] { setPhase(Phase::Receiving); });
    connect(&m_master, &MasterQuery::sorting, this, [this] { setPhase(Phase::Sorting); });
    connect(&m_master, &MasterQuery::addressesReady, this, &QuerySession::runTable);
    connect(&m_master, &MasterQuery::timedOut, this, [this] {
        cancel();
        emit masterTimedOut();
    });
    connect(&m_master, &MasterQuery::failed, this, [this](const QueryError& error) {
        cancel();
        emit failed(error);
    });
    connect(&m_scheduler, &QueryScheduler::requestSent, this, &QuerySession::requestSent);
    connect(&m_scheduler, &QueryScheduler::serverAnswered, this, &QuerySession::serverAnswered);
    connect(&m_scheduler, &QueryScheduler::finished, this, [this] {
        cancel();
        emit finished();
    });
}

void QuerySession::setPool(const QuerySpeed::PortPlan& plan)
{
    m_plan = plan;
    m_scheduler.setPool(plan.lastSocketIndex, quint16(plan.startPort));
}

std::optional<QueryError> QuerySession::startMaster(const MasterAddress& master)
{
    cancel();
    m_addresses.clear();
    m_clock.start();
    if (!m_plan.isValid())
        return QueryError{QueryError::Kind::PortUnavailable, QString::number(m_plan.masterPort()),
                          QStringLiteral("beyond 65535")};
    if (auto error = m_scheduler.openPool())
        return error;
    setPhase(Phase::Requesting);
    if (auto error = m_master.start(master, quint16(m_plan.masterPort()))) {
        cancel();
        return error;
    }
    return std::nullopt;
}

std::optional<QueryError> QuerySession::startAddresses(const AddressTable& table)
{
    cancel();
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
    m_master.cancel();
    m_scheduler.cancel();
    setPhase(Phase::Idle);
}

std::optional<QueryError> QuerySession::refresh(const QString& address, int port)
{
    if (isRunning())
        return std::nullopt;
    return m_scheduler.refresh(address, port);
}

void QuerySession::setPhase(Phase phase)
{
    if (m_phase == phase)
        return;
    m_phase = phase;
    emit phaseChanged(phase);
}
