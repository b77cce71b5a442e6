#pragma once

#include "masteraddress.h"
#include "queryerror.h"
#include "records.h"

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
    // Servers remembered from earlier queries: asked after the listed ones
    // when no source listed them this time.
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
    std::optional<QueryError> queryError; // a master's documented failure
    QString error;                        // empty while the source answered

    bool failed() const { return !error.isEmpty(); }
};

// The query's table from every source's: the sources in order, an address
// that an earlier source listed is not asked again (within one source its
// duplicates stay, as a master's list is queried as it came), then the known
// servers nobody listed. knownAdded, when given, receives their number.
AddressTable mergeSources(const QList<AddressTable>& listed, const AddressTable& known, int* knownAdded = nullptr);

// Asks every master and fetches every server list of a plan at once, and
// hands over the merged table when the last of them answered, failed or
// timed out.
class ServerSources final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerSources)

public:
    explicit ServerSources(QObject* parent = nullptr);
    ~ServerSources() override;

    // The first master binds firstMasterPort (an error there ends the start,
    // as with one master); the others take the next free ports above it.
    std::optional<QueryError> start(const SourcePlan& plan, quint16 firstMasterPort);
    void cancel();
    bool isRunning() const { return m_armed; }
    int droppedDatagrams() const;

signals:
    void receiving();
    void sorting();
    void finished(const AddressTable& table, const QList<SourceReport>& reports);

private:
    void settle(int index, const AddressTable& table);
    void settleFailed(int index, const QString& error, bool timedOut, std::optional<QueryError> queryError = {});
    void checkDone();

    void release();

    // Deleted later: a source ends inside its own signal.
    QList<MasterQuery*> m_masters;
    QList<ServerListFetch*> m_fetches;
    QNetworkAccessManager* m_network = nullptr;
    QList<SourceReport> m_reports;
    QList<AddressTable> m_tables;
    AddressTable m_known;
    int m_pending = 0;
    bool m_starting = false;
    bool m_armed = false;
    int m_droppedBefore = 0;
};
