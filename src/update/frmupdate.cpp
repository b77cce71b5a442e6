// SPDX-License-Identifier: GPL-2.0-or-later
#include "update/frmupdate.h"

#include "update/updateversion.h"
#include "userdata/settingsstore.h"
#include "widgets/namedcontrol.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>

FrmUpdate::FrmUpdate(SettingsStore& settings, const QStringList& latest, QWidget* parent)
    : QDialog(parent)
    , m_settings(settings)
{
    setObjectName(QStringLiteral("frmUpdate"));
    lblMessage = makeControl<QLabel>(this, "lblMessage");
    lblMessage->setWordWrap(true);
    lblCVersion = makeControl<QLabel>(this, "lblCVersion");
    lblCVersion2 = makeControl<QLabel>(this, "lblCVersion2");
    lblCVersion2->setText(UpdateVersion::text(UpdateVersion::running()));
    lblLVersion = makeControl<QLabel>(this, "lblLVersion");
    lblLVersion2 = makeControl<QLabel>(this, "lblLVersion2");
    lblLVersion2->setText(UpdateVersion::text(latest));
    chkAskAgain = makeControl<QCheckBox>(this, "chkAskAgain");
    chkAskAgain->setChecked(m_settings.value(Keys::AutoUpdate));
    cmdYes = makeControl<QPushButton>(this, "cmdYes");
    cmdNo = makeControl<QPushButton>(this, "cmdNo");
    cmdYes->setDefault(true);

    auto* grid = new QGridLayout(this);
    grid->addWidget(lblMessage, 0, 0, 1, 4);
    grid->addWidget(lblCVersion, 1, 0);
    grid->addWidget(lblCVersion2, 1, 1, 1, 3);
    grid->addWidget(lblLVersion, 2, 0);
    grid->addWidget(lblLVersion2, 2, 1, 1, 3);
    grid->addWidget(chkAskAgain, 3, 0, 1, 4);
    grid->addWidget(cmdYes, 4, 2);
    grid->addWidget(cmdNo, 4, 3);
    grid->setColumnStretch(1, 1);

    connect(cmdYes, &QPushButton::clicked, this, [this] { answer(true); });
    connect(cmdNo, &QPushButton::clicked, this, [this] { answer(false); });
    retranslateUi();
}

void FrmUpdate::answer(bool download)
{
    m_settings.set(Keys::AutoUpdate, chkAskAgain->isChecked());
    download ? accept() : reject();
}

void FrmUpdate::retranslateUi()
{
    setWindowTitle(tr("Quake 4 Vantage Update Available"));
    lblMessage->setText(tr("An update is now available for Quake 4 Vantage, would you like to download it now?"));
    lblCVersion->setText(tr("Current Version:"));
    lblLVersion->setText(tr("Latest Version:"));
    chkAskAgain->setText(tr("Automatically check for updates in the future"));
    cmdYes->setText(tr("Yes"));
    cmdNo->setText(tr("No"));
}

void FrmUpdate::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}
