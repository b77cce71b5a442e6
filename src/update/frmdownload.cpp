// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/frmdownload.h"

#include "platform/desktop.h"
#include "update/downloader.h"
#include "update/updateversion.h"
#include "widgets/namedcontrol.h"

#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QVBoxLayout>

FrmDownload::FrmDownload(Desktop& desktop, const QStringList& latest, QWidget* parent)
    : QDialog(parent)
    , m_desktop(desktop)
    , m_latest(UpdateVersion::text(latest))
    , m_downloader(new Downloader(this))
{
    setObjectName(QStringLiteral("frmDownload"));
    prgBar = makeControl<QProgressBar>(this, "prgBar");
    prgBar->setRange(0, 1);
    prgBar->setValue(0);
    prgBar->setTextVisible(false);
    lblProgress = makeControl<QLabel>(this, "lblProgress");
    cmdCancel = makeControl<QPushButton>(this, "cmdCancel");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblProgress);
    layout->addWidget(prgBar);
    layout->addWidget(cmdCancel, 0, Qt::AlignRight);
    setMinimumWidth(360);

    connect(cmdCancel, &QPushButton::clicked, this, &FrmDownload::reject);
    connect(m_downloader, &Downloader::progress, this, &FrmDownload::showProgress);
    connect(m_downloader, &Downloader::failed, this,
            [this](const QString& reason) { fail(tr("Error During Download") + QStringLiteral("\n\n") + reason); });
    connect(m_downloader, &Downloader::notSaved, this, [this](const QString& target, const QString& reason) {
        fail(tr("The installer could not be saved to %1 (%2).").arg(target, reason));
    });
    connect(m_downloader, &Downloader::completed, this, [this](const QString& target, InstallerTrust::Verdict verdict) {
        m_target = target;
        m_verdict = verdict;
        prgBar->hide();
        lblProgress->setText(tr("Complete"));
        accept();
    });
    retranslateUi();
}

void FrmDownload::begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy, const QList<QUrl>& way,
                        const TransferAuthorities& authorities)
{
    m_downloader->setAuthorities(authorities);
    m_downloader->begin(url, target, proxy, way);
}

void FrmDownload::showProgress(qint64 received, qint64 total)
{
    m_received = received;
    m_total = total;
    if (total <= 0) {
        // The site did not say how much comes: a busy bar and the count.
        prgBar->setRange(0, 0);
        lblProgress->setText(
            tr("Downloading v%1\n%n bytes", nullptr, int(std::min<qint64>(received, INT_MAX))).arg(m_latest));
        return;
    }
    // The bar counts in kilobytes past 2 GB, where an int ends.
    const int scale = total > std::numeric_limits<int>::max() ? 1024 : 1;
    prgBar->setRange(0, int(std::max<qint64>(total / scale, 1)));
    prgBar->setValue(int(std::min(received, total) / scale));
    lblProgress->setText(tr("Downloading v%1\n%2 of %3").arg(m_latest).arg(std::min(received, total)).arg(total));
}

void FrmDownload::fail(const QString& text)
{
    m_downloader->cancel();
    // The box belongs to the main window: this window may be closed (and
    // deleted) while the box is open, taking a box of its own with it.
    const QPointer<FrmDownload> self(this);
    Desktop& desktop = m_desktop;
    desktop.message(parentWidget(), Desktop::Icon::Critical, tr("Quake 4 Vantage Update"), text, QMessageBox::Ok);
    if (self)
        self->QDialog::reject();
}

void FrmDownload::reject()
{
    // Cancel or the window's close: the transfer stops, nothing is started.
    m_downloader->cancel();
    QDialog::reject();
}

void FrmDownload::retranslateUi()
{
    setWindowTitle(tr("Downloading Quake 4 Vantage v%1").arg(m_latest));
    if (m_received == 0 && prgBar->isVisibleTo(this))
        lblProgress->setText(tr("Connecting to download site..."));
    else if (prgBar->isVisibleTo(this))
        showProgress(m_received, m_total);
    cmdCancel->setText(tr("Cancel"));
}

void FrmDownload::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}
