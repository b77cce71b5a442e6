// SPDX-License-Identifier: GPL-2.0-or-later
#include "updatetransfer.h"

#include "updateversion.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>
#include <QSslConfiguration>

namespace {

QNetworkRequest freshRequest(const QUrl& url, const TransferAuthorities& authorities)
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

qint64 announcedLength(QNetworkReply* reply)
{
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    bool ok = false;
    const qint64 value = length.toLongLong(&ok);
    return length.isValid() && ok && value >= 0 ? value : -1;
}

} // namespace

namespace InstallerTrust {

Verdict of(const QList<QUrl>& way, bool lengthAnnounced)
{
    const bool encrypted = !way.isEmpty() && std::all_of(way.cbegin(), way.cend(), [](const QUrl& url) {
        return url.scheme().compare(QLatin1String("https"), Qt::CaseInsensitive) == 0;
    });
    if (!encrypted)
        return Verdict::PlainHttp;
    return lengthAnnounced ? Verdict::Start : Verdict::LengthUnknown;
}

} // namespace InstallerTrust

void TransferAuthorities::applyTo(QNetworkRequest& request) const
{
    if (m_extra.isEmpty())
        return;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(m_extra);
    request.setSslConfiguration(configuration);
}

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
    m_reply = m_network->get(freshRequest(url, m_authorities));
    // Qt buffers no more than this; more than a version file is refused as
    // soon as it is there.
    m_reply->setReadBufferSize(MaxVersionFileBytes + 1);
    connect(m_reply, &QNetworkReply::redirected, this, [this](const QUrl& to) { m_way.append(to); });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        if (m_reply && announcedLength(m_reply) > MaxVersionFileBytes)
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
    dropReply(m_reply, this);
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
    const QByteArray body = transferFailed(reply) ? QByteArray() : reply->read(MaxVersionFileBytes + 1);
    const auto latest = body.size() > MaxVersionFileBytes ? std::nullopt : UpdateVersion::latestParts(body);
    if (!latest) {
        give(false, {});
        return;
    }
    give(UpdateVersion::isNewer(*latest, UpdateVersion::running()), *latest);
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

void Downloader::begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy, const QList<QUrl>& way)
{
    cancel();
    m_target = target;
    m_way = way;
    m_way.append(url);
    m_announced = -1;
    m_received = 0;
    m_file = std::make_unique<QSaveFile>(target);
    if (!m_file->open(QIODevice::WriteOnly)) {
        const QString reason = m_file->errorString();
        m_file.reset();
        // Said once the caller is back in the event loop, as every ending.
        QMetaObject::invokeMethod(
            this, [this, target, reason] { emit notSaved(target, reason); }, Qt::QueuedConnection);
        return;
    }
    m_network->setProxy(proxy);
    QNetworkRequest request = freshRequest(url, m_authorities);
    request.setTransferTimeout(StallTimeoutMs);
    m_reply = m_network->get(request);
    m_reply->setReadBufferSize(1024 * 1024);
    connect(m_reply, &QNetworkReply::redirected, this, [this](const QUrl& to) { m_way.append(to); });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        if (!m_reply)
            return;
        m_announced = announcedLength(m_reply);
        if (m_announced > MaxBytes)
            failWith(tr("The installer is larger than %1 MB.").arg(MaxBytes / (1024 * 1024)));
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &Downloader::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &Downloader::done);
}

void Downloader::readBody()
{
    while (m_reply && m_file && m_reply->bytesAvailable() > 0) {
        const QByteArray piece = m_reply->read(64 * 1024);
        m_received += piece.size();
        if (m_received > MaxBytes) {
            failWith(tr("The installer is larger than %1 MB.").arg(MaxBytes / (1024 * 1024)));
            return;
        }
        if (m_announced >= 0 && m_received > m_announced) {
            failWith(tr("The site sent more than the %1 bytes it announced.").arg(m_announced));
            return;
        }
        if (m_file->write(piece) != piece.size()) {
            const QString reason = m_file->errorString();
            stop();
            emit notSaved(m_target, reason);
            return;
        }
    }
    if (m_reply)
        emit progress(m_received, m_announced);
}

void Downloader::cancel()
{
    stop();
}

void Downloader::stop()
{
    dropReply(m_reply, this);
    // Whatever was written goes: the old file stays as it was.
    if (m_file)
        m_file->cancelWriting();
    m_file.reset();
}

void Downloader::failWith(const QString& reason)
{
    stop();
    emit failed(reason);
}

void Downloader::done()
{
    QNetworkReply* reply = m_reply;
    if (!reply || !m_file)
        return;
    if (transferFailed(reply)) {
        failWith(reply->errorString());
        return;
    }
    readBody();
    if (!m_reply)
        return; // refused while reading the rest
    if (m_received == 0) {
        failWith(tr("The site sent an empty file."));
        return;
    }
    if (m_announced >= 0 && m_received != m_announced) {
        failWith(tr("%1 of %2 bytes arrived.").arg(m_received).arg(m_announced));
        return;
    }
    dropReply(m_reply, this);
    std::unique_ptr<QSaveFile> file = std::move(m_file);
    if (!file->commit()) {
        emit notSaved(m_target, file->errorString());
        return;
    }
    emit completed(m_target, InstallerTrust::of(m_way, m_announced >= 0));
}
