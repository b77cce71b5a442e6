// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSslCertificate>

// The certificates of the update site's transfers: the system's, and in
// tests a test authority besides.
class TransferAuthorities {
public:
    void add(const QList<QSslCertificate>& authorities) { m_extra += authorities; }
    void applyTo(QNetworkRequest& request) const;

private:
    QList<QSslCertificate> m_extra;
};

// What the update site's transfers share.
namespace Transfer {

// A request for the site's current file (never a cached one), with the
// given authorities, following redirects but never from HTTPS to HTTP.
QNetworkRequest request(const QUrl& url, const TransferAuthorities& authorities);
// The transfer broke off or the site answered with an error status.
bool failed(QNetworkReply* reply);
// Stops a running transfer and forgets it; owner hears nothing more.
void drop(QPointer<QNetworkReply>& reply, QObject* owner);
// The Content-Length the site announced, or -1.
qint64 announcedLength(QNetworkReply* reply);

} // namespace Transfer
