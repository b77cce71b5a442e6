// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;
class QLockFile;

// One running program per user and settings: a second start asks the
// first to show its window and ends, so no two windows write the same
// files at once. The key names a local socket and a lock file beside it in
// the user's own runtime folder (mode 0700: no other user can listen there
// first or leave a file in the way); the lock decides which start is the
// first, atomically. Programs run with other settings do not meet.
class SingleInstance final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SingleInstance)

public:
    // Later starts connected at once, and what one may say: a peer that
    // holds connections or streams bytes costs only those.
    static constexpr int MaxConnections = 8;
    static constexpr qint64 MaxMessageBytes = 64;
    static constexpr int AnswerMs = 1000;

    // folder holds the socket; empty: no one-window rule (no private
    // folder to keep it in).
    explicit SingleInstance(const QString& key, const QString& folder = runtimeFolder(), QObject* parent = nullptr);
    ~SingleInstance() override;

    // True when this is the first (or no rule can be kept): it now answers
    // later starts. False when another one runs and was asked to show
    // itself.
    bool claim();

    // The socket's path for a key (a settings file path, say).
    QString socketPath() const { return m_path; }
    // The user's runtime folder, or empty when it is not the user's own.
    static QString runtimeFolder();

signals:
    // A later start asked for the window.
    void activationRequested();

private:
    void accept();

    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer* m_server = nullptr;
    int m_connections = 0;
};
