// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/joinpanel.h"

#include "mainwindow/joinflow.h"
#include "presentation/colourcodes.h"
#include "presentation/multicolorlabel.h"
#include "widgets/historycombobox.h"
#include "widgets/namedcontrol.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

JoinPanel::JoinPanel(SettingsStore& settings, Desktop& desktop, const QString& favouritesPath,
                     const QString& historyPath, QWidget* window)
    : QFrame(window)
{
    setObjectName(QStringLiteral("fraJoin"));
    setFrameShape(QFrame::StyledPanel);
    lblPlayerName = makeControl<QLabel>(this, "lblPlayerName");
    cmbPlayerName = makeControl<HistoryComboBox>(this, "cmbPlayerName");
    lblPlayerName->setBuddy(cmbPlayerName);
    lblPassword = makeControl<QLabel>(this, "lblPassword");
    cmbPassword = makeControl<HistoryComboBox>(this, "cmbPassword");
    lblPassword->setBuddy(cmbPassword);
    lblPName = makeControl<QLabel>(this, "lblPName");
    mclPName = makeControl<MulticolorLabel>(this, "mclPName");
    cmdJoin = makeControl<QPushButton>(this, "cmdJoin");
    cmdJoinIP = makeControl<QPushButton>(this, "cmdJoinIP");
    cmdJoin->setAutoDefault(false);
    cmdJoinIP->setAutoDefault(false);
    m_flow = new JoinFlow(settings, desktop, favouritesPath, historyPath, *cmbPlayerName, *cmbPassword, window);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(lblPlayerName, 0, 0);
    layout->addWidget(cmbPlayerName, 0, 1);
    layout->addWidget(lblPassword, 0, 2);
    layout->addWidget(cmbPassword, 0, 3);
    layout->addWidget(cmdJoin, 0, 4);
    layout->addWidget(cmdJoinIP, 0, 5);
    auto* playerNameRow = new QHBoxLayout;
    playerNameRow->addWidget(lblPName);
    playerNameRow->addWidget(mclPName, 1);
    layout->addLayout(playerNameRow, 1, 0, 1, 6);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);

    for (HistoryComboBox* box : {cmbPlayerName, cmbPassword})
        connect(box, &HistoryComboBox::enterPressed, this, [box] { box->remember(box->currentText()); });
    connect(cmdJoin, &QPushButton::clicked, this, [this] {
        cmbPlayerName->remember(cmbPlayerName->currentText());
        cmbPassword->remember(cmbPassword->currentText());
        emit joinRequested();
    });
    connect(cmdJoinIP, &QPushButton::clicked, m_flow, &JoinFlow::joinByAddress);
}

void JoinPanel::ShowPlayerName(const QString& name)
{
    mclPName->setColouredText(ColourCodes::ShowPlayerName(name));
    lblPName->setText(mclPName->caption().isEmpty() ? QString() : tr("Player Name:"));
}

void JoinPanel::retranslate()
{
    cmdJoin->setText(tr("Join"));
    cmdJoinIP->setText(tr("Join IP"));
    lblPlayerName->setText(tr("Name:"));
    lblPassword->setText(tr("Password:"));
}
