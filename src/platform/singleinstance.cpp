// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/singleinstance.h"

#include <QCryptographicHash>
#include <QLocalServer>
#include <QLocalSocket>

namespace {

// What a later start says; the first reads nothing else.
constexpr char Activate[] = "activate\n";
constexpr int AnswerMs = 1000;

} // namespace

SingleInstance::SingleInstance(const QString& key, QObject* parent)
    : QObject(parent)
    , m_name(socketName(key))
{
}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::socketName(const QString& key)
{
    const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return QStringLiteral("q4vantage-") + QString::fromLatin1(hash);
}

bool SingleInstance::claim()
{
    {
        QLocalSocket first;
        first.connectToServer(m_name);
        if (first.waitForConnected(AnswerMs)) {
            first.write(Activate);
            first.waitForBytesWritten(AnswerMs);
            first.disconnectFromServer();
            return false;
        }
    }
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    // Nobody answered: a socket file left by a program that crashed.
    QLocalServer::removeServer(m_name);
    if (!m_server->listen(m_name)) {
        // Without the socket the program still runs, as it did before.
        qWarning("Another start could not be told to use this window: %s", qPrintable(m_server->errorString()));
        return true;
    }
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* later = m_server->nextPendingConnection()) {
            connect(later, &QLocalSocket::disconnected, later, &QObject::deleteLater);
            connect(later, &QLocalSocket::readyRead, this, [this, later] {
                if (later->readAll().contains("activate"))
                    emit activationRequested();
            });
        }
    });
    return true;
}
