// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "update/downloader.h"

#include <QDialog>
#include <QNetworkProxy>
#include <QStringList>
#include <QUrl>

class Desktop;
class Downloader;
class QLabel;
class QProgressBar;
class QPushButton;

// Downloads the installer with its progress in view. Accepted once the
// file is written; rejected on Cancel or after saying what went wrong.
class FrmDownload final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmDownload)

public:
    FrmDownload(Desktop& desktop, const QStringList& latest, QWidget* parent = nullptr);

    // way: the addresses that offered the download (the version file's).
    void begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy, const QList<QUrl>& way,
               const TransferAuthorities& authorities);
    QString target() const { return m_target; }
    InstallerTrust::Verdict verdict() const { return m_verdict; }

protected:
    void changeEvent(QEvent* event) override;
    void reject() override;

private:
    void showProgress(qint64 received, qint64 total);
    void fail(const QString& text);
    void retranslateUi();

    Desktop& m_desktop;
    QString m_latest;
    QString m_target;
    InstallerTrust::Verdict m_verdict = InstallerTrust::Verdict::PlainHttp;
    Downloader* m_downloader = nullptr;
    QProgressBar* prgBar = nullptr;
    QLabel* lblProgress = nullptr;
    QPushButton* cmdCancel = nullptr;
    qint64 m_received = 0;
    qint64 m_total = 0;
};
