// SPDX-License-Identifier: GPL-2.0-or-later
#include "simfleet.h"

#include "platform/systemlimits.h"

#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QRandomGenerator>
#include <QTimer>
#include <QUdpSocket>

namespace {

const QList<QByteArray> Words{"Frag",  "Rail",   "Strogg", "Arena", "Dark", "Quad",  "Fury",  "Rocket",
                              "Storm", "Hammer", "Nexus",  "Vapor", "Grim", "Blood", "Ghost", "Iron"};
// As retail servers name them: the path below maps/.
const QList<QByteArray> Maps{"mp/q4dm1", "mp/q4dm2", "mp/q4dm3",  "mp/q4dm4",  "mp/q4dm5", "mp/q4dm6",
                             "mp/q4dm7", "mp/q4dm8", "mp/q4ctf1", "mp/q4ctf2", "mp/q4xdm1"};
const QList<QByteArray> GameTypes{"DM", "Tourney", "Team DM", "CTF", "Arena CTF"};
const QList<QByteArray> GameNames{"baseQUAKE4-1", "q4max", "q4x", "baseQUAKE4-1", "baseQUAKE4-1"};
const QList<QByteArray> Clans{"", "", "[UFO]", "=LoL=", "^1Red^7", "{XyZ}", ""};

QByteArray colourCode(QRandomGenerator& random)
{
    return QByteArray("^") + char('0' + random.bounded(8));
}

QByteArray pick(const QList<QByteArray>& list, QRandomGenerator& random)
{
    return list.at(random.bounded(int(list.size())));
}

QByteArray serverName(QRandomGenerator& random, int number)
{
    QByteArray name = colourCode(random) + pick(Words, random) + ' ' + colourCode(random) + pick(Words, random);
    return name + "^7 #" + QByteArray::number(number);
}

QByteArray playerName(QRandomGenerator& random)
{
    QByteArray name;
    const int parts = 1 + random.bounded(3);
    for (int i = 0; i < parts; ++i) {
        if (random.bounded(2))
            name += colourCode(random);
        name += pick(Words, random).left(2 + random.bounded(4));
    }
    return name;
}

} // namespace

SimFleet::SimFleet(const FleetOptions& options, QObject* parent)
    : QObject(parent)
    , m_options(options)
    , m_jitterState(options.seed * 2654435761u + 1)
    , m_churnRandom(options.seed ^ 0x5eedu)
{
    generate();
}

SimFleet::~SimFleet()
{
    stop();
}

void SimFleet::generate()
{
    QRandomGenerator random(m_options.seed);
    m_servers.clear();
    m_servers.reserve(m_options.servers);
    for (int i = 0; i < m_options.servers; ++i) {
        Server server;
        server.port = quint16(m_options.firstServerPort + i);
        server.silent = random.generateDouble() < m_options.silentFraction;
        const int maxPlayers = 4 + 2 * random.bounded(15);
        const bool passworded = random.bounded(10) == 0;
        server.rules = {{"si_name", serverName(random, i)},
                        {"si_map", pick(Maps, random)},
                        {"si_maxplayers", QByteArray::number(maxPlayers)},
                        {"si_gametype", pick(GameTypes, random)},
                        {"gamename", pick(GameNames, random)},
                        {"si_usepass", passworded ? "1" : "0"},
                        {"si_pure", "1"},
                        {"net_serverPunkbusterEnabled", QByteArray::number(random.bounded(2))},
                        {"si_version", "Quake4 V1.4.2 linux-x86 Nov 28 2007"}};
        const int players = std::min(maxPlayers, int(random.bounded(m_options.playersPerServer + 1)));
        for (int p = 0; p < players; ++p) {
            const bool bot = random.bounded(8) == 0;
            server.players.append(SimReplies::Player{quint8(p), quint16(bot ? 0 : 10 + random.bounded(250)),
                                                     quint32(bot ? 0 : 25000), playerName(random),
                                                     pick(Clans, random)});
        }
        server.reply = SimReplies::infoResponse(server.rules, server.players, m_options.reply);
        m_servers.append(server);
    }
    QList<QPair<quint32, quint16>> listed;
    listed.reserve(m_servers.size());
    for (const Server& server : std::as_const(m_servers))
        listed.append({m_options.address.toIPv4Address(), server.port});
    m_masterDatagrams = m_options.masterSplit > 0 ? SimReplies::splitServerList(listed, m_options.masterSplit)
                                                  : SimReplies::serverList(listed);
}

void SimFleet::setServer(int index, const SimReplies::Rules& rules, const QList<SimReplies::Player>& players)
{
    Server& server = m_servers[index];
    server.rules = rules;
    server.players = players;
    server.reply = SimReplies::infoResponse(rules, players, m_options.reply);
}

int SimFleet::answeringServers() const
{
    return int(std::count_if(m_servers.begin(), m_servers.end(), [](const Server& s) { return !s.silent; }));
}

std::optional<QString> SimFleet::start()
{
    stop();
    SystemLimits::raiseOpenFileLimit(m_options.servers + 256);
    m_master = new QUdpSocket(this);
    m_master->setProxy(QNetworkProxy::NoProxy);
    if (!m_master->bind(m_options.address, m_options.masterPort)) {
        const QString error =
            QStringLiteral("master port %1: %2").arg(m_options.masterPort).arg(m_master->errorString());
        stop();
        return error;
    }
    connect(m_master, &QUdpSocket::readyRead, this, &SimFleet::answerMaster);
    m_sockets.reserve(m_servers.size());
    for (int i = 0; i < m_servers.size(); ++i) {
        auto* socket = new QUdpSocket(this);
        socket->setProxy(QNetworkProxy::NoProxy);
        if (!socket->bind(m_options.address, m_servers.at(i).port)) {
            const QString error =
                QStringLiteral("server port %1: %2").arg(m_servers.at(i).port).arg(socket->errorString());
            delete socket;
            stop();
            return error;
        }
        connect(socket, &QUdpSocket::readyRead, this, [this, i] { answer(i); });
        m_sockets.append(socket);
    }
    if (m_options.churnMs > 0) {
        m_churnTimer = new QTimer(this);
        connect(m_churnTimer, &QTimer::timeout, this, &SimFleet::churn);
        m_churnTimer->start(m_options.churnMs);
    }
    return std::nullopt;
}

void SimFleet::churn()
{
    ++m_churnSteps;
    for (int index = 0; index < m_servers.size(); ++index) {
        if (m_churnRandom.generateDouble() >= m_options.churnShare)
            continue;
        Server& server = m_servers[index];
        int maxPlayers = 0;
        for (const auto& [key, value] : std::as_const(server.rules))
            if (key == "si_maxplayers")
                maxPlayers = value.toInt();
        const bool join =
            server.players.isEmpty() || (server.players.size() < maxPlayers && m_churnRandom.bounded(2) == 0);
        if (join) {
            QByteArray name = playerName(m_churnRandom) + QByteArray::number(++m_newPlayers);
            server.players.append(SimReplies::Player{quint8(server.players.size()),
                                                     quint16(10 + m_churnRandom.bounded(250)), 25000, name,
                                                     pick(Clans, m_churnRandom)});
        } else {
            server.players.removeAt(m_churnRandom.bounded(int(server.players.size())));
        }
        for (int p = 0; p < server.players.size(); ++p)
            server.players[p].number = quint8(p);
        server.reply = SimReplies::infoResponse(server.rules, server.players, m_options.reply);
    }
}

void SimFleet::stop()
{
    delete m_churnTimer;
    m_churnTimer = nullptr;
    qDeleteAll(m_sockets);
    m_sockets.clear();
    delete m_master;
    m_master = nullptr;
}

void SimFleet::answerMaster()
{
    while (m_master && m_master->hasPendingDatagrams()) {
        const QNetworkDatagram request = m_master->receiveDatagram();
        if (!request.data().startsWith("\xFF\xFFgetServers"))
            continue;
        ++m_masterRequests;
        emit masterQueried();
        if (m_masterSilent)
            continue;
        for (const QByteArray& datagram : std::as_const(m_masterDatagrams))
            m_master->writeDatagram(datagram, request.senderAddress(), request.senderPort());
    }
}

void SimFleet::answer(int index)
{
    QUdpSocket* socket = m_sockets.at(index);
    while (socket->hasPendingDatagrams()) {
        const QNetworkDatagram request = socket->receiveDatagram();
        if (!request.data().startsWith("\xFF\xFFgetInfo"))
            continue;
        ++m_infoRequests;
        Server& server = m_servers[index];
        ++server.requests;
        if (server.silent)
            continue;
        int delay = m_options.delayMs;
        if (m_options.jitterMs > 0) {
            m_jitterState = m_jitterState * 1664525u + 1013904223u;
            delay += int((m_jitterState >> 8) % quint32(m_options.jitterMs + 1));
        }
        const QHostAddress to = request.senderAddress();
        const quint16 port = quint16(request.senderPort());
        if (delay <= 0) {
            socket->writeDatagram(server.reply, to, port);
            continue;
        }
        QTimer::singleShot(delay, Qt::PreciseTimer, socket,
                           [socket, reply = server.reply, to, port] { socket->writeDatagram(reply, to, port); });
    }
}
