#include "querycontroller.h"

#include "favourites.h"
#include "settingsstore.h"

QueryController::QueryController(SettingsStore& settings, QString favouritesPath, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_favouritesPath(std::move(favouritesPath))
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(40);
    connect(&m_flushTimer, &QTimer::timeout, this, &QueryController::flush);
    connect(&m_session, &QuerySession::phaseChanged, this, &QueryController::showPhase);
    connect(&m_session, &QuerySession::requestSent, this,
            [this](int sent, int total) { emit progress(sent, std::max(total, 1)); });
    connect(&m_session, &QuerySession::serverAnswered, this, &QueryController::queue);
    connect(&m_session, &QuerySession::finished, this, [this] { stop(tr("Done"), StatusTone::Done); });
    // The window opens a modal Retry/Cancel box: let the engine unwind first.
    connect(
        &m_session, &QuerySession::masterTimedOut, this,
        [this] {
            emit busyChanged(false);
            emit status(tr("Master Servers Timed Out"), StatusTone::Failed);
            emit progress(0, 1);
            emit masterTimedOut();
        },
        Qt::QueuedConnection);
    connect(&m_session, &QuerySession::failed, this, &QueryController::fail);
}

bool QueryController::preparePool()
{
    m_lastSocketIndex = QuerySpeed::lastSocketIndex(m_settings.value(Keys::Speed), m_lastSocketIndex);
    const QuerySpeed::PortPlan plan{m_lastSocketIndex, m_settings.value(Keys::StartPort)};
    if (!plan.isValid()) {
        emit status(tr("The start port %1 is not valid. Choose another in the options.").arg(plan.startPort),
                    StatusTone::Failed);
        return false;
    }
    m_session.setPool(plan);
    return true;
}

bool QueryController::begin()
{
    if (!preparePool())
        return false;
    m_flushTimer.stop();
    m_pending.clear();
    emit busyChanged(true);
    emit started();
    emit progress(0, 1);
    emit status(QString(), StatusTone::Requesting);
    return true;
}

void QueryController::startMasterQuery()
{
    if (m_session.isRunning())
        return;
    const QString setting = m_settings.value(Keys::MasterServer);
    const auto master = parseMasterAddress(setting);
    if (!master) {
        fail(QueryError{QueryError::Kind::BadMasterAddress, setting});
        return;
    }
    if (!begin())
        return;
    m_masterHost = master->host;
    if (const auto error = m_session.startMaster(*master))
        fail(*error);
}

void QueryController::startFavouritesQuery()
{
    if (m_session.isRunning())
        return;
    const auto favourites = Favourites::readFile(m_favouritesPath);
    if (!favourites) {
        // The query itself does nothing without favourites; say how to get some.
        emit status(tr("No favourites yet: right-click a server and choose \"Add To Favourites\"."), StatusTone::Hint);
        return;
    }
    if (!begin())
        return;
    if (const auto error = m_session.startAddresses(Favourites::toAddressTable(*favourites)))
        fail(*error);
}

void QueryController::refresh(const ServerRecord& server)
{
    if (m_session.isRunning() || !m_settings.value(Keys::RefreshServers) || !preparePool())
        return;
    if (const auto error = m_session.refresh(server.address, server.port))
        emit status(error->message(), StatusTone::Failed);
}

void QueryController::cancel()
{
    stop(tr("Cancelled"), StatusTone::Failed);
}

void QueryController::showPhase(QuerySession::Phase phase)
{
    switch (phase) {
    case QuerySession::Phase::Requesting:
        emit status(tr("Requesting Server List from\n%1").arg(m_masterHost), StatusTone::Requesting);
        break;
    case QuerySession::Phase::Receiving:
        emit status(tr("Receiving Server List from\n%1").arg(m_masterHost), StatusTone::Requesting);
        break;
    case QuerySession::Phase::Sorting:
        emit status(tr("Sorting IP Address Lists\n%1").arg(m_masterHost), StatusTone::Requesting);
        break;
    case QuerySession::Phase::Querying: {
        const int count = m_session.addresses().count();
        emit status(tr("Querying %1 Servers...").arg(count), StatusTone::Querying);
        emit querying(count);
        emit progress(0, std::max(count, 1));
        break;
    }
    case QuerySession::Phase::Idle:
        break;
    }
}

void QueryController::queue(const ServerRecord& server, bool refresh)
{
    if (refresh) {
        emit refreshed(server);
        return;
    }
    m_pending.append(server);
    if (!m_flushTimer.isActive())
        m_flushTimer.start();
}

void QueryController::flush()
{
    m_flushTimer.stop();
    if (m_pending.isEmpty())
        return;
    const QList<ServerRecord> batch = std::exchange(m_pending, {});
    emit answers(batch);
}

void QueryController::stop(const QString& text, StatusTone tone)
{
    m_session.cancel();
    flush();
    emit ended();
    emit busyChanged(false);
    emit status(text, tone);
    emit progress(0, 1);
}

void QueryController::fail(const QueryError& error)
{
    m_session.cancel();
    flush();
    emit busyChanged(false);
    emit progress(0, 1);
    emit status(error.message(), StatusTone::Failed);
}
