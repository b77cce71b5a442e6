#include "serversources.h"

#include "masterquery.h"
#include "serverlistfetch.h"

#include <QNetworkAccessManager>
#include <QSet>

namespace {

// How far above the first master's port the others look for a free one.
constexpr int PortSearchSpan = 64;

SourceReport reportOf(SourceReport::Kind kind, const QString& name)
{
    SourceReport report;
    report.kind = kind;
    report.name = name;
    return report;
}

} // namespace

AddressTable mergeSources(const QList<AddressTable>& listed, const AddressTable& known, int* knownAdded)
{
    AddressTable merged;
    QSet<QString> seen;
    for (const AddressTable& table : listed) {
        QSet<QString> mine;
        for (const AddressEntry& entry : table.entries()) {
            const QString key = entry.endpointText();
            if (seen.contains(key))
                continue;
            mine.insert(key);
            merged.add(entry.address, entry.port, entry.name, entry.password);
        }
        seen.unite(mine);
    }
    int added = 0;
    for (const AddressEntry& entry : known.entries()) {
        const QString key = entry.endpointText();
        if (seen.contains(key))
            continue;
        seen.insert(key);
        merged.add(entry.address, entry.port, entry.name, entry.password);
        ++added;
    }
    if (knownAdded)
        *knownAdded = added;
    return merged;
}

ServerSources::ServerSources(QObject* parent)
    : QObject(parent)
{
}

ServerSources::~ServerSources()
{
    release();
}

std::optional<QueryError> ServerSources::start(const SourcePlan& plan, quint16 firstMasterPort)
{
    cancel();
    m_known = plan.known;
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
        m_tables.append(AddressTable());
        ++m_pending;
        if (error) {
            settleFailed(index, error->message(), false, error);
            continue;
        }
        connect(query, &MasterQuery::receiving, this, &ServerSources::receiving);
        connect(query, &MasterQuery::sorting, this, &ServerSources::sorting);
        connect(query, &MasterQuery::addressesReady, this,
                [this, index](const AddressTable& table) { settle(index, table); });
        connect(query, &MasterQuery::timedOut, this,
                [this, index] { settleFailed(index, tr("did not answer"), true); });
        connect(query, &MasterQuery::failed, this,
                [this, index](const QueryError& error) { settleFailed(index, error.message(), false, error); });
    }
    if (!plan.listUrls.isEmpty()) {
        if (!m_network)
            m_network = new QNetworkAccessManager(this);
        m_network->setProxy(plan.proxy);
    }
    for (const QUrl& url : plan.listUrls) {
        const int index = int(m_reports.size());
        m_reports.append(reportOf(SourceReport::Kind::List, url.toDisplayString()));
        m_tables.append(AddressTable());
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
    // Sources that failed at once, or none at all: report once the caller
    // is back in the event loop, as for any other ending.
    if (m_pending == 0)
        QMetaObject::invokeMethod(this, &ServerSources::checkDone, Qt::QueuedConnection);
    return std::nullopt;
}

void ServerSources::settle(int index, const AddressTable& table)
{
    m_tables[index] = table;
    m_reports[index].addresses = table.count();
    --m_pending;
    checkDone();
}

void ServerSources::settleFailed(int index, const QString& error, bool timedOut, std::optional<QueryError> queryError)
{
    m_reports[index].error = error;
    m_reports[index].timedOut = timedOut;
    m_reports[index].queryError = std::move(queryError);
    --m_pending;
    checkDone();
}

void ServerSources::checkDone()
{
    if (!m_armed || m_pending > 0 || m_starting)
        return;
    m_armed = false;
    int knownAdded = 0;
    const AddressTable merged = mergeSources(m_tables, m_known, &knownAdded);
    QList<SourceReport> reports = m_reports;
    if (!m_known.isEmpty()) {
        SourceReport known = reportOf(SourceReport::Kind::Known, tr("known servers"));
        known.addresses = knownAdded;
        reports.append(known);
    }
    m_droppedBefore = droppedDatagrams();
    release();
    // Whoever listens may start the next query from here.
    emit finished(merged, reports);
}

void ServerSources::cancel()
{
    m_armed = false;
    m_pending = 0;
    m_droppedBefore = 0;
    release();
}

void ServerSources::release()
{
    for (MasterQuery* master : std::exchange(m_masters, {})) {
        master->disconnect(this);
        master->cancel();
        master->deleteLater();
    }
    for (ServerListFetch* fetch : std::exchange(m_fetches, {})) {
        fetch->disconnect(this);
        fetch->abort();
        fetch->deleteLater();
    }
    m_reports.clear();
    m_tables.clear();
    m_known.clear();
}

int ServerSources::droppedDatagrams() const
{
    int dropped = m_droppedBefore;
    for (const MasterQuery* master : m_masters)
        dropped += master->droppedDatagrams();
    return dropped;
}
