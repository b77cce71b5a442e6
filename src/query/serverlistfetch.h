// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/serverlistreader.h"

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;

// Fetches one published server list over HTTP(S) and reads it. The whole
// transfer has a time limit, and a reply larger than any real list is cut
// off: a site that trickles or floods costs this source, never the query.
class ServerListFetch final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerListFetch)

public:
    static constexpr int TimeoutMs = 5000;
    static constexpr qint64 MaxReplyBytes = 8 * 1024 * 1024;

    ServerListFetch(QNetworkAccessManager& network, QObject* parent = nullptr);
    ~ServerListFetch() override;

    // Goes through the network access manager's proxy.
    void start(const QUrl& url);
    void abort();
    bool isRunning() const { return m_reply != nullptr; }
    // A transfer was cut off before the site finished (time-out, size, or
    // abort): Qt's network thread may still be busy with that connection.
    bool wasCutOff() const { return m_cutOff; }

signals:
    // Exactly one of these follows each start, unless aborted.
    void listed(const ServerListReader::Result& result);
    void failed(const QString& reason);

private:
    void done();
    void gather();
    void fail(const QString& reason);

    QNetworkAccessManager& m_network;
    QPointer<QNetworkReply> m_reply;
    QTimer m_timer;
    QByteArray m_body;
    bool m_cutOff = false;
};
