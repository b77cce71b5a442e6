// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/transferauthorities.h"

#include <QVariant>

void TransferAuthorities::applyTo(QNetworkRequest& request) const
{
    if (m_extra.isEmpty())
        return;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(m_extra);
    request.setSslConfiguration(configuration);
}

namespace Transfer {

QNetworkRequest request(const QUrl& url, const TransferAuthorities& authorities)
{
    QNetworkRequest request(url);
    // Always the site's current file, never a cached one.
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("q4vantage/" Q4V_VERSION));
    // Redirects are followed, but never from HTTPS to plain HTTP.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    authorities.applyTo(request);
    return request;
}

bool failed(QNetworkReply* reply)
{
    return reply->error() != QNetworkReply::NoError ||
           reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= 400;
}

void drop(QPointer<QNetworkReply>& reply, QObject* owner)
{
    if (QNetworkReply* running = reply) {
        reply = nullptr;
        running->disconnect(owner);
        running->abort();
        running->deleteLater();
    }
}

qint64 announcedLength(QNetworkReply* reply)
{
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    bool ok = false;
    const qint64 value = length.toLongLong(&ok);
    return length.isValid() && ok && value >= 0 ? value : -1;
}

} // namespace Transfer
