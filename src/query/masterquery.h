// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/masteraddress.h"
#include "query/queryerror.h"
#include "query/records.h"

#include <QHostAddress>
#include <QObject>

#include <optional>

class HostLookup;
class QTimer;
class QUdpSocket;

// Asks the master server for the list of game servers and gathers its
// reply datagrams until one shorter than a full datagram arrives. Then it
// listens on for the rest of the time-out after each datagram: a master
// that splits its list into smaller datagrams sends more after the one
// the length rule calls the last, and those records count too.
class MasterQuery final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MasterQuery)

public:
    // No datagram within this time of the request (or of the last full
    // datagram) ends the master query.
    static constexpr int TimeoutMs = 2000;

    explicit MasterQuery(QObject* parent = nullptr);
    ~MasterQuery() override;

    std::optional<QueryError> start(const MasterAddress& master, quint16 localPort);
    void cancel();
    bool isRunning() const;
    int droppedDatagrams() const { return m_dropped; }

signals:
    void receiving();
    void sorting();
    void addressesReady(const AddressTable& table);
    // Records of datagrams that came after the last one.
    void moreAddresses(const AddressTable& table);
    void timedOut();
    void failed(const QueryError& error);

private:
    QUdpSocket* boundSocket(const QHostAddress& any);
    QueryError portError(const QHostAddress& any) const;
    void adopt(QUdpSocket* socket);
    std::optional<QueryError> aimAt(const QHostAddress& target);
    void send();
    void readReplies();
    void finish();
    void readLate(const QByteArray& datagram);
    void stop();

    QUdpSocket* m_socket = nullptr;
    QTimer* m_timer = nullptr;
    HostLookup* m_lookup = nullptr;
    MasterAddress m_master;
    quint16 m_localPort = 0;
    QString m_bindError;
    QHostAddress m_target;
    QByteArray m_gathered;
    qsizetype m_recordBytes = 0;
    int m_datagrams = 0;
    int m_dropped = 0;
    // After the last datagram: the records so far, and the port a record
    // with a port that does not fit keeps.
    bool m_late = false;
    int m_records = 0;
    int m_carriedPort = 0;
};
