// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/queryscheduler.h"

#include "query/hostlookup.h"
#include "query/infoprotocol.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QTimer>
#include <QUdpSocket>

QueryScheduler::QueryScheduler(QObject* parent)
    : QObject(parent)
{
    for (int index = 0; index < int(m_slots.size()); ++index) {
        Slot& slot = m_slots[index];
        slot.timer = new QTimer(this);
        slot.timer->setSingleShot(true);
        slot.timer->setInterval(TimeoutMs);
        slot.timer->setTimerType(Qt::PreciseTimer);
        connect(slot.timer, &QTimer::timeout, this, [this, index] { timeOut(index); });
        slot.lookup = new HostLookup(this);
        connect(slot.lookup, &HostLookup::finished, this,
                [this, index](const HostLookup::Result& result) { resolved(index, result); });
    }
}

QueryScheduler::~QueryScheduler()
{
    cancel();
}

void QueryScheduler::setPool(int lastSocketIndex, quint16 startPort)
{
    m_lastSocketIndex = std::clamp(lastSocketIndex, 0, QuerySpeed::PoolCapacity - 1);
    m_startPort = startPort;
}

std::optional<QueryError> QueryScheduler::bindSlot(int index)
{
    Slot& slot = m_slots[index];
    if (slot.socket)
        return std::nullopt;
    const int port = m_startPort + index;
    auto* socket = new QUdpSocket(this);
    // Game queries never go through a proxy; asking the system's proxy
    // configuration for every socket would only cost time.
    socket->setProxy(QNetworkProxy::NoProxy);
    // No ShareAddress or ReuseAddressHint: a port in use must fail here,
    // not silently share its datagrams with another program.
    if (port > 65535 || !socket->bind(QHostAddress::AnyIPv4, quint16(port), QAbstractSocket::DefaultForPlatform)) {
        QueryError error{QueryError::Kind::PortUnavailable, QString::number(port),
                         port > 65535 ? QStringLiteral("beyond 65535") : socket->errorString()};
        delete socket;
        return error;
    }
    connect(socket, &QUdpSocket::readyRead, this, [this, index] { readReplies(index); });
    slot.socket = socket;
    return std::nullopt;
}

void QueryScheduler::closeSlot(int index)
{
    Slot& slot = m_slots[index];
    slot.timer->stop();
    slot.lookup->abort();
    slot.busy = false;
    slot.refresh = false;
    if (slot.socket) {
        slot.socket->disconnect(this);
        slot.socket->close();
        slot.socket->deleteLater();
        slot.socket = nullptr;
    }
}

void QueryScheduler::setOwnPorts(int first, int last)
{
    m_ownFirst = first;
    m_ownLast = last;
}

bool QueryScheduler::isOwnSocket(const QHostAddress& target, int port) const
{
    if (port < m_ownFirst || port > m_ownLast)
        return false;
    return target.isLoopback() || target == QHostAddress(QHostAddress::AnyIPv4) || m_localAddresses.contains(target);
}

std::optional<QueryError> QueryScheduler::openPool()
{
    m_localAddresses = QNetworkInterface::allAddresses();
    for (int index = 0; index <= m_lastSocketIndex; ++index) {
        if (auto error = bindSlot(index)) {
            closePool();
            return error;
        }
    }
    return std::nullopt;
}

void QueryScheduler::closePool()
{
    for (int index = 0; index < int(m_slots.size()); ++index)
        closeSlot(index);
}

int QueryScheduler::busySockets() const
{
    return int(std::count_if(m_slots.begin(), m_slots.end(), [](const Slot& slot) { return slot.busy; }));
}

int QueryScheduler::lowestFreeSlot() const
{
    for (int index = 0; index <= m_lastSocketIndex; ++index) {
        if (!m_slots[index].busy)
            return index;
    }
    return -1;
}

void QueryScheduler::run(const AddressTable& table, bool moreToCome)
{
    m_table = table;
    m_moreToCome = moreToCome;
    m_next = 0;
    m_sent = 0;
    m_answered = 0;
    m_timedOut = 0;
    m_skipped = 0;
    m_dropped = 0;
    m_asked.clear();
    m_askedByName.clear();
    m_running = true;
    // A caller that connects to finished() after run() returns, or that has
    // not entered its event loop yet, must still hear it.
    if (m_table.isEmpty())
        QMetaObject::invokeMethod(this, &QueryScheduler::pump, Qt::QueuedConnection);
    else
        pump();
}

void QueryScheduler::append(const AddressTable& more)
{
    if (!m_running)
        return;
    for (const AddressEntry& entry : more.entries())
        m_table.add(entry.address, entry.port, entry.name, entry.password);
    pump();
}

void QueryScheduler::closeTable()
{
    if (!m_running || !m_moreToCome)
        return;
    m_moreToCome = false;
    pump();
}

void QueryScheduler::cancel()
{
    m_running = false;
    m_moreToCome = false;
    closePool();
}

std::optional<QueryError> QueryScheduler::refresh(const QString& address, int port)
{
    const int index = lowestFreeSlot();
    if (index < 0)
        return std::nullopt;
    if (auto error = bindSlot(index))
        return error;
    sendOn(index, address, port, true);
    return std::nullopt;
}

void QueryScheduler::pump()
{
    while (m_running && m_next < m_table.count()) {
        const int index = lowestFreeSlot();
        if (index < 0)
            return;
        const AddressEntry& entry = m_table.at(m_next++);
        ++m_sent;
        sendOn(index, entry.address, entry.port, false);
        emit requestSent(m_sent, m_table.count());
    }
    if (m_running && !m_moreToCome && m_next >= m_table.count() && busySockets() == 0) {
        m_running = false;
        emit finished();
    }
}

void QueryScheduler::sendOn(int index, const QString& address, int port, bool refresh)
{
    Slot& slot = m_slots[index];
    slot.busy = true;
    slot.refresh = refresh;
    slot.address = address;
    slot.port = port;
    slot.targetPort = 0;
    if (port <= 0 || port > 65535 || !slot.socket) {
        // Nothing can be sent there: the server counts as silent.
        QMetaObject::invokeMethod(
            this, [this, index] { timeOut(index); }, Qt::QueuedConnection);
        return;
    }
    slot.targetPort = quint16(port);
    const QHostAddress literal(address);
    if (literal.protocol() == QAbstractSocket::IPv4Protocol) {
        slot.target = literal;
        const QString key = endpointText(literal.toString(), port);
        if (isOwnSocket(literal, port) || (!refresh && m_askedByName.contains(key))) {
            QMetaObject::invokeMethod(
                this, [this, index] { skip(index); }, Qt::QueuedConnection);
            return;
        }
        m_asked.insert(key);
        transmit(index);
        return;
    }
    if (!literal.isNull()) {
        // The pool's sockets are IPv4, as are the addresses masters list.
        QMetaObject::invokeMethod(
            this, [this, index] { timeOut(index); }, Qt::QueuedConnection);
        return;
    }
    // A favourite may name a host; resolve it first. The time-out covers
    // the lookup.
    slot.timer->start();
    slot.lookup->start(address);
}

void QueryScheduler::resolved(int index, const HostLookup::Result& result)
{
    Slot& slot = m_slots[index];
    if (!slot.busy)
        return;
    slot.target = HostLookup::firstOf(result.addresses, QAbstractSocket::IPv4Protocol);
    if (slot.target.isNull()) {
        timeOut(index);
        return;
    }
    const QString key = endpointText(slot.target.toString(), slot.targetPort);
    if (isOwnSocket(slot.target, slot.targetPort) || (!slot.refresh && m_asked.contains(key))) {
        skip(index);
        return;
    }
    m_asked.insert(key);
    m_askedByName.insert(key);
    transmit(index);
}

void QueryScheduler::transmit(int index)
{
    Slot& slot = m_slots[index];
    slot.socket->writeDatagram(InfoProtocol::getInfoRequest(), slot.target, slot.targetPort);
    slot.clock.start();
    slot.timer->start();
}

void QueryScheduler::release(int index)
{
    Slot& slot = m_slots[index];
    slot.timer->stop();
    slot.busy = false;
    // Outside a query a refreshed server's socket is not kept bound.
    if (slot.refresh && !m_running)
        closeSlot(index);
    slot.refresh = false;
}

void QueryScheduler::readReplies(int index)
{
    Slot& slot = m_slots[index];
    while (slot.socket && slot.socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = slot.socket->receiveDatagram();
        if (!slot.busy || slot.targetPort == 0 || datagram.senderPort() != slot.targetPort ||
            !datagram.senderAddress().isEqual(slot.target, QHostAddress::ConvertV4MappedToIPv4)) {
            ++m_dropped;
            continue;
        }
        // Only an infoResponse of this game answers the request; anything
        // else (a stray or forged datagram) leaves the server waited for.
        std::optional<ServerRecord> reply = InfoProtocol::parseReply(datagram.data());
        if (!reply) {
            ++m_dropped;
            continue;
        }
        ServerRecord& server = *reply;
        server.address = slot.address;
        server.port = slot.port;
        server.ping = int(std::min<qint64>(slot.clock.elapsed(), ServerRecord::MaxPing));
        const bool refresh = slot.refresh;
        ++m_answered;
        release(index);
        emit serverAnswered(server, refresh);
        if (!refresh)
            pump();
    }
}

void QueryScheduler::skip(int index)
{
    giveUp(index, m_skipped);
}

void QueryScheduler::timeOut(int index)
{
    giveUp(index, m_timedOut);
}

void QueryScheduler::giveUp(int index, int& counter)
{
    Slot& slot = m_slots[index];
    if (!slot.busy)
        return;
    slot.lookup->abort();
    const bool refresh = slot.refresh;
    ++counter;
    release(index);
    if (!refresh)
        pump();
}
