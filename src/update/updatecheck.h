// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "update/transferauthorities.h"

#include <QNetworkProxy>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QUrl>

class QNetworkAccessManager;

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
