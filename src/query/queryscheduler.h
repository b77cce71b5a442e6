// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/hostlookup.h"
#include "query/queryerror.h"
#include "query/queryspeed.h"
#include "query/records.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSet>

#include <array>
#include <optional>

class QTimer;
class QUdpSocket;

// Sends one getInfo request to every address of a table over a pool of
// UDP sockets, each on its own local port. Event driven: a socket is free
// again only once its reply was parsed or its time-out closed it, and the
// next request always goes to the lowest free socket. Silent servers are
// not asked again.
class QueryScheduler final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QueryScheduler)

public:
    static constexpr int TimeoutMs = 1500;

    explicit QueryScheduler(QObject* parent = nullptr);
    ~QueryScheduler() override;

    // Takes effect at the next openPool(); sockets 0 to lastSocketIndex are
    // used, socket j on local port startPort + j.
    void setPool(int lastSocketIndex, quint16 startPort);
    int lastSocketIndex() const { return m_lastSocketIndex; }
    quint16 startPort() const { return m_startPort; }
    // The local ports of this program's own sockets (the pool and the
    // masters above it): an address of this machine on one of them is never
    // asked, or the query would read its own requests.
    void setOwnPorts(int first, int last);

    // Binds every socket of the pool. On failure nothing stays bound.
    std::optional<QueryError> openPool();
    void closePool();

    // Queries every entry in table order; finished() follows when the last
    // request was answered or timed out (for an empty table, once the
    // caller is back in the event loop). The pool must be open. With
    // moreToCome, append() adds addresses while it runs and finished()
    // waits for closeTable() too.
    void run(const AddressTable& table, bool moreToCome = false);
    void append(const AddressTable& more);
    void closeTable();
    // Stops sending and closes every socket; answers already reported stay.
    void cancel();
    bool isRunning() const { return m_running; }

    // One request outside a query: the refresh of a selected server.
    std::optional<QueryError> refresh(const QString& address, int port);

    int busySockets() const;
    int sentCount() const { return m_sent; }
    int answeredCount() const { return m_answered; }
    int timedOutCount() const { return m_timedOut; }
    // Addresses not asked: this program's own sockets, or a host name that
    // led to a server already asked.
    int skippedCount() const { return m_skipped; }
    // Datagrams from anyone but the server a socket was waiting for.
    int droppedDatagrams() const { return m_dropped; }

signals:
    void requestSent(int sent, int total);
    void serverAnswered(const ServerRecord& server, bool refresh);
    void finished();

private:
    struct Slot {
        QUdpSocket* socket = nullptr;
        QTimer* timer = nullptr;
        QElapsedTimer clock;
        bool busy = false;
        bool refresh = false;
        HostLookup* lookup = nullptr;
        QHostAddress target;
        quint16 targetPort = 0;
        QString address;
        int port = 0;
    };

    std::optional<QueryError> bindSlot(int index);
    void closeSlot(int index);
    int lowestFreeSlot() const;
    void sendOn(int index, const QString& address, int port, bool refresh);
    void resolved(int index, const HostLookup::Result& result);
    void transmit(int index);
    void release(int index);
    void readReplies(int index);
    void timeOut(int index);
    void skip(int index);
    // The slot's server gets no answer; counter says why.
    void giveUp(int index, int& counter);
    bool isOwnSocket(const QHostAddress& target, int port) const;
    void pump();

    std::array<Slot, QuerySpeed::PoolCapacity> m_slots;
    int m_lastSocketIndex = QuerySpeed::DefaultLastSocketIndex;
    quint16 m_startPort = 9000;
    AddressTable m_table;
    int m_next = 0;
    bool m_running = false;
    bool m_moreToCome = false;
    int m_sent = 0;
    int m_answered = 0;
    int m_timedOut = 0;
    int m_skipped = 0;
    int m_dropped = 0;
    int m_ownFirst = 0;
    int m_ownLast = -1;
    QList<QHostAddress> m_localAddresses;
    // "address:port" of every server asked in this query, and of those
    // reached through a host name: a list that names one server by name and
    // by number gets it asked once.
    QSet<QString> m_asked;
    QSet<QString> m_askedByName;
};
