// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "update/installertrust.h"
#include "update/transferauthorities.h"

#include <QNetworkProxy>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <memory>

class QNetworkAccessManager;
class QSaveFile;

// Fetches one file straight to disk as it arrives, through a QSaveFile: the
// target is replaced whole, and only once all of the announced length
// arrived, so a transfer that breaks off never leaves a file that looks
// complete. Nothing of it is held in memory beyond a small buffer, and a
// file larger than MaxBytes is refused while it arrives.
class Downloader final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Downloader)

public:
    // No byte for this long ends the transfer.
    static constexpr int StallTimeoutMs = 30000;
    // Far above any installer of this program (a few MB).
    static constexpr qint64 MaxBytes = 256LL * 1024 * 1024;

    explicit Downloader(QObject* parent = nullptr);
    ~Downloader() override;

    void setAuthorities(const TransferAuthorities& authorities) { m_authorities = authorities; }
    // way: the addresses that led here (the version file's), for the trust
    // of what is downloaded.
    void begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy, const QList<QUrl>& way = {});
    void cancel();
    bool isRunning() const { return m_reply != nullptr; }

signals:
    // total is -1 while the length is not known.
    void progress(qint64 received, qint64 total);
    // Nothing arrived, the site said no, the transfer broke off or was too
    // large: nothing was written.
    void failed(const QString& reason);
    // The file is written; whether it may be started.
    void completed(const QString& target, InstallerTrust::Verdict verdict);
    void notSaved(const QString& target, const QString& reason);

private:
    void readBody();
    void done();
    void stop();
    void failWith(const QString& reason);

    QNetworkAccessManager* m_network = nullptr;
    QPointer<QNetworkReply> m_reply;
    std::unique_ptr<QSaveFile> m_file;
    QString m_target;
    TransferAuthorities m_authorities;
    QList<QUrl> m_way;
    qint64 m_announced = -1;
    qint64 m_received = 0;
};
