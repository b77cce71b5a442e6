// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/hostlookup.h"

#include <QUrl>

#include <mutex>
#include <thread>

#ifdef Q_OS_WIN
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <netdb.h>
#include <sys/socket.h>
#endif

namespace {

std::mutex resolverMutex;
HostLookup::Resolver& installedResolver()
{
    static HostLookup::Resolver resolver;
    return resolver;
}

HostLookup::Resolver currentResolver()
{
    const std::lock_guard lock(resolverMutex);
    return installedResolver() ? installedResolver() : HostLookup::Resolver(&HostLookup::resolveWithSystem);
}

} // namespace

// What the lookup's thread and its owner share: the owner to tell, or
// nobody once the owner went away or lost interest.
struct HostLookup::Pending {
    std::mutex mutex;
    HostLookup* owner = nullptr;
};

HostLookup::HostLookup(QObject* parent)
    : QObject(parent)
{
}

HostLookup::~HostLookup()
{
    abort();
}

void HostLookup::start(const QString& host)
{
    abort();
    auto pending = std::make_shared<Pending>();
    pending->owner = this;
    m_pending = pending;
    std::thread([pending, host, resolve = currentResolver()] {
        const Result result = resolve(host);
        const std::lock_guard lock(pending->mutex);
        HostLookup* owner = pending->owner;
        if (!owner)
            return;
        // Delivered on the owner's thread; Qt drops it if the owner is
        // deleted before then, and a newer lookup makes it stale.
        QMetaObject::invokeMethod(
            owner,
            [owner, pending, result] {
                if (owner->m_pending != pending)
                    return;
                owner->m_pending.reset();
                emit owner->finished(result);
            },
            Qt::QueuedConnection);
    }).detach();
}

void HostLookup::abort()
{
    if (!m_pending)
        return;
    {
        const std::lock_guard lock(m_pending->mutex);
        m_pending->owner = nullptr;
    }
    m_pending.reset();
}

HostLookup::Result HostLookup::resolveWithSystem(const QString& host)
{
    const QHostAddress literal(host);
    if (!literal.isNull())
        return {{literal}, {}};
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* list = nullptr;
    const QByteArray name = QUrl::toAce(host);
    if (name.isEmpty())
        return {{}, QStringLiteral("not a host name")};
    const int code = getaddrinfo(name.constData(), nullptr, &hints, &list);
    if (code != 0)
        return {{}, QString::fromLocal8Bit(gai_strerror(code))};
    Result result;
    for (const addrinfo* entry = list; entry; entry = entry->ai_next) {
        const QHostAddress address(entry->ai_addr);
        if (!address.isNull() && !result.addresses.contains(address))
            result.addresses.append(address);
    }
    freeaddrinfo(list);
    if (result.addresses.isEmpty())
        result.error = QStringLiteral("no address");
    return result;
}

void HostLookup::setResolver(Resolver resolver)
{
    const std::lock_guard lock(resolverMutex);
    installedResolver() = std::move(resolver);
}

QHostAddress HostLookup::firstOf(const QList<QHostAddress>& addresses, QAbstractSocket::NetworkLayerProtocol protocol)
{
    for (const QHostAddress& address : addresses) {
        if (address.protocol() == protocol)
            return address;
    }
    return {};
}
