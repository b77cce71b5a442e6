#pragma once

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;

// Asks the update site for the latest version, in the background: the
// window never waits for it, and a site that does not answer in time is
// the same as no update.
class UpdateCheck final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateCheck)

public:
    static constexpr int TimeoutMs = 5000;

    explicit UpdateCheck(QObject* parent = nullptr);
    ~UpdateCheck() override;

    // False, without any request, when the site is not a usable address.
    bool start(const QString& site, const QNetworkProxy& proxy);
    void abort();
    bool isRunning() const { return m_reply != nullptr; }

signals:
    // Once per start: whether the site's version is newer, and its parts.
    void checked(bool newer, const QStringList& latest);

private:
    void done();

    QNetworkAccessManager* m_network = nullptr;
    QPointer<QNetworkReply> m_reply;
    QTimer m_timer;
};

// Fetches one file into memory and writes it to the target only when the
// whole of it arrived: a transfer that breaks off never leaves a file that
// looks complete. The target is written over without being emptied first,
// as the installer always was, so an older, longer file keeps its tail.
class Downloader final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Downloader)

public:
    // No byte for this long ends the transfer.
    static constexpr int StallTimeoutMs = 30000;

    explicit Downloader(QObject* parent = nullptr);
    ~Downloader() override;

    void begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy);
    void cancel();
    bool isRunning() const { return m_reply != nullptr; }

    // Safe to run: it came over HTTPS (after any redirect), or from this
    // machine.
    static bool isTrusted(const QUrl& finalUrl);

signals:
    void progress(qint64 received, qint64 total);
    // Nothing arrived, the site said no, or the transfer broke off.
    void failed(const QString& reason);
    // The file is written; trusted as isTrusted() says.
    void completed(const QString& target, bool trusted);
    void notSaved(const QString& target, const QString& reason);

private:
    void done();

    QNetworkAccessManager* m_network = nullptr;
    QPointer<QNetworkReply> m_reply;
    QString m_target;
};
