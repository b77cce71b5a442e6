// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/frmoptions.h"

#include "platform/desktop.h"
#include "presentation/friendstab.h"
#include "presentation/gamebox.h"
#include "presentation/language.h"
#include "presentation/serverstab.h"
#include "presentation/startportrule.h"
#include "presentation/themeservice.h"
#include "presentation/themetab.h"
#include "userdata/knownservers.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"
#include "widgets/messageline.h"
#include "widgets/mnemonics.h"
#include "widgets/namedcontrol.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

FrmOptions::FrmOptions(SettingsStore& settings, Desktop& desktop, Language& language, ThemeService& themes,
                       GameInstalls& installs, const QString& dataFolder, QWidget* parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_language(language)
    , m_themeService(themes)
{
    setObjectName(QStringLiteral("frmOptions"));
    setModal(true);

    tabOptions = makeControl<QTabWidget>(this, "tabOptions");
    auto* settingsPage = new QWidget(tabOptions);
    tabOptions->addTab(settingsPage, QString());
    m_themeTab = new ::ThemeTab(themes, desktop, tabOptions);
    m_themeTab->setObjectName(QStringLiteral("tabTheme"));
    tabOptions->addTab(m_themeTab, QString());
    m_serversTab = new ServersTab(settings, desktop, KnownServers::filePath(dataFolder), tabOptions);
    m_serversTab->setObjectName(QStringLiteral("tabServers"));
    tabOptions->addTab(m_serversTab, QString());
    m_friendsTab = new FriendsTab(settings, desktop, tabOptions);
    m_friendsTab->setObjectName(QStringLiteral("tabFriends"));
    tabOptions->addTab(m_friendsTab, QString());
    buildSettingsTab(settingsPage, installs);

    lblMessage = new MessageLine(this);
    cmdOK = makeControl<QPushButton>(this, "cmdOK");
    cmdCancel = makeControl<QPushButton>(this, "cmdCancel");
    cmdApply = makeControl<QPushButton>(this, "cmdApply");
    cmdDefaults = makeControl<QPushButton>(this, "cmdDefaults");
    cmdOK->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdDefaults);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdApply);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabOptions);
    layout->addWidget(lblMessage);
    layout->addLayout(buttons);

    connect(cmdOK, &QPushButton::clicked, this, [this] {
        if (save())
            accept();
    });
    connect(cmdApply, &QPushButton::clicked, this, &FrmOptions::save);
    connect(cmdCancel, &QPushButton::clicked, this, &FrmOptions::reject);
    connect(cmdDefaults, &QPushButton::clicked, this, &FrmOptions::resetToDefaults);
    connect(m_themeTab, &::ThemeTab::message, this, &FrmOptions::say);

    retranslateUi();
    load();
}

void FrmOptions::buildSettingsTab(QWidget* page, GameInstalls& installs)
{
    lblLanguage = makeControl<QLabel>(page, "lblLanguage");
    cmbLanguage = makeControl<QComboBox>(page, "cmbLanguage");
    cmbLanguage->addItems(Language::names());
    lblSpeed = makeControl<QLabel>(page, "lblSpeed");
    cmbSpeed = makeControl<QComboBox>(page, "cmbSpeed");
    cmbSpeed->addItems(QStringList(6, QString()));
    chkAutoUpdate = makeControl<QCheckBox>(page, "chkAutoUpdate");
    chkCloseAfterJoin = makeControl<QCheckBox>(page, "chkCloseAfterJoin");
    chkRefresh = makeControl<QCheckBox>(page, "chkRefresh");
    lblPort = makeControl<QLabel>(page, "lblPort");
    txtStartPort = makeControl<QLineEdit>(page, "txtStartPort");
    lblPortTo = makeControl<QLabel>(page, "lblPortTo");
    lblPortTo->setText(QStringLiteral("-"));
    txtEndPort = makeControl<QLineEdit>(page, "txtEndPort");
    txtEndPort->setReadOnly(true);
    txtEndPort->setFocusPolicy(Qt::NoFocus);
    lblPortDesc = makeControl<QLabel>(page, "lblPortDesc");
    lblPortDesc->setWordWrap(true);
    chkProxy = makeControl<QCheckBox>(page, "chkProxy");
    txtProxy = makeControl<QLineEdit>(page, "txtProxy");
    chkKeyring = makeControl<QCheckBox>(page, "chkKeyring");

    // Each caption leads to its box: a click, and its Alt+letter.
    lblLanguage->setBuddy(cmbLanguage);
    lblSpeed->setBuddy(cmbSpeed);
    lblPort->setBuddy(txtStartPort);

    auto* grid = new QGridLayout(page);
    grid->addWidget(lblLanguage, 0, 0);
    grid->addWidget(cmbLanguage, 0, 1, 1, 3);
    grid->addWidget(lblSpeed, 1, 0);
    grid->addWidget(cmbSpeed, 1, 1, 1, 3);
    grid->addWidget(lblPort, 2, 0);
    grid->addWidget(txtStartPort, 2, 1);
    grid->addWidget(lblPortTo, 2, 2);
    grid->addWidget(txtEndPort, 2, 3);
    grid->addWidget(lblPortDesc, 3, 0, 1, 4);
    grid->addWidget(chkAutoUpdate, 4, 0, 1, 4);
    grid->addWidget(chkCloseAfterJoin, 5, 0, 1, 4);
    grid->addWidget(chkRefresh, 6, 0, 1, 4);
    grid->addWidget(chkProxy, 7, 0, 1, 4);
    grid->addWidget(txtProxy, 8, 0, 1, 4);
    m_game = new GameBox(m_settings, m_desktop, installs, page, grid, 9);
    grid->addWidget(chkKeyring, 15, 0, 1, 4);
    grid->setRowStretch(16, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    connect(cmbLanguage, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (m_loaded)
            m_language.apply(index);
    });
    connect(txtStartPort, &QLineEdit::textChanged, this, &FrmOptions::runStartPortRule);
    connect(cmbSpeed, &QComboBox::currentIndexChanged, this, &FrmOptions::runStartPortRule);
    connect(chkProxy, &QCheckBox::toggled, txtProxy, &QLineEdit::setEnabled);
}

void FrmOptions::retranslateUi()
{
    setWindowTitle(tr("Options"));
    tabOptions->setTabText(SettingsTab, tr("Settings"));
    tabOptions->setTabText(ThemeTab, tr("Theme"));
    tabOptions->setTabText(SourcesTab, tr("Servers"));
    tabOptions->setTabText(FriendsTabIndex, tr("Friends"));
    m_serversTab->retranslateUi();
    m_friendsTab->retranslateUi();
    lblLanguage->setText(tr("Language:"));
    lblSpeed->setText(tr("Query Speed:"));
    const QStringList speeds{tr("Dial Up (56k)"), tr("ISDN (64k)"), tr("ISDN (128k)"),
                             tr("DSL (256k)"),    tr("DSL (512k)"), tr("Maximum")};
    for (int i = 0; i < speeds.size(); ++i)
        cmbSpeed->setItemText(i, speeds.at(i));
    chkAutoUpdate->setText(tr("Automatically Check For Updates"));
    chkCloseAfterJoin->setText(tr("Close After Joining"));
    chkKeyring->setText(tr("Keep passwords in the desktop's keyring"));
    chkKeyring->setToolTip(tr("Unticked, or on a desktop without a keyring, the passwords are kept in the settings "
                              "file as plain text."));
    chkRefresh->setText(tr("Refresh Server On Selection"));
    lblPort->setText(tr("Port Range:"));
    lblPortDesc->setText(tr("Note: Port Range is dependant on the query speed."));
    chkProxy->setText(tr("Use Proxy Server for updates"));
    m_game->retranslateUi();

    m_themeTab->retranslateUi();

    cmdOK->setText(tr("OK"));
    cmdCancel->setText(tr("Cancel"));
    cmdApply->setText(tr("Apply"));
    cmdDefaults->setText(tr("Defaults"));
    Mnemonics::assign(this);
}

void FrmOptions::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void FrmOptions::load()
{
    const int language = m_settings.value(Keys::Language);
    cmbLanguage->setCurrentIndex(language >= 0 && language < Language::Count ? language : 0);
    const int speed = m_settings.value(Keys::Speed);
    cmbSpeed->setCurrentIndex(speed >= 0 && speed <= 5 ? speed : 5);
    chkAutoUpdate->setChecked(m_settings.value(Keys::AutoUpdate));
    chkCloseAfterJoin->setChecked(m_settings.value(Keys::CloseAfterJoin));
    chkKeyring->setChecked(m_settings.value(Keys::PasswordsInKeyring));
    // The text as stored: the rule below trims it as if it had been typed.
    txtStartPort->setText(m_settings.get(Keys::StartPort.key, QString::number(Keys::StartPort.defaultValue)));
    chkProxy->setChecked(m_settings.value(Keys::Proxy));
    txtProxy->setText(m_settings.value(Keys::ProxyAddress));
    txtProxy->setEnabled(chkProxy->isChecked());
    chkRefresh->setChecked(m_settings.value(Keys::RefreshServers));
    m_game->load();

    m_serversTab->load();
    m_friendsTab->load();
    runStartPortRule();
    m_themeTab->load();
    m_loaded = true;
}

void FrmOptions::runStartPortRule()
{
    const StartPortRule::Range range = StartPortRule::apply(txtStartPort->text(), cmbSpeed->currentIndex());
    if (range.start != txtStartPort->text()) {
        const QSignalBlocker quiet(txtStartPort);
        txtStartPort->setText(range.start);
    }
    txtEndPort->setText(range.end);
}

void FrmOptions::resetToDefaults()
{
    const QMessageBox::StandardButton answer = m_desktop.message(
        this, Desktop::Icon::Warning, tr("Options"),
        tr("Are you sure you want to reset all settings to their default values?"), QMessageBox::Yes | QMessageBox::No);
    if (tabOptions->currentIndex() == ThemeTab) {
        // The colours go back to the system's whatever the answer.
        m_themeTab->resetToDefaults();
        return;
    }
    if (answer != QMessageBox::Yes)
        return;
    if (tabOptions->currentIndex() == SourcesTab) {
        m_serversTab->resetToDefaults();
        return;
    }
    if (tabOptions->currentIndex() == FriendsTabIndex) {
        m_friendsTab->resetToDefaults();
        return;
    }
    cmbLanguage->setCurrentIndex(0);
    cmbSpeed->setCurrentIndex(5);
    chkAutoUpdate->setChecked(true);
    chkCloseAfterJoin->setChecked(true);
    chkKeyring->setChecked(Keys::PasswordsInKeyring.defaultValue);
    txtStartPort->setText(QString::number(Keys::StartPort.defaultValue));
    chkProxy->setChecked(false);
    txtProxy->clear();
    m_game->resetToDefaults();
}

bool FrmOptions::save()
{
    if (!StartPortRule::isAcceptable(txtStartPort->text())) {
        m_desktop.message(this, Desktop::Icon::Warning, tr("Options"),
                          tr("You must type a port number between %1 and %2! (Default: %3)")
                              .arg(StartPortRule::LowestStart + 1)
                              .arg(StartPortRule::HighestStart)
                              .arg(Keys::StartPort.defaultValue),
                          QMessageBox::Ok);
        return false;
    }
    {
        const SettingsStore::Batch batch(m_settings);
        m_settings.set(Keys::Language, cmbLanguage->currentIndex());
        m_settings.set(Keys::AutoUpdate, chkAutoUpdate->isChecked());
        m_settings.set(Keys::CloseAfterJoin, chkCloseAfterJoin->isChecked());
        m_settings.set(Keys::PasswordsInKeyring, chkKeyring->isChecked());
        m_settings.save(Keys::StartPort.key, txtStartPort->text());
        m_settings.set(Keys::Proxy, chkProxy->isChecked());
        m_settings.set(Keys::ProxyAddress, txtProxy->text());
        m_settings.set(Keys::RefreshServers, chkRefresh->isChecked());
        m_game->save();
        m_settings.set(Keys::Speed, cmbSpeed->currentIndex());
        m_serversTab->save();
        m_friendsTab->save();
    }
    m_themeTab->save();
    return true;
}

void FrmOptions::reject()
{
    // Undo the colours shown while choosing; the file holds the saved ones.
    m_themeService.applyFile();
    QDialog::reject();
}

void FrmOptions::say(const QString& text)
{
    lblMessage->say(text);
}

void FrmOptions::showTab(Tab tab)
{
    tabOptions->setCurrentIndex(tab);
}
