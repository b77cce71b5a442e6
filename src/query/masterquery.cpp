// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/masterquery.h"

#include "query/hostlookup.h"
#include "query/masterprotocol.h"

#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QTimer>
#include <QUdpSocket>

MasterQuery::MasterQuery(QObject* parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
    , m_lookup(new HostLookup(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(TimeoutMs);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, &QTimer::timeout, this, [this] {
        const bool late = m_late;
        stop();
        // The list was complete; nothing more came.
        if (!late)
            emit timedOut();
    });
    connect(m_lookup, &HostLookup::finished, this, [this](const HostLookup::Result& result) {
        if (!m_socket)
            return;
        // The documented master has an IPv4 address; IPv6 is the fallback.
        QHostAddress target = HostLookup::firstOf(result.addresses, QAbstractSocket::IPv4Protocol);
        if (target.isNull())
            target = HostLookup::firstOf(result.addresses, QAbstractSocket::IPv6Protocol);
        if (target.isNull()) {
            stop();
            emit failed(QueryError{QueryError::Kind::MasterNotFound, m_master.host,
                                   result.error.isEmpty() ? QStringLiteral("no address") : result.error});
            return;
        }
        if (auto error = aimAt(target)) {
            stop();
            emit failed(*error);
        }
    });
}

MasterQuery::~MasterQuery()
{
    stop();
}

bool MasterQuery::isRunning() const
{
    return m_socket != nullptr;
}

std::optional<QueryError> MasterQuery::start(const MasterAddress& master, quint16 localPort)
{
    stop();
    m_master = master;
    m_localPort = localPort;
    m_dropped = 0;
    QUdpSocket* socket = boundSocket(QHostAddress::AnyIPv4);
    if (!socket)
        return portError(QHostAddress::AnyIPv4);
    adopt(socket);
    // The time-out covers the name lookup too: a resolver that never
    // answers must not leave the query hanging.
    m_timer->start();
    const QHostAddress literal(master.host);
    if (literal.isNull()) {
        m_lookup->start(master.host);
        return std::nullopt;
    }
    if (auto error = aimAt(literal)) {
        stop();
        return error;
    }
    return std::nullopt;
}

QUdpSocket* MasterQuery::boundSocket(const QHostAddress& any)
{
    auto* socket = new QUdpSocket(this);
    socket->setProxy(QNetworkProxy::NoProxy);
    if (socket->bind(any, m_localPort, QAbstractSocket::DefaultForPlatform))
        return socket;
    m_bindError = socket->errorString();
    delete socket;
    return nullptr;
}

QueryError MasterQuery::portError(const QHostAddress& any) const
{
    const QString port = QString::number(m_localPort);
    return QueryError{QueryError::Kind::PortUnavailable,
                      any == QHostAddress::AnyIPv6 ? QStringLiteral("%1 (IPv6)").arg(port) : port, m_bindError};
}

void MasterQuery::adopt(QUdpSocket* socket)
{
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket->close();
        m_socket->deleteLater();
    }
    m_socket = socket;
    connect(m_socket, &QUdpSocket::readyRead, this, &MasterQuery::readReplies);
}

std::optional<QueryError> MasterQuery::aimAt(const QHostAddress& target)
{
    // An IPv6 master is asked from the same local port number, on IPv6.
    if (target.protocol() == QAbstractSocket::IPv6Protocol) {
        QUdpSocket* socket = boundSocket(QHostAddress::AnyIPv6);
        if (!socket)
            return portError(QHostAddress::AnyIPv6);
        adopt(socket);
    }
    m_target = target;
    send();
    return std::nullopt;
}

void MasterQuery::send()
{
    m_socket->writeDatagram(MasterProtocol::getServersRequest(), m_target, m_master.port);
}

void MasterQuery::readReplies()
{
    while (m_socket && m_socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        if (m_target.isNull() || datagram.senderPort() != m_master.port ||
            !datagram.senderAddress().isEqual(m_target, QHostAddress::ConvertV4MappedToIPv4)) {
            ++m_dropped;
            continue;
        }
        m_timer->stop();
        if (m_late) {
            readLate(datagram.data());
            continue;
        }
        m_gathered += datagram.data();
        m_recordBytes += MasterProtocol::removeAll(datagram.data(), MasterProtocol::replyHeader()).size();
        ++m_datagrams;
        emit receiving();
        // A master that streams without end is refused as soon as the list
        // is surely too long, not when (if ever) its last datagram comes.
        if (MasterProtocol::surelyTooLong(m_recordBytes, m_datagrams, m_gathered.size())) {
            stop();
            emit sorting();
            emit failed(QueryError{QueryError::Kind::TooManyServers, QString()});
            return;
        }
        if (!MasterProtocol::isLastDatagram(datagram.data())) {
            m_timer->start();
            continue;
        }
        finish();
    }
}

void MasterQuery::finish()
{
    const QByteArray gathered = std::exchange(m_gathered, {});
    m_recordBytes = 0;
    m_datagrams = 0;
    emit sorting();
    const auto records = MasterProtocol::cutRecords(gathered);
    if (!records) {
        stop();
        emit failed(QueryError{QueryError::Kind::TooManyServers, QString()});
        return;
    }
    AddressTable table;
    m_carriedPort = MasterProtocol::appendAddresses(*records, table);
    m_records = int(records->size());
    m_late = true;
    m_timer->start();
    emit addressesReady(table);
}

void MasterQuery::readLate(const QByteArray& datagram)
{
    const auto records = MasterProtocol::cutRecords(datagram);
    // The record counter covers the whole list, late datagrams included.
    if (!records || m_records + records->size() > MasterProtocol::MaxRecords) {
        stop();
        return;
    }
    m_records += int(records->size());
    AddressTable table;
    m_carriedPort = MasterProtocol::appendAddresses(*records, table, m_carriedPort);
    m_timer->start();
    if (!table.isEmpty())
        emit moreAddresses(table);
}

void MasterQuery::cancel()
{
    stop();
}

void MasterQuery::stop()
{
    m_timer->stop();
    // The reply may be large; nothing keeps it past its query.
    m_gathered = QByteArray();
    m_recordBytes = 0;
    m_datagrams = 0;
    m_late = false;
    m_records = 0;
    m_carriedPort = 0;
    m_lookup->abort();
    m_target.clear();
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket->close();
        m_socket->deleteLater();
        m_socket = nullptr;
    }
}
