// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/updatecheck.h"

#include "update/updateversion.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

UpdateCheck::UpdateCheck(QObject* parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(TimeoutMs);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] { give(false, {}); });
}

UpdateCheck::~UpdateCheck()
{
    abort();
}

bool UpdateCheck::start(const QString& site, const QNetworkProxy& proxy)
{
    abort();
    const QUrl url = UpdateVersion::versionFileUrl(site);
    if (url.isEmpty())
        return false;
    m_way = {url};
    m_network->setProxy(proxy);
    m_reply = m_network->get(Transfer::request(url, m_authorities));
    // Qt buffers no more than this; more than a version file is refused as
    // soon as it is there.
    m_reply->setReadBufferSize(MaxVersionFileBytes + 1);
    connect(m_reply, &QNetworkReply::redirected, this, [this](const QUrl& to) { m_way.append(to); });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        if (m_reply && Transfer::announcedLength(m_reply) > MaxVersionFileBytes)
            give(false, {});
    });
    connect(m_reply, &QNetworkReply::readyRead, this, [this] {
        if (m_reply && m_reply->bytesAvailable() > MaxVersionFileBytes)
            give(false, {});
    });
    connect(m_reply, &QNetworkReply::finished, this, &UpdateCheck::done);
    m_timer.start();
    return true;
}

void UpdateCheck::abort()
{
    m_timer.stop();
    Transfer::drop(m_reply, this);
}

void UpdateCheck::give(bool newer, const QStringList& latest)
{
    abort();
    emit checked(newer, latest);
}

void UpdateCheck::done()
{
    QNetworkReply* reply = m_reply;
    if (!reply)
        return;
    const QByteArray body = Transfer::failed(reply) ? QByteArray() : reply->read(MaxVersionFileBytes + 1);
    const auto latest = body.size() > MaxVersionFileBytes ? std::nullopt : UpdateVersion::latestParts(body);
    if (!latest) {
        give(false, {});
        return;
    }
    give(UpdateVersion::isNewer(*latest, UpdateVersion::running()), *latest);
}
