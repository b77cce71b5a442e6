#include "masterquery.h"

#include "masterprotocol.h"

#include <QHostInfo>
#include <QNetworkDatagram>
#include <QNetworkProxy>
#include <QTimer>
#include <QUdpSocket>

MasterQuery::MasterQuery(QObject* parent)
    : QObject(parent)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(TimeoutMs);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, &QTimer::timeout, this, [this] {
        stop();
        emit timedOut();
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
    m_dropped = 0;
    auto* socket = new QUdpSocket(this);
    socket->setProxy(QNetworkProxy::NoProxy);
    if (!socket->bind(QHostAddress::AnyIPv4, localPort, QAbstractSocket::DefaultForPlatform)) {
        QueryError error{QueryError::Kind::PortUnavailable, QString::number(localPort), socket->errorString()};
        delete socket;
        return error;
    }
    m_socket = socket;
    connect(m_socket, &QUdpSocket::readyRead, this, &MasterQuery::readReplies);
    // The time-out covers the name lookup too: a resolver that never
    // answers must not leave the query hanging.
    m_timer->start();
    const QHostAddress literal(master.host);
    if (!literal.isNull()) {
        m_target = literal;
        send();
        return std::nullopt;
    }
    m_lookupId = QHostInfo::lookupHost(master.host, this, [this](const QHostInfo& info) {
        m_lookupId = -1;
        if (!m_socket)
            return;
        const auto addresses = info.addresses();
        const auto v4 = std::find_if(addresses.begin(), addresses.end(), [](const QHostAddress& candidate) {
            return candidate.protocol() == QAbstractSocket::IPv4Protocol;
        });
        if (v4 == addresses.end()) {
            const QString reason =
                info.error() == QHostInfo::NoError ? QStringLiteral("no IPv4 address") : info.errorString();
            stop();
            emit failed(QueryError{QueryError::Kind::MasterNotFound, m_master.host, reason});
            return;
        }
        m_target = *v4;
        send();
    });
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
        return;
    }
}

void MasterQuery::finish()
{
    const QByteArray gathered = std::exchange(m_gathered, {});
    stop();
    emit sorting();
    const auto records = MasterProtocol::cutRecords(gathered);
    if (!records) {
        emit failed(QueryError{QueryError::Kind::TooManyServers, QString()});
        return;
    }
    AddressTable table;
    MasterProtocol::appendAddresses(*records, table);
    emit addressesReady(table);
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
    if (m_lookupId >= 0)
        QHostInfo::abortHostLookup(m_lookupId);
    m_lookupId = -1;
    if (m_socket) {
        m_socket->disconnect(this);
        m_socket->close();
        m_socket->deleteLater();
        m_socket = nullptr;
    }
}
