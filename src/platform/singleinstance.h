// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

// One running program per user and settings: a second start asks the
// first to show its window and ends, so no two windows write the same
// files at once. The key names a local socket of this user; programs run
// with other settings (another XDG_CONFIG_HOME, tests) do not meet.
class SingleInstance final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SingleInstance)

public:
    explicit SingleInstance(const QString& key, QObject* parent = nullptr);
    ~SingleInstance() override;

    // True when this is the first: it now answers later starts. False when
    // another one runs and was asked to show itself.
    bool claim();

    // The socket's name for a key (a settings file path, say).
    static QString socketName(const QString& key);

signals:
    // A later start asked for the window.
    void activationRequested();

private:
    QString m_name;
    QLocalServer* m_server = nullptr;
};
