// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QSslCertificate>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <memory>

class QNetworkAccessManager;
class QNetworkRequest;
class QSaveFile;

// Whether a downloaded installer may be started: only when every address
// of its way (the version file that offered it, the installer's address and
// every redirect) was HTTPS with a certificate the system trusts, and all
// of its announced length arrived. Plain HTTP, loopback included, never
// is: anyone on the way, a proxy too, could have changed it.
namespace InstallerTrust {

enum class Verdict { Start, PlainHttp, LengthUnknown };
Verdict of(const QList<QUrl>& way, bool lengthAnnounced);

} // namespace InstallerTrust

// The certificates of the update site's transfers: the system's, and in
// tests a test authority besides.
class TransferAuthorities {
public:
    void add(const QList<QSslCertificate>& authorities) { m_extra += authorities; }
    void applyTo(QNetworkRequest& request) const;

private:
    QList<QSslCertificate> m_extra;
};

// Asks the update site for the latest version, in the background: the
// window never waits for it, and a site that does not answer in time, or
// sends more than a version file holds, is the same as no update.
class UpdateCheck final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateCheck)

public:
    static constexpr int TimeoutMs = 5000;
    // A version file is a few bytes; a longer answer is not one.
    static constexpr qint64 MaxVersionFileBytes = 4096;

    explicit UpdateCheck(QObject* parent = nullptr);
    ~UpdateCheck() override;

    void setAuthorities(const TransferAuthorities& authorities) { m_authorities = authorities; }
    // False, without any request, when the site is not a usable address.
    bool start(const QString& site, const QNetworkProxy& proxy);
    void abort();
    bool isRunning() const { return m_reply != nullptr; }
    // The addresses the last check went through: the version file's and
    // every redirect's.
    const QList<QUrl>& way() const { return m_way; }

signals:
    // Once per start: whether the site's version is newer, and its parts.
    void checked(bool newer, const QStringList& latest);

private:
    void done();
    void give(bool newer, const QStringList& latest);

    QNetworkAccessManager* m_network = nullptr;
    QPointer<QNetworkReply> m_reply;
    QTimer m_timer;
    TransferAuthorities m_authorities;
    QList<QUrl> m_way;
};

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
