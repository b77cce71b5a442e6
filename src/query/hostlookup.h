// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHostAddress>
#include <QList>
#include <QObject>

#include <functional>
#include <memory>

// Resolves a host name without ever holding up the program's end. A
// resolver that gets no answer keeps its system call busy for many
// seconds, and Qt waits for its own running lookups when the program
// exits; so each lookup here runs on a thread that nobody waits for, and
// one that is aborted or outlived by its owner is simply forgotten.
class HostLookup final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HostLookup)

public:
    struct Result {
        QList<QHostAddress> addresses; // the resolver's order, no duplicates
        QString error;                 // why there are none
    };
    using Resolver = std::function<Result(const QString& host)>;

    explicit HostLookup(QObject* parent = nullptr);
    ~HostLookup() override;

    // Starts resolving host; a lookup still running is forgotten.
    void start(const QString& host);
    // Forgets the running lookup: its answer is never reported.
    void abort();
    bool isRunning() const { return m_pending != nullptr; }

    // The system's resolver (getaddrinfo), blocking.
    static Result resolveWithSystem(const QString& host);
    // Replaces the resolver of every lookup started from now on; an empty
    // one restores the system's. Tests never ask the system's resolver.
    static void setResolver(Resolver resolver);

    // The first address of the protocol, or a null address.
    static QHostAddress firstOf(const QList<QHostAddress>& addresses, QAbstractSocket::NetworkLayerProtocol protocol);

signals:
    void finished(const HostLookup::Result& result);

private:
    struct Pending;
    std::shared_ptr<Pending> m_pending;
};
