// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/lanquery.h"

#include "query/infoprotocol.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QUdpSocket>

LanQuery::LanQuery(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(WaitMs);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        readReplies();
        stop();
        emit finished();
    });
}

LanQuery::~LanQuery()
{
    stop();
}

std::optional<QueryError> LanQuery::start(const QList<QHostAddress>& targets, quint16 localPort)
{
    stop();
    m_seen.clear();
    m_sent = 0;
    m_dropped = 0;
    auto* socket = new QUdpSocket(this);
    socket->setProxy(QNetworkProxy::NoProxy);
    if (!socket->bind(QHostAddress::AnyIPv4, localPort)) {
        QueryError error{QueryError::Kind::PortUnavailable, QString::number(localPort), socket->errorString()};
        delete socket;
        return error;
    }
    m_socket = socket;
    connect(m_socket, &QUdpSocket::readyRead, this, &LanQuery::readReplies);
    const QByteArray request = InfoProtocol::getInfoRequest();
    m_clock.start();
    for (const QHostAddress& target : targets) {
        if (target.protocol() != QAbstractSocket::IPv4Protocol)
            continue;
        for (int port = FirstGamePort; port <= LastGamePort; ++port)
            if (m_socket->writeDatagram(request, target, quint16(port)) == request.size())
                ++m_sent;
    }
    m_timer.start();
    return std::nullopt;
}

void LanQuery::readReplies()
{
    while (m_socket && m_socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        // Anyone may send to a broadcasting socket: only infoResponses of
        // this game count, and each server once, however many broadcasts
        // reached it.
        const QHostAddress sender(datagram.senderAddress().toIPv4Address());
        const QString key = endpointText(sender.toString(), datagram.senderPort());
        std::optional<ServerRecord> reply =
            m_seen.contains(key) ? std::nullopt : InfoProtocol::parseReply(datagram.data());
        if (!reply) {
            ++m_dropped;
            continue;
        }
        m_seen.insert(key);
        ServerRecord& server = *reply;
        server.address = sender.toString();
        server.port = datagram.senderPort();
        server.ping = int(std::min<qint64>(m_clock.elapsed(), ServerRecord::MaxPing));
        emit serverAnswered(server);
    }
}

void LanQuery::cancel()
{
    stop();
}

void LanQuery::stop()
{
    m_timer.stop();
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket->close();
        m_socket->deleteLater();
        m_socket = nullptr;
    }
}

QList<QHostAddress> LanQuery::broadcastAddresses()
{
    QList<QHostAddress> result;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        const auto flags = interface.flags();
        if (!flags.testFlag(QNetworkInterface::IsUp) || !flags.testFlag(QNetworkInterface::IsRunning) ||
            !flags.testFlag(QNetworkInterface::CanBroadcast))
            continue;
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            const QHostAddress broadcast = entry.broadcast();
            if (broadcast.protocol() == QAbstractSocket::IPv4Protocol && !result.contains(broadcast))
                result.append(broadcast);
        }
    }
    return result;
}
