// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/serverlistfetch.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

ServerListFetch::ServerListFetch(QNetworkAccessManager& network, QObject* parent)
    : QObject(parent)
    , m_network(network)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(TimeoutMs);
    // A coarse timer may fire 5 % early: the limit is the one we say.
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        fail(QCoreApplication::translate("ServerListFetch", "no reply within %1 seconds").arg(TimeoutMs / 1000));
    });
}

ServerListFetch::~ServerListFetch()
{
    abort();
}

void ServerListFetch::start(const QUrl& url)
{
    abort();
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QStringLiteral("q4vantage/%1").arg(QCoreApplication::applicationVersion()));
    request.setRawHeader("Accept", "application/json, text/plain;q=0.9, */*;q=0.5");
    m_body.clear();
    m_reply = m_network.get(request);
    // Qt keeps no more than this for us; the body is gathered here and
    // refused the moment it passes the cap, however fast it comes.
    m_reply->setReadBufferSize(256 * 1024);
    connect(m_reply, &QNetworkReply::readyRead, this, &ServerListFetch::gather);
    connect(m_reply, &QNetworkReply::finished, this, &ServerListFetch::done);
    m_timer.start();
}

void ServerListFetch::abort()
{
    m_timer.stop();
    m_body = QByteArray();
    if (QNetworkReply* reply = m_reply) {
        m_reply = nullptr;
        m_cutOff = m_cutOff || !reply->isFinished();
        reply->disconnect(this);
        reply->abort();
        reply->deleteLater();
    }
}

void ServerListFetch::done()
{
    QNetworkReply* reply = m_reply;
    if (!reply)
        return;
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status >= 400) {
        const QString reason = reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        fail(QStringLiteral("HTTP %1 %2").arg(status).arg(reason).trimmed());
        return;
    }
    if (reply->error() != QNetworkReply::NoError) {
        fail(reply->errorString());
        return;
    }
    gather();
    if (!m_reply)
        return;
    const QByteArray body = std::exchange(m_body, {});
    abort();
    emit listed(ServerListReader::read(body));
}

void ServerListFetch::gather()
{
    while (m_reply && m_reply->bytesAvailable() > 0) {
        m_body += m_reply->read(64 * 1024);
        if (m_body.size() > MaxReplyBytes) {
            fail(QCoreApplication::translate("ServerListFetch", "the reply is larger than %1 MiB")
                     .arg(MaxReplyBytes / (1024 * 1024)));
            return;
        }
    }
}

void ServerListFetch::fail(const QString& reason)
{
    abort();
    emit failed(reason);
}
