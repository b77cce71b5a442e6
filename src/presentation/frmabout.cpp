// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/frmabout.h"

#include "platform/desktop.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QtGlobal>
#include <QVBoxLayout>

FrmAbout::FrmAbout(Desktop& desktop, QUrl homePage, QString licence, QWidget* parent)
    : QDialog(parent)
    , m_desktop(desktop)
    , m_homePage(std::move(homePage))
    , m_licence(std::move(licence))
{
    setObjectName(QStringLiteral("frmAbout"));
    lblTitle = new QLabel(this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont title = lblTitle->font();
    title.setBold(true);
    title.setPointSizeF(title.pointSizeF() * 1.5);
    lblTitle->setFont(title);
    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblDescription = new QLabel(this);
    lblDescription->setObjectName(QStringLiteral("lblDescription"));
    lblDescription->setWordWrap(true);
    lblQt = new QLabel(this);
    lblQt->setObjectName(QStringLiteral("lblQt"));
    lblLicence = new QLabel(this);
    lblLicence->setObjectName(QStringLiteral("lblLicence"));
    lblLicence->setVisible(!m_licence.isEmpty());
    lblHomePage = new QLabel(this);
    lblHomePage->setObjectName(QStringLiteral("lblHomePage"));
    lblHomePage->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    lblHomePage->setVisible(m_homePage.isValid() && !m_homePage.isEmpty());
    // The browser is started through the desktop, like every other program.
    connect(lblHomePage, &QLabel::linkActivated, this, [this](const QString& link) { m_desktop.openUrl(QUrl(link)); });
    lblNotes = new QLabel(this);
    lblNotes->setObjectName(QStringLiteral("lblNotes"));
    lblNotes->setWordWrap(true);
    lblNotes->hide();
    cmdOK = new QPushButton(this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    for (QLabel* label : {lblTitle, lblVersion, lblDescription, lblQt, lblLicence, lblHomePage, lblNotes})
        layout->addWidget(label);
    layout->addLayout(buttons);
    retranslateUi();
}

void FrmAbout::retranslateUi()
{
    setWindowTitle(tr("About Quake 4 Vantage"));
    lblTitle->setText(tr("Quake 4 Vantage"));
    lblVersion->setText(tr("Version %1").arg(QStringLiteral(Q4V_VERSION)));
    lblDescription->setText(tr("A server browser for Quake 4: finds servers and players, and joins a game with a "
                               "double click."));
    lblQt->setText(
        tr("Built with Qt %1, running on Qt %2.").arg(QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion())));
    lblLicence->setText(tr("Licence: %1").arg(m_licence));
    const QString address = m_homePage.toString();
    lblHomePage->setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(address.toHtmlEscaped(), tr("Home page")));
    cmdOK->setText(tr("OK"));
}

FrmAbout* FrmAbout::openFor(Desktop& desktop, QWidget* window, const QString& notes)
{
    auto* about = new FrmAbout(desktop, QUrl(QStringLiteral(Q4V_HOME_PAGE)), QStringLiteral(Q4V_LICENCE), window);
    about->lblNotes->setText(notes);
    about->lblNotes->setVisible(!notes.isEmpty());
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->setWindowModality(Qt::WindowModal);
    about->open();
    return about;
}

void FrmAbout::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}
