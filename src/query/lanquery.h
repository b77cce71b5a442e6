// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/queryerror.h"
#include "query/records.h"

#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QSet>
#include <QTimer>

#include <optional>

class QUdpSocket;

// Finds the servers of the local network: one getInfo to each game port
// of each broadcast address, and whatever answers within the wait is a
// server. Servers on a LAN are not listed by any master.
class LanQuery final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LanQuery)

public:
    static constexpr int WaitMs = 1500;
    // The ports game servers take by default, the first and the next seven
    // a host running several servers moves on to.
    static constexpr quint16 FirstGamePort = 28004;
    static constexpr quint16 LastGamePort = 28011;

    explicit LanQuery(QObject* parent = nullptr);
    ~LanQuery() override;

    // Binds localPort and sends; finished() follows after the wait.
    std::optional<QueryError> start(const QList<QHostAddress>& targets, quint16 localPort);
    void cancel();
    bool isRunning() const { return m_socket != nullptr; }
    int sentCount() const { return m_sent; }
    int answeredCount() const { return int(m_seen.size()); }
    int droppedDatagrams() const { return m_dropped; }

    // The broadcast address of every running IPv4 interface that has one.
    static QList<QHostAddress> broadcastAddresses();

signals:
    void serverAnswered(const ServerRecord& server);
    void finished();

private:
    void readReplies();
    void stop();

    QUdpSocket* m_socket = nullptr;
    QTimer m_timer;
    QElapsedTimer m_clock;
    QSet<QString> m_seen;
    int m_sent = 0;
    int m_dropped = 0;
};
