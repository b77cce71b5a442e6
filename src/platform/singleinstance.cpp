// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/singleinstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>
#include <QTimer>

namespace {

// What a later start says; the first reads nothing else.
constexpr char Activate[] = "activate\n";
// A first start may still be setting up its socket: asked this often.
constexpr int Attempts = 3;

} // namespace

SingleInstance::SingleInstance(const QString& key, const QString& folder, QObject* parent)
    : QObject(parent)
{
    if (folder.isEmpty())
        return;
    const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    m_path = QDir(folder).filePath(QStringLiteral("q4vantage-") + QString::fromLatin1(hash));
}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::runtimeFolder()
{
    // Qt makes it (0700) or refuses one another user owns.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.isDir() || !info.isWritable())
        return {};
    return folder;
}

bool SingleInstance::claim()
{
    if (m_path.isEmpty()) {
        qWarning("No private runtime folder: a second start would open a second window.");
        return true;
    }
    m_lock = std::make_unique<QLockFile>(m_path + QStringLiteral(".lock"));
    if (!m_lock->tryLock(0)) {
        if (m_lock->error() != QLockFile::LockFailedError) {
            qWarning("The one-window lock %s cannot be taken: a second start would open a second window.",
                     qPrintable(m_lock->fileName()));
            return true;
        }
        // Another start of this user holds it: it shows its window.
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            QLocalSocket first;
            first.connectToServer(m_path);
            if (first.waitForConnected(AnswerMs / Attempts)) {
                first.write(Activate);
                first.waitForBytesWritten(AnswerMs);
                first.disconnectFromServer();
                return false;
            }
        }
        return false;
    }
    // The lock is ours: whatever lies at the socket's place was left by a
    // run that ended.
    QLocalServer::removeServer(m_path);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->setMaxPendingConnections(MaxConnections);
    if (!m_server->listen(m_path)) {
        // Without the socket the program still runs; later starts find the
        // lock and end, which keeps the files to this window.
        qWarning("Later starts cannot ask this window to show itself: %s", qPrintable(m_server->errorString()));
        return true;
    }
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::accept);
    return true;
}

void SingleInstance::accept()
{
    while (QLocalSocket* later = m_server->nextPendingConnection()) {
        if (m_connections >= MaxConnections) {
            later->abort();
            later->deleteLater();
            continue;
        }
        ++m_connections;
        connect(later, &QLocalSocket::disconnected, later, &QObject::deleteLater);
        connect(later, &QObject::destroyed, this, [this] { --m_connections; });
        // Each gets its time and its bytes, then is closed.
        later->setReadBufferSize(MaxMessageBytes);
        const auto drop = [later] {
            later->abort();
            later->deleteLater();
        };
        QTimer::singleShot(AnswerMs, later, drop);
        connect(later, &QLocalSocket::readyRead, this, [this, later, drop] {
            const QByteArray said = later->read(MaxMessageBytes);
            if (said.startsWith(Activate))
                emit activationRequested();
            drop();
        });
    }
}
