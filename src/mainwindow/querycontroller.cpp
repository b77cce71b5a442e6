// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/querycontroller.h"

#include "query/httpproxy.h"
#include "query/serverlistreader.h"
#include "userdata/favourites.h"
#include "userdata/knownservers.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"

QueryController::QueryController(SettingsStore& settings, const QString& dataFolder, const Clock& clock,
                                 QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_favouritesPath(Favourites::filePath(dataFolder))
    , m_historyPath(PlayHistory::filePath(dataFolder))
    , m_memory(KnownServers::filePath(dataFolder), clock)
    , m_round(m_session, m_batcher, m_memory)
{
    m_countries.open(m_settings.value(Keys::CountryDatabase)); // the About box tells of it from the start
    connect(&m_batcher, &AnswerBatcher::due, this, &QueryController::flush);
    connect(&m_round, &RefreshRound::updated, this, &QueryController::updated);
    connect(&m_round, &RefreshRound::ended, this, &QueryController::roundEnded);
    connect(&m_round, &RefreshRound::status, this, &QueryController::status);
    connect(&m_session, &QuerySession::phaseChanged, this, &QueryController::showPhase);
    connect(&m_session, &QuerySession::requestSent, this, [this](int sent, int total) {
        if (!m_round.isActive())
            emit progress(sent, std::max(total, 1));
    });
    connect(&m_session, &QuerySession::serverAnswered, this, &QueryController::queue);
    // Sources keep giving addresses while the first servers answer.
    connect(&m_session, &QuerySession::addressesAdded, this, [this] {
        if (!m_round.isActive())
            showQuerying();
    });
    connect(&m_session, &QuerySession::sourcesChanged, this, [this] {
        if (m_round.isActive())
            return;
        reportSources();
        if (m_session.phase() == QuerySession::Phase::Querying)
            showQuerying();
    });
    connect(&m_session, &QuerySession::finished, this, [this] {
        if (m_round.isActive()) {
            m_round.finish();
            return;
        }
        const bool saved = remember(true);
        flush();
        // A LAN search that found nothing leaves the list of the last query.
        if (std::exchange(m_clearWithFirstAnswer, false))
            stop(tr("No server answered on the local network; the list is as it was."), StatusTone::Hint);
        else
            stop(tr("Done"), StatusTone::Done);
        if (!saved)
            sayNotSaved();
    });
    // The window opens a modal Retry/Cancel box: let the engine unwind first.
    connect(
        &m_session, &QuerySession::masterTimedOut, this,
        [this] {
            reportSources();
            emit busyChanged(false);
            emit status(tr("Master Servers Timed Out") + QLatin1Char('\n') + m_sources.timedOutLine(),
                        StatusTone::Failed);
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
    // The setting is read as the query starts, as every other one.
    m_session.setCountries(m_countries.open(m_settings.value(Keys::CountryDatabase)));
    return true;
}

bool QueryController::begin(ListsGo listsGo)
{
    if (!preparePool())
        return false;
    m_batcher.clear();
    m_memory.clear();
    m_sourceNames.clear();
    m_leftOut = {};
    m_sources = SourceStatus();
    emit sourcesReported(QString());
    emit busyChanged(true);
    m_clearWithFirstAnswer = listsGo == ListsGo::WithFirstAnswer;
    if (!m_clearWithFirstAnswer)
        emit started();
    emit progress(0, 1);
    emit status(QString(), StatusTone::Requesting);
    return true;
}

void QueryController::startMasterQuery()
{
    m_round.end();
    if (m_session.isRunning())
        return;
    const MasterList masters = parseMasterList(m_settings.value(Keys::MasterServer));
    if (!masters.refused.isEmpty() || masters.masters.isEmpty()) {
        fail(QueryError{QueryError::Kind::BadMasterAddress, masters.refused.value(0)});
        return;
    }
    SourcePlan plan;
    plan.masters = masters.masters;
    // A list address the options would refuse is left out, as a hand-edited
    // master is not: the masters alone still make a query.
    const ServerListReader::UrlList lists = ServerListReader::parseUrls(m_settings.value(Keys::ServerListUrls));
    plan.listUrls = lists.urls;
    plan.proxy = httpProxy(m_settings.value(Keys::Proxy), m_settings.value(Keys::ProxyAddress));
    if (m_settings.value(Keys::QueryKnownServers))
        plan.known = KnownServers::toAddressTable(KnownServers::readFile(m_memory.filePath()));
    if (!begin())
        return;
    m_leftOut = {masters.leftOut, lists.leftOut};
    QStringList names;
    for (const MasterAddress& master : plan.masters)
        names.append(master.host);
    for (const QUrl& url : plan.listUrls)
        names.append(url.host());
    m_sourceNames = SourceStatus::names(names);
    if (const auto error = m_session.startSources(plan))
        fail(*error);
}

void QueryController::startFavouritesQuery()
{
    m_round.end();
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

void QueryController::startHistoryQuery()
{
    m_round.end();
    if (m_session.isRunning())
        return;
    const PlayHistory::List history = PlayHistory::readFile(m_historyPath);
    if (history.isEmpty()) {
        emit status(tr("No servers played yet: the servers you join are kept in \"Recently Played\"."),
                    StatusTone::Hint);
        return;
    }
    if (!begin())
        return;
    const AddressTable table = PlayHistory::toAddressTable(history);
    if (const auto error = m_session.startAddresses(table))
        fail(*error);
}

bool QueryController::startRefreshRound(const AddressTable& table)
{
    if (m_session.isRunning() || table.isEmpty() || !preparePool())
        return false;
    return m_round.start(table);
}

void QueryController::requery(const QString& address, int port)
{
    if (m_session.isRunning() || !preparePool())
        return;
    if (const auto error = m_session.refresh(address, port))
        emit status(error->message(), StatusTone::Failed);
}

void QueryController::startLanQuery()
{
    m_round.end();
    if (m_session.isRunning())
        return;
    QList<QHostAddress> targets;
    const QString setting = m_settings.value(Keys::LanBroadcast);
    for (const QString& text : setting.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        if (const QHostAddress address(text); address.protocol() == QAbstractSocket::IPv4Protocol)
            targets.append(address);
    if (setting.trimmed().isEmpty())
        targets = LanQuery::broadcastAddresses();
    if (targets.isEmpty()) {
        emit status(tr("No local network to search: no network interface can broadcast."), StatusTone::Hint);
        return;
    }
    if (!begin(ListsGo::WithFirstAnswer))
        return;
    if (const auto error = m_session.startLan(targets))
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
    if (m_round.isActive()) {
        m_round.end();
        return;
    }
    const bool saved = !m_session.isRunning() || remember(false);
    stop(tr("Cancelled"), StatusTone::Failed);
    if (!saved)
        sayNotSaved();
}

void QueryController::sayNotSaved()
{
    emit status(m_memory.notSavedText(), StatusTone::Failed);
}

void QueryController::showPhase(QuerySession::Phase phase)
{
    if (m_round.isActive())
        return;
    switch (phase) {
    case QuerySession::Phase::Requesting:
        emit status(tr("Requesting Server List from\n%1").arg(m_sourceNames), StatusTone::Requesting);
        break;
    case QuerySession::Phase::Receiving:
        emit status(tr("Receiving Server List from\n%1").arg(m_sourceNames), StatusTone::Requesting);
        break;
    case QuerySession::Phase::Sorting:
        emit status(tr("Sorting IP Address Lists\n%1").arg(m_sourceNames), StatusTone::Requesting);
        break;
    case QuerySession::Phase::Querying: {
        const int count = m_session.addresses().count();
        reportSources();
        showQuerying();
        emit querying(count);
        emit progress(0, std::max(count, 1));
        break;
    }
    case QuerySession::Phase::Broadcasting:
        emit status(tr("Searching the local network..."), StatusTone::Querying);
        emit querying(0);
        break;
    case QuerySession::Phase::Idle:
        break;
    }
}

void QueryController::showQuerying()
{
    emit status(m_sources.queryingText(m_session.addresses().count()), StatusTone::Querying);
}

void QueryController::queue(const ServerRecord& server, bool refresh)
{
    if (refresh) {
        emit refreshed(server);
        return;
    }
    m_batcher.add(server);
    m_memory.note(server);
}

void QueryController::flush()
{
    const QList<ServerRecord> batch = m_batcher.take();
    if (batch.isEmpty())
        return;
    if (m_round.isActive()) {
        emit updated(batch);
        return;
    }
    if (std::exchange(m_clearWithFirstAnswer, false))
        emit started();
    emit answers(batch);
}

void QueryController::stop(const QString& text, StatusTone tone)
{
    m_session.cancel();
    flush();
    m_clearWithFirstAnswer = false;
    emit ended();
    emit busyChanged(false);
    emit status(text, tone);
    emit progress(0, 1);
}

void QueryController::fail(const QueryError& error)
{
    m_session.cancel();
    flush();
    m_clearWithFirstAnswer = false;
    emit busyChanged(false);
    emit progress(0, 1);
    emit status(error.message(), StatusTone::Failed);
}

void QueryController::reportSources()
{
    m_sources = SourceStatus::of(m_session.sourceReports(), m_leftOut);
    emit sourcesReported(m_sources.summary);
}

bool QueryController::remember(bool finished)
{
    return m_memory.remember(m_session.addresses(), finished);
}
