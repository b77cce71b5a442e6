// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/serversources.h"

#include "query/masterquery.h"
#include "query/serverlistfetch.h"

#include <QNetworkAccessManager>

namespace {

SourceReport reportOf(SourceReport::Kind kind, const QString& name)
{
    SourceReport report;
    report.kind = kind;
    report.name = name;
    return report;
}

} // namespace

AddressTable SourceMerger::take(int source, const AddressTable& table, Repeats repeats)
{
    AddressTable fresh;
    for (const AddressEntry& entry : table.entries()) {
        const auto owner = m_owner.find(entry.endpointText());
        if (owner != m_owner.end() && *owner == m_standIn && source != m_standIn) {
            *owner = source;
            continue;
        }
        if (owner != m_owner.end() && (*owner != source || repeats == Repeats::Drop))
            continue;
        if (owner == m_owner.end())
            m_owner.insert(entry.endpointText(), source);
        fresh.add(entry.address, entry.port, entry.name, entry.password);
    }
    return fresh;
}

ServerSources::ServerSources(QObject* parent)
    : QObject(parent)
{
}

ServerSources::~ServerSources()
{
    release();
    releaseNetwork();
}

std::optional<QueryError> ServerSources::start(const SourcePlan& plan, quint16 firstMasterPort)
{
    cancel();
    m_reports.clear();
    m_droppedBefore = 0;
    m_armed = true;
    m_starting = true;
    int port = firstMasterPort;
    for (qsizetype i = 0; i < plan.masters.size(); ++i) {
        const MasterAddress& master = plan.masters.at(i);
        auto* query = new MasterQuery(this);
        m_masters.append(query);
        std::optional<QueryError> error = query->start(master, quint16(port));
        // Only the first master has a documented port; the others move up
        // past ports that are taken.
        for (int tries = 0; i > 0 && error && error->kind == QueryError::Kind::PortUnavailable &&
                            tries < PortSearchSpan && port < 65535;
             ++tries)
            error = query->start(master, quint16(++port));
        ++port;
        if (error && i == 0) {
            m_starting = false;
            cancel();
            return error;
        }
        const int index = int(m_reports.size());
        m_reports.append(reportOf(SourceReport::Kind::Master, masterAddressText(master)));
        ++m_pending;
        if (error) {
            settleFailed(index, error->message(), false, error);
            continue;
        }
        connect(query, &MasterQuery::receiving, this, &ServerSources::receiving);
        connect(query, &MasterQuery::sorting, this, &ServerSources::sorting);
        connect(query, &MasterQuery::addressesReady, this,
                [this, index](const AddressTable& table) { settle(index, table); });
        connect(query, &MasterQuery::moreAddresses, this,
                [this, index](const AddressTable& table) { offer(index, table); });
        connect(query, &MasterQuery::timedOut, this,
                [this, index] { settleFailed(index, tr("did not answer"), true); });
        connect(query, &MasterQuery::failed, this,
                [this, index](const QueryError& error) { settleFailed(index, error.message(), false, error); });
    }
    if (!plan.listUrls.isEmpty()) {
        // A manager of this query's own: a site that left the last one's
        // connection stuck (an endless header) cannot hold up this one.
        releaseNetwork();
        m_network = new QNetworkAccessManager(this);
        m_network->setProxy(plan.proxy);
    }
    for (const QUrl& url : plan.listUrls) {
        const int index = int(m_reports.size());
        m_reports.append(reportOf(SourceReport::Kind::List, url.toDisplayString()));
        ++m_pending;
        auto* fetch = new ServerListFetch(*m_network, this);
        m_fetches.append(fetch);
        connect(fetch, &ServerListFetch::listed, this, [this, index](const ServerListReader::Result& result) {
            m_reports[index].skipped = result.skipped;
            m_reports[index].truncated = result.truncated;
            settle(index, result.addresses);
        });
        connect(fetch, &ServerListFetch::failed, this,
                [this, index](const QString& reason) { settleFailed(index, reason, false); });
        fetch->start(url);
    }
    m_starting = false;
    // The servers known from earlier need no source: they are asked first.
    if (!plan.known.isEmpty()) {
        const int index = int(m_reports.size());
        SourceReport known = reportOf(SourceReport::Kind::Known, tr("known servers"));
        known.settled = true;
        m_reports.append(known);
        m_merger.setStandIn(index);
        offer(index, plan.known);
    }
    // Sources that failed at once, or none at all: report once the caller
    // is back in the event loop, as for any other ending.
    if (m_pending == 0)
        QMetaObject::invokeMethod(this, &ServerSources::checkDone, Qt::QueuedConnection);
    return std::nullopt;
}

void ServerSources::offer(int index, const AddressTable& table)
{
    m_reports[index].addresses += table.count();
    const AddressTable fresh = m_merger.take(index, table, repeatsOf(index));
    if (!fresh.isEmpty())
        emit listed(fresh);
}

SourceMerger::Repeats ServerSources::repeatsOf(int index) const
{
    return m_reports.at(index).kind == SourceReport::Kind::Master ? SourceMerger::Repeats::Keep
                                                                  : SourceMerger::Repeats::Drop;
}

void ServerSources::settle(int index, const AddressTable& table)
{
    m_reports[index].settled = true;
    --m_pending;
    offer(index, table);
    if (!m_armed)
        return; // whoever heard the addresses ended the query
    emit reported();
    checkDone();
}

void ServerSources::settleFailed(int index, const QString& error, bool timedOut, std::optional<QueryError> queryError)
{
    m_reports[index].settled = true;
    m_reports[index].error = error;
    m_reports[index].timedOut = timedOut;
    m_reports[index].queryError = std::move(queryError);
    --m_pending;
    if (m_starting)
        return;
    emit reported();
    checkDone();
}

void ServerSources::checkDone()
{
    if (!m_armed || m_pending > 0 || m_starting)
        return;
    m_armed = false;
    // The lists are read; a master that split its list may still be
    // sending the rest, so the masters stay until cancel().
    for (ServerListFetch* fetch : std::exchange(m_fetches, {})) {
        fetch->disconnect(this);
        fetch->abort();
        m_networkCutOff = m_networkCutOff || fetch->wasCutOff();
        fetch->deleteLater();
    }
    // Whoever listens may start the next query from here.
    emit finished();
}

void ServerSources::cancel()
{
    m_armed = false;
    m_pending = 0;
    release();
}

void ServerSources::release()
{
    for (MasterQuery* master : std::exchange(m_masters, {})) {
        m_droppedBefore += master->droppedDatagrams();
        master->disconnect(this);
        master->cancel();
        master->deleteLater();
    }
    for (ServerListFetch* fetch : std::exchange(m_fetches, {})) {
        fetch->disconnect(this);
        fetch->abort();
        m_networkCutOff = m_networkCutOff || fetch->wasCutOff();
        fetch->deleteLater();
    }
    m_merger.clear();
}

void ServerSources::releaseNetwork()
{
    QNetworkAccessManager* network = std::exchange(m_network, nullptr);
    if (!network)
        return;
    if (!std::exchange(m_networkCutOff, false)) {
        network->deleteLater();
        return;
    }
    // Deleting a manager waits (up to 5 s, in this thread) for its network
    // thread, which a site that streams an endless header keeps busy: the
    // window would freeze. It is set aside instead, idle once the site
    // stops; the program's exit does not wait for it.
    static auto* setAside = new QList<QNetworkAccessManager*>;
    network->setParent(nullptr);
    setAside->append(network);
}

int ServerSources::droppedDatagrams() const
{
    int dropped = m_droppedBefore;
    for (const MasterQuery* master : m_masters)
        dropped += master->droppedDatagrams();
    return dropped;
}
