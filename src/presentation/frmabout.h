// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QUrl>

class Desktop;
class QLabel;
class QPushButton;

// What the program is: its name and version, the Qt it runs on, and its
// home page when the build names one.
class FrmAbout final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmAbout)

public:
    // An empty licence or home page is not shown.
    FrmAbout(Desktop& desktop, QUrl homePage, QString licence = {}, QWidget* parent = nullptr);
    // The box of this build (its home page and licence), modal to window,
    // without a nested event loop.
    // notes: a line of what the program found on this machine, or empty.
    static FrmAbout* openFor(Desktop& desktop, QWidget* window, const QString& notes = {});

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();

    Desktop& m_desktop;
    QUrl m_homePage;
    QString m_licence;
    QLabel* lblTitle = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblDescription = nullptr;
    QLabel* lblQt = nullptr;
    QLabel* lblLicence = nullptr;
    QLabel* lblHomePage = nullptr;
    QLabel* lblNotes = nullptr;
    QPushButton* cmdOK = nullptr;
};
