// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/masteraddress.h"
#include "query/queryerror.h"
#include "query/records.h"

#include <QHash>
#include <QList>
#include <QNetworkProxy>
#include <QObject>
#include <QUrl>

#include <optional>

class MasterQuery;
class QNetworkAccessManager;
class ServerListFetch;

// Where the addresses of one query come from.
struct SourcePlan {
    QList<MasterAddress> masters;
    QList<QUrl> listUrls;
    // Servers remembered from earlier queries: asked at once, before any
    // source answered, and not again when a source lists them.
    AddressTable known;
    QNetworkProxy proxy = QNetworkProxy(QNetworkProxy::NoProxy);
};

// What one source gave.
struct SourceReport {
    enum class Kind { Master, List, Known, Lan };
    Kind kind = Kind::Master;
    QString name;
    int addresses = 0;
    int skipped = 0; // list entries that named no usable server
    bool truncated = false;
    bool timedOut = false;
    bool settled = false;                 // answered, failed or timed out
    std::optional<QueryError> queryError; // a master's documented failure
    QString error;                        // empty while the source answered

    bool failed() const { return !error.isEmpty(); }
};

// Which of a source's addresses are new to the running query. An address
// that another source gave is not asked again. Within a master's list its
// duplicates stay, as the list is queried as it came; a published list or
// the known servers name each server once however often they repeat it.
class SourceMerger final {
public:
    enum class Repeats { Keep, Drop };
    void clear()
    {
        m_owner.clear();
        m_standIn = -1;
    }
    // The source whose addresses stand in for another source's first
    // listing of them (the known servers, asked before any source gave
    // its list): that listing is not asked again, and the source's repeats
    // are kept as they would be without it, so one master's reply gives
    // the same rows whether or not its servers were known.
    void setStandIn(int source) { m_standIn = source; }
    AddressTable take(int source, const AddressTable& table, Repeats repeats = Repeats::Keep);

private:
    QHash<QString, int> m_owner;
    int m_standIn = -1;
};

// Asks every master and fetches every server list of a plan at once, and
// hands over each source's new addresses the moment it gives them: the
// known servers at the start, a master when its list is complete, a list
// when it is read. A master keeps listening after the datagram its length
// rule calls the last, within its time-out, for a list split into smaller
// datagrams; what arrives there is handed over too, until cancel().
class ServerSources final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerSources)

public:
    // How far above the first master's port the others look for a free one.
    static constexpr int PortSearchSpan = 64;

    explicit ServerSources(QObject* parent = nullptr);
    ~ServerSources() override;

    // The first master binds firstMasterPort (an error there ends the start,
    // as with one master); the others take the next free ports above it.
    std::optional<QueryError> start(const SourcePlan& plan, quint16 firstMasterPort);
    void cancel();
    // A query without sources follows: no reports of the last one.
    void forget()
    {
        cancel();
        m_reports.clear();
    }
    // Until every source settled.
    bool isRunning() const { return m_armed; }
    // Every source of the plan, in plan order, then the known servers;
    // those not yet settled are marked so.
    const QList<SourceReport>& reports() const { return m_reports; }
    int droppedDatagrams() const;

signals:
    void receiving();
    void sorting();
    // Addresses no source of this query gave before.
    void listed(const AddressTable& fresh);
    // A source settled (reports() says how); finished follows the last.
    void reported();
    void finished();

private:
    void offer(int index, const AddressTable& table);
    SourceMerger::Repeats repeatsOf(int index) const;
    void settle(int index, const AddressTable& table);
    void settleFailed(int index, const QString& error, bool timedOut, std::optional<QueryError> queryError = {});
    void checkDone();

    void release();
    void releaseNetwork();

    // Deleted later: a source ends inside its own signal.
    QList<MasterQuery*> m_masters;
    QList<ServerListFetch*> m_fetches;
    QNetworkAccessManager* m_network = nullptr;
    // A list of this manager was cut off mid-transfer.
    bool m_networkCutOff = false;
    QList<SourceReport> m_reports;
    SourceMerger m_merger;
    int m_pending = 0;
    bool m_starting = false;
    bool m_armed = false;
    int m_droppedBefore = 0;
};
