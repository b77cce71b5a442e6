// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/httpproxy.h"

#include <QUrl>

QNetworkProxy httpProxy(bool enabled, const QString& address)
{
    const QString text = address.trimmed();
    if (!enabled || text.isEmpty())
        return QNetworkProxy(QNetworkProxy::NoProxy);
    const QUrl url = QUrl::fromUserInput(text.contains(QLatin1String("://")) ? text : QLatin1String("http://") + text);
    if (!url.isValid() || url.host().isEmpty())
        return QNetworkProxy(QNetworkProxy::NoProxy);
    return QNetworkProxy(QNetworkProxy::HttpProxy, url.host(), quint16(url.port(8080)), url.userName(), url.password());
}
