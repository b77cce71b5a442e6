// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "update/installertrust.h"
#include "update/updatecheck.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class Desktop;
class FrmDownload;
class FrmUpdate;
class QWidget;
class SettingsStore;
class UpdateCheck;

// The update from start to end: the check at start-up (only when wanted
// and a site is set), the offer, the download, and the installer's start,
// after which the program makes way for it. Every step waits for the user
// or the network through signals; the window stays usable throughout.
class UpdateFlow final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateFlow)

public:
    // The installer is saved in installerFolder (the program's own).
    UpdateFlow(SettingsStore& settings, Desktop& desktop, QString installerFolder, QWidget* window);

    // False when no request was made (switched off, or no update site).
    bool checkAtStart();
    bool isChecking() const;
    // Certificate authorities trusted besides the system's (a test's).
    void addAuthorities(const QList<QSslCertificate>& authorities);

signals:
    // The installer runs: the program should end so it can be replaced.
    void quitRequested();

private:
    void offer(const QStringList& latest);
    void download(const QStringList& latest);
    void downloaded(const QString& installer, InstallerTrust::Verdict verdict);

    SettingsStore& m_settings;
    Desktop& m_desktop;
    QString m_installerFolder;
    QWidget* m_window;
    UpdateCheck* m_check;
    TransferAuthorities m_authorities;
};
