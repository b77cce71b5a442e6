// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "simreplies.h"

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QRandomGenerator>

#include <optional>

class QTimer;
class QUdpSocket;

struct FleetOptions {
    int servers = 200;
    QHostAddress address = QHostAddress::LocalHost;
    quint16 masterPort = 27950;
    quint16 firstServerPort = 28000;
    double silentFraction = 0.0; // share of servers that never answer
    int delayMs = 0;             // before each reply
    int jitterMs = 0;            // added at random, 0 to this
    int playersPerServer = 8;    // at most; each server gets 0 to this many
    quint32 seed = 1;            // same seed, same names, maps and players
    int churnMs = 0;             // every this often players come and go (0: never)
    double churnShare = 0.2;     // share of servers that change each time
    SimReplies::Format reply;    // protocol version and trailer (1.4.2 by default)
    int masterSplit = 0;         // records per master datagram, community style (0: the id master's)
};

// A master server and a fleet of game servers, each on its own UDP port,
// answering as real ones do.
class SimFleet final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SimFleet)

public:
    struct Server {
        quint16 port = 0;
        bool silent = false;
        SimReplies::Rules rules;
        QList<SimReplies::Player> players;
        QByteArray reply;
        int requests = 0;
    };

    explicit SimFleet(const FleetOptions& options, QObject* parent = nullptr);
    ~SimFleet() override;

    // Binds the master and every server; the error text when a port is taken.
    std::optional<QString> start();
    void stop();

    const FleetOptions& options() const { return m_options; }
    const QList<Server>& servers() const { return m_servers; }
    int answeringServers() const;
    int masterRequests() const { return m_masterRequests; }
    int infoRequests() const { return m_infoRequests; }

    // Replaces what the master sends (for lists with duplicates, odd
    // lengths or foreign addresses); by default it lists the fleet.
    void setMasterDatagrams(const QList<QByteArray>& datagrams) { m_masterDatagrams = datagrams; }
    // Changes what one server answers from now on (a map change, players
    // joining).
    void setServer(int index, const SimReplies::Rules& rules, const QList<SimReplies::Player>& players);
    // Makes one server stop answering (or answer again), as one that
    // crashed or came back.
    void setSilent(int index, bool silent) { m_servers[index].silent = silent; }
    // Makes the master keep quiet, as an unreachable one is.
    void setMasterSilent(bool silent) { m_masterSilent = silent; }
    // One step of life on the servers: on a share of them a player joins
    // (a new name) or one leaves, so servers fill and empty over time. The
    // same seed gives the same steps. Runs by itself every churnMs once
    // started.
    void churn();
    int churnSteps() const { return m_churnSteps; }

signals:
    void masterQueried();

private:
    void generate();
    void answerMaster();
    void answer(int index);

    FleetOptions m_options;
    QList<Server> m_servers;
    QList<QUdpSocket*> m_sockets;
    QUdpSocket* m_master = nullptr;
    QList<QByteArray> m_masterDatagrams;
    bool m_masterSilent = false;
    int m_masterRequests = 0;
    int m_infoRequests = 0;
    quint32 m_jitterState = 0;
    QRandomGenerator m_churnRandom;
    QTimer* m_churnTimer = nullptr;
    int m_churnSteps = 0;
    int m_newPlayers = 0;
};
