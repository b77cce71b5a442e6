// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "findcontrol.h"
#include "httpresponder.h"
#include "peakmemory.h"
#include "scripteddesktop.h"
#include "update/downloader.h"
#include "update/frmdownload.h"
#include "update/frmupdate.h"
#include "update/updatecheck.h"
#include "update/updateflow.h"
#include "update/updateversion.h"
#include "userdata/settingsstore.h"

#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

inline const QString VersionPath = QStringLiteral("/downloads/vantageupdate.txt");
inline const QString InstallerPath = QStringLiteral("/downloads/Quake%204%20Vantage%20Setup.exe");

// A port nobody listens on.
inline quint16 closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    return server.serverPort();
}

inline QByteArray installerBytes(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 7 % 251);
    return bytes;
}

Q_DECLARE_METATYPE(HttpResponder::Reply)

// The update as a user meets it: a window, a site on this machine, the
// dialogs answered by clicks and the desktop's boxes by script. Test classes
// derive from it and call setUp() and tearDown() around each test.
class UpdateSiteTest : public QObject {
protected:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HttpResponder> m_site;
    UpdateFlow* m_flow = nullptr;

    QString installer() const { return m_dir->filePath(QLatin1String(UpdateVersion::InstallerFileName)); }
    template <typename T> T* dialog(const char* name) const { return m_window->findChild<T*>(QLatin1String(name)); }
    template <typename T> T* control(QWidget* dialog, const char* name) const { return findControl<T>(dialog, name); }
    void click(QWidget* dialog, const char* name) const
    {
        QTest::mouseClick(control<QAbstractButton>(dialog, name), Qt::LeftButton);
    }
    void serve(const QByteArray& version, const QByteArray& installerBody, int installerDelayMs = 0, int pieceBytes = 0)
    {
        m_site->set(VersionPath, {200, version, "text/plain", 0});
        m_site->set(InstallerPath, {200, installerBody, "application/octet-stream", installerDelayMs, pieceBytes});
    }
    // The check and the download as the user goes through them, and what
    // the box then said; empty when no box came or something was started.
    QString downloadAndHear() const
    {
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        if (!m_flow->checkAtStart() || !acceptOffer() ||
            !QTest::qWaitFor([this] { return !m_desktop->messages.isEmpty(); }, 5000))
            return {};
        return m_desktop->starts.isEmpty() ? m_desktop->messages.first().text : QString();
    }
    // Waits for the offer, then says Yes.
    FrmDownload* acceptOffer() const
    {
        if (!QTest::qWaitFor([this] { return dialog<FrmUpdate>("frmUpdate") != nullptr; }, 6000))
            return nullptr;
        click(dialog<FrmUpdate>("frmUpdate"), "cmdYes");
        return dialog<FrmDownload>("frmDownload");
    }

    void setUp()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("settings.ini")));
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_window = std::make_unique<QWidget>();
        m_window->show();
        // The site speaks HTTPS with a certificate of the test authority,
        // which the flow is told to trust besides the system's.
        m_site = std::make_unique<HttpResponder>(HttpResponder::Tls::On);
        m_settings->set(Keys::UpdateSite, m_site->url(QString()).toString());
        m_flow = new UpdateFlow(*m_settings, *m_desktop, m_dir->path(), m_window.get());
        m_flow->addAuthorities(HttpResponder::testAuthority());
    }
    void tearDown()
    {
        m_window.reset();
        QCOMPARE(m_desktop->unexpectedCalls, 0);
    }
};
