// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/downloader.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSaveFile>

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
    QNetworkRequest request = Transfer::request(url, m_authorities);
    request.setTransferTimeout(StallTimeoutMs);
    m_reply = m_network->get(request);
    m_reply->setReadBufferSize(1024 * 1024);
    connect(m_reply, &QNetworkReply::redirected, this, [this](const QUrl& to) { m_way.append(to); });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        if (!m_reply)
            return;
        m_announced = Transfer::announcedLength(m_reply);
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
    Transfer::drop(m_reply, this);
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
    if (Transfer::failed(reply)) {
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
    Transfer::drop(m_reply, this);
    std::unique_ptr<QSaveFile> file = std::move(m_file);
    if (!file->commit()) {
        emit notSaved(m_target, file->errorString());
        return;
    }
    emit completed(m_target, InstallerTrust::of(m_way, m_announced >= 0));
}
