// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/updateflow.h"

#include "platform/desktop.h"
#include "query/httpproxy.h"
#include "update/frmdownload.h"
#include "update/frmupdate.h"
#include "update/installertrust.h"
#include "update/updatecheck.h"
#include "update/updateversion.h"
#include "userdata/settingsstore.h"

#include <QDir>

UpdateFlow::UpdateFlow(SettingsStore& settings, Desktop& desktop, QString installerFolder, QWidget* window)
    : QObject(window)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_installerFolder(std::move(installerFolder))
    , m_window(window)
    , m_check(new UpdateCheck(this))
{
    connect(m_check, &UpdateCheck::checked, this, [this](bool newer, const QStringList& latest) {
        if (newer)
            offer(latest);
    });
}

bool UpdateFlow::checkAtStart()
{
    if (!m_settings.value(Keys::AutoUpdate))
        return false;
    return m_check->start(m_settings.value(Keys::UpdateSite),
                          httpProxy(m_settings.value(Keys::Proxy), m_settings.value(Keys::ProxyAddress)));
}

bool UpdateFlow::isChecking() const
{
    return m_check->isRunning();
}

void UpdateFlow::addAuthorities(const QList<QSslCertificate>& authorities)
{
    m_authorities.add(authorities);
    m_check->setAuthorities(m_authorities);
}

void UpdateFlow::offer(const QStringList& latest)
{
    auto* dialog = new FrmUpdate(m_settings, latest, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, latest] { download(latest); });
    dialog->open();
}

void UpdateFlow::download(const QStringList& latest)
{
    auto* dialog = new FrmDownload(m_desktop, latest, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { downloaded(dialog->target(), dialog->verdict()); });
    dialog->open();
    dialog->begin(UpdateVersion::installerUrl(m_settings.value(Keys::UpdateSite)),
                  QDir(m_installerFolder).filePath(QLatin1String(UpdateVersion::InstallerFileName)),
                  httpProxy(m_settings.value(Keys::Proxy), m_settings.value(Keys::ProxyAddress)), m_check->way(),
                  m_authorities);
}

void UpdateFlow::downloaded(const QString& installer, InstallerTrust::Verdict verdict)
{
    const QString title = tr("Quake 4 Vantage Update");
    if (verdict == InstallerTrust::Verdict::PlainHttp) {
        // Anyone between here and the site could have changed it.
        m_desktop.message(m_window, Desktop::Icon::Warning, title,
                          tr("The installer came without encryption (plain HTTP), so it will not be started. It was "
                             "saved to %1.")
                              .arg(QDir::toNativeSeparators(installer)),
                          QMessageBox::Ok);
        return;
    }
    if (verdict == InstallerTrust::Verdict::LengthUnknown) {
        m_desktop.message(m_window, Desktop::Icon::Warning, title,
                          tr("The site did not say how large the installer is, so whether all of it arrived cannot "
                             "be checked, and it will not be started. It was saved to %1.")
                              .arg(QDir::toNativeSeparators(installer)),
                          QMessageBox::Ok);
        return;
    }
    if (!m_desktop.startDetached(installer, {}, QString(), {})) {
        m_desktop.message(m_window, Desktop::Icon::Warning, title,
                          tr("The installer was saved to %1, but it cannot be started on this system.")
                              .arg(QDir::toNativeSeparators(installer)),
                          QMessageBox::Ok);
        return;
    }
    emit quitRequested();
}
