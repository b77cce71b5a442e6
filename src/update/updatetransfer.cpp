#include "updatetransfer.h"

#include "updateversion.h"

#include <QFile>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace {

QNetworkRequest freshRequest(const QUrl& url)
{
    QNetworkRequest request(url);
    // Always the site's current file, never a cached one.
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("q4vantage/" Q4V_VERSION));
    return request;
}

bool transferFailed(QNetworkReply* reply)
{
    return reply->error() != QNetworkReply::NoError ||
           reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= 400;
}

void dropReply(QPointer<QNetworkReply>& reply, QObject* owner)
{
    if (QNetworkReply* running = reply) {
        reply = nullptr;
        running->disconnect(owner);
        running->abort();
        running->deleteLater();
    }
}

} // namespace

UpdateCheck::UpdateCheck(QObject* parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(TimeoutMs);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        dropReply(m_reply, this);
        emit checked(false, {});
    });
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
    m_network->setProxy(proxy);
    m_reply = m_network->get(freshRequest(url));
    connect(m_reply, &QNetworkReply::finished, this, &UpdateCheck::done);
    m_timer.start();
    return true;
}

void UpdateCheck::abort()
{
    m_timer.stop();
    dropReply(m_reply, this);
}

void UpdateCheck::done()
{
    QNetworkReply* reply = m_reply;
    if (!reply)
        return;
    // A version file is a few bytes; anything longer is not one.
    const QByteArray body = transferFailed(reply) ? QByteArray() : reply->read(4096);
    abort();
    const auto latest = UpdateVersion::latestParts(body);
    if (!latest) {
        emit checked(false, {});
        return;
    }
    emit checked(UpdateVersion::isNewer(*latest, UpdateVersion::running()), *latest);
}

Downloader::Downloader(QObject* parent)
    : QObject(parent)
    , m_network(new QNetworkAccessManager(this))
{
}

Downloader::~Downloader()
{
    cancel();
}

void Downloader::begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy)
{
    cancel();
    m_target = target;
    m_network->setProxy(proxy);
    QNetworkRequest request = freshRequest(url);
    request.setTransferTimeout(StallTimeoutMs);
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &Downloader::progress);
    connect(m_reply, &QNetworkReply::finished, this, &Downloader::done);
}

void Downloader::cancel()
{
    dropReply(m_reply, this);
}

bool Downloader::isTrusted(const QUrl& finalUrl)
{
    if (finalUrl.scheme() == QLatin1String("https"))
        return true;
    const QString host = finalUrl.host();
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

void Downloader::done()
{
    QNetworkReply* reply = m_reply;
    if (!reply)
        return;
    const bool broken = transferFailed(reply);
    const QUrl finalUrl = reply->url();
    const QVariant announced = reply->header(QNetworkRequest::ContentLengthHeader);
    const QByteArray body = broken ? QByteArray() : reply->readAll();
    const QString why = broken ? reply->errorString() : tr("The site sent an empty file.");
    cancel();
    if (broken || body.isEmpty()) {
        emit failed(why);
        return;
    }
    if (announced.isValid() && announced.toLongLong() != body.size()) {
        emit failed(tr("%1 of %2 bytes arrived.").arg(body.size()).arg(announced.toLongLong()));
        return;
    }
    QFile file(m_target);
    // Not emptied first: an older, longer file keeps its tail.
    if (!file.open(QIODevice::ReadWrite) || file.write(body) != body.size() || !file.flush()) {
        emit notSaved(m_target, file.errorString());
        return;
    }
    file.close();
    emit completed(m_target, isTrusted(finalUrl));
}
