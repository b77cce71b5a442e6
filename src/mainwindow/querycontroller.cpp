// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/querycontroller.h"

#include "query/httpproxy.h"
#include "query/serverlistreader.h"
#include "userdata/favourites.h"
#include "userdata/knownservers.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"

#include <QDateTime>
#include <QDir>
#include <QSet>

QueryController::QueryController(SettingsStore& settings, const QString& dataFolder, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_favouritesPath(Favourites::filePath(dataFolder))
    , m_knownPath(KnownServers::filePath(dataFolder))
    , m_historyPath(PlayHistory::filePath(dataFolder))
{
    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(40);
    connect(&m_flushTimer, &QTimer::timeout, this, &QueryController::flush);
    connect(&m_session, &QuerySession::phaseChanged, this, &QueryController::showPhase);
    connect(&m_session, &QuerySession::requestSent, this, [this](int sent, int total) {
        if (!m_quiet)
            emit progress(sent, std::max(total, 1));
    });
    connect(&m_session, &QuerySession::serverAnswered, this, &QueryController::queue);
    // Sources keep giving addresses while the first servers answer.
    connect(&m_session, &QuerySession::addressesAdded, this, [this] {
        if (!m_quiet)
            showQuerying();
    });
    connect(&m_session, &QuerySession::sourcesChanged, this, [this] {
        if (m_quiet)
            return;
        reportSources();
        if (m_session.phase() == QuerySession::Phase::Querying)
            showQuerying();
    });
    connect(&m_session, &QuerySession::finished, this, [this] {
        if (m_quiet) {
            finishRound();
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

bool QueryController::begin(ListsGo listsGo)
{
    if (!preparePool())
        return false;
    m_flushTimer.stop();
    m_pending.clear();
    m_answered.clear();
    m_sourceNames.clear();
    m_failedSources.clear();
    m_awaitedSources.clear();
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
    endRound();
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
    plan.listUrls = ServerListReader::parseUrls(m_settings.value(Keys::ServerListUrls));
    plan.proxy = httpProxy(m_settings.value(Keys::Proxy), m_settings.value(Keys::ProxyAddress));
    if (m_settings.value(Keys::QueryKnownServers))
        plan.known = KnownServers::toAddressTable(KnownServers::readFile(m_knownPath));
    if (!begin())
        return;
    QStringList names;
    for (const MasterAddress& master : plan.masters)
        names.append(master.host);
    for (const QUrl& url : plan.listUrls)
        names.append(url.host());
    names.removeDuplicates();
    m_sourceNames = names.join(QStringLiteral(", "));
    if (const auto error = m_session.startSources(plan))
        fail(*error);
}

void QueryController::startFavouritesQuery()
{
    endRound();
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
    endRound();
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
    m_flushTimer.stop();
    m_pending.clear();
    m_answered.clear();
    m_quiet = true;
    if (const auto error = m_session.startAddresses(table)) {
        m_quiet = false;
        // Said, but the lists stay: the next round tries again.
        emit status(error->message(), StatusTone::Failed);
        return false;
    }
    return true;
}

void QueryController::requery(const QString& address, int port)
{
    if (m_session.isRunning() || !preparePool())
        return;
    if (const auto error = m_session.refresh(address, port))
        emit status(error->message(), StatusTone::Failed);
}

void QueryController::endRound()
{
    if (!m_quiet)
        return;
    m_quiet = false;
    m_session.cancel();
    // The rows already updated stay; the rest keep their last answer.
    const QList<ServerRecord> batch = std::exchange(m_pending, {});
    m_flushTimer.stop();
    if (!batch.isEmpty())
        emit updated(batch);
    // The user's own query follows and says whether it could remember.
    (void)remember(false);
}

void QueryController::finishRound()
{
    m_quiet = false;
    flushTo(true);
    QSet<QString> answered;
    for (const AddressEntry& entry : std::as_const(m_answered))
        answered.insert(entry.endpointText());
    QStringList silent;
    for (const AddressEntry& entry : m_session.addresses().entries()) {
        if (!answered.contains(entry.endpointText()))
            silent.append(entry.endpointText());
    }
    // A silent round costs no known server a miss: rounds come often.
    const bool saved = remember(false);
    emit roundEnded(m_session.addresses().count(), silent);
    if (!saved)
        sayNotSaved();
}

void QueryController::startLanQuery()
{
    endRound();
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
    if (m_quiet) {
        endRound();
        return;
    }
    const bool saved = !m_session.isRunning() || remember(false);
    stop(tr("Cancelled"), StatusTone::Failed);
    if (!saved)
        sayNotSaved();
}

QString QueryController::timedOutText() const
{
    QString text = tr("Master Servers Timed Out");
    if (!m_sourceSummary.isEmpty())
        text += QStringLiteral("\n\n") + m_sourceSummary;
    return text + QStringLiteral("\n\n") +
           tr("Check the network connection, or add a master server or a server list that works in Options, on the "
              "\"Servers\" tab.");
}

void QueryController::sayNotSaved()
{
    emit status(
        tr("The servers that answered could not be remembered in %1.").arg(QDir::toNativeSeparators(m_knownPath)),
        StatusTone::Failed);
}

void QueryController::showPhase(QuerySession::Phase phase)
{
    if (m_quiet)
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
    // The second line names the sources still awaited, then those that
    // gave nothing; the tooltip says what each one gave.
    const QString text = tr("Querying %1 Servers...").arg(m_session.addresses().count());
    const QString more = !m_awaitedSources.isEmpty()  ? tr("Waiting for %1").arg(m_awaitedSources)
                         : !m_failedSources.isEmpty() ? tr("No list from %1").arg(m_failedSources)
                                                      : QString();
    emit status(more.isEmpty() ? text : text + QLatin1Char('\n') + more, StatusTone::Querying);
}

void QueryController::queue(const ServerRecord& server, bool refresh)
{
    if (refresh) {
        emit refreshed(server);
        return;
    }
    m_pending.append(server);
    m_answered.append(AddressEntry{server.address, server.port, server.name, {}});
    if (!m_flushTimer.isActive())
        m_flushTimer.start();
}

void QueryController::flush()
{
    flushTo(m_quiet);
}

void QueryController::flushTo(bool inPlace)
{
    m_flushTimer.stop();
    if (m_pending.isEmpty())
        return;
    const QList<ServerRecord> batch = std::exchange(m_pending, {});
    if (!inPlace && std::exchange(m_clearWithFirstAnswer, false))
        emit started();
    inPlace ? emit updated(batch) : emit answers(batch);
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
    QStringList lines;
    QStringList failed;
    QStringList awaited;
    for (const SourceReport& report : m_session.sourceReports()) {
        // The status line names a list by its host; the tooltip in full.
        const QString shortName = report.kind == SourceReport::Kind::List ? QUrl(report.name).host() : report.name;
        if (!report.settled) {
            awaited.append(shortName);
            lines.append(tr("%1: no answer yet").arg(report.name));
            continue;
        }
        if (report.failed()) {
            failed.append(shortName);
            lines.append(tr("%1: %2").arg(report.name, report.error));
            continue;
        }
        QString line = tr("%1: %n servers", nullptr, report.addresses).arg(report.name);
        if (report.skipped > 0)
            line += QLatin1Char(' ') + tr("(%n entries skipped)", nullptr, report.skipped);
        if (report.truncated)
            line += QLatin1Char(' ') + tr("(list cut at %1)").arg(ServerListReader::MaxAddresses);
        lines.append(line);
    }
    failed.removeDuplicates();
    awaited.removeDuplicates();
    m_failedSources = failed.join(QStringLiteral(", "));
    m_awaitedSources = awaited.join(QStringLiteral(", "));
    m_sourceSummary = lines.join(QLatin1Char('\n'));
    emit sourcesReported(m_sourceSummary);
}

bool QueryController::remember(bool finished)
{
    // Only answers are news; a LAN search asks no list of addresses.
    if (m_answered.isEmpty() && (!finished || m_session.addresses().isEmpty()))
        return true;
    const KnownServers::List known = KnownServers::readFile(m_knownPath);
    const KnownServers::List updated =
        KnownServers::update(known, m_session.addresses(), m_answered, QDateTime::currentSecsSinceEpoch(), finished);
    m_answered.clear();
    return updated == known || KnownServers::writeFile(m_knownPath, updated);
}
