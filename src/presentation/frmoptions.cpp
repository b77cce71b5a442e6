// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/frmoptions.h"

#include "platform/desktop.h"
#include "presentation/colourswatch.h"
#include "presentation/friendstab.h"
#include "presentation/language.h"
#include "presentation/serverstab.h"
#include "presentation/startportrule.h"
#include "presentation/themeservice.h"
#include "userdata/knownservers.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"
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

namespace {

// The swatches in the order of the theme's fields and their names.
constexpr ThemeFile::Colour ThemeFile::Theme::*SwatchFields[7] = {
    &ThemeFile::Theme::formBack,   &ThemeFile::Theme::listBack, &ThemeFile::Theme::listText,
    &ThemeFile::Theme::textBack,   &ThemeFile::Theme::textText, &ThemeFile::Theme::progressBack,
    &ThemeFile::Theme::progressBar};
const char* const SwatchNames[7] = {"frmBackColour", "lstBackColour", "lstForeColour", "txtBackColour",
                                    "txtForeColour", "prbBackColour", "prbForeColour"};

} // namespace

FrmOptions::FrmOptions(SettingsStore& settings, Desktop& desktop, Language& language, ThemeService& themes,
                       const QString& dataFolder, QWidget* parent)
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
    auto* themePage = new QWidget(tabOptions);
    tabOptions->addTab(settingsPage, QString());
    tabOptions->addTab(themePage, QString());
    m_serversTab = new ServersTab(settings, desktop, KnownServers::filePath(dataFolder), tabOptions);
    m_serversTab->setObjectName(QStringLiteral("tabServers"));
    tabOptions->addTab(m_serversTab, QString());
    m_friendsTab = new FriendsTab(settings, desktop, tabOptions);
    m_friendsTab->setObjectName(QStringLiteral("tabFriends"));
    tabOptions->addTab(m_friendsTab, QString());
    buildSettingsTab(settingsPage);
    buildThemeTab(themePage);

    lblMessage = makeControl<QLabel>(this, "lblMessage");
    lblMessage->setWordWrap(true);
    lblMessage->hide();
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

    retranslateUi();
    load();
}

void FrmOptions::buildSettingsTab(QWidget* page)
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
    lblPath = makeControl<QLabel>(page, "lblPath");
    txtPath = makeControl<QLineEdit>(page, "txtPath");
    cmdBrowse = makeControl<QPushButton>(page, "cmdBrowse");

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
    grid->addWidget(lblPath, 9, 0, 1, 4);
    grid->addWidget(txtPath, 10, 0, 1, 3);
    grid->addWidget(cmdBrowse, 10, 3);
    grid->setRowStretch(11, 1);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    connect(cmbLanguage, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (m_loaded)
            m_language.apply(index);
    });
    connect(txtStartPort, &QLineEdit::textChanged, this, &FrmOptions::runStartPortRule);
    connect(cmbSpeed, &QComboBox::currentIndexChanged, this, &FrmOptions::runStartPortRule);
    connect(chkProxy, &QCheckBox::toggled, txtProxy, &QLineEdit::setEnabled);
    connect(cmdBrowse, &QPushButton::clicked, this, &FrmOptions::browse);
}

void FrmOptions::buildThemeTab(QWidget* page)
{
    auto* grid = new QGridLayout(page);
    for (int i = 0; i < 7; ++i) {
        Swatch& entry = m_swatches[i];
        entry.label = new QLabel(page);
        entry.swatch = new ColourSwatch(m_themeService, page);
        entry.swatch->setObjectName(QLatin1String(SwatchNames[i]));
        entry.label->setBuddy(entry.swatch);
        grid->addWidget(entry.label, i, 0);
        grid->addWidget(entry.swatch, i, 1);
        connect(entry.swatch, &QPushButton::clicked, this, [this, i] { pickColour(m_swatches[i].swatch); });
    }
    lblScroll = makeControl<QLabel>(page, "lblScroll");
    cmbScroll = makeControl<QComboBox>(page, "cmbScroll");
    cmbScroll->addItems(QStringList(3, QString()));
    lblTab = makeControl<QLabel>(page, "lblTab");
    cmbTab = makeControl<QComboBox>(page, "cmbTab");
    cmbTab->addItems(QStringList(2, QString()));
    lblSaved = makeControl<QLabel>(page, "lblSaved");
    cmbThemes = makeControl<QComboBox>(page, "cmbThemes");
    cmdSave = makeControl<QPushButton>(page, "cmdSave");
    cmdRemove = makeControl<QPushButton>(page, "cmdRemove");
    grid->addWidget(lblScroll, 7, 0);
    grid->addWidget(cmbScroll, 7, 1);
    grid->addWidget(lblTab, 8, 0);
    grid->addWidget(cmbTab, 8, 1);
    grid->addWidget(lblSaved, 9, 0);
    grid->addWidget(cmbThemes, 9, 1);
    auto* themeButtons = new QHBoxLayout;
    themeButtons->addWidget(cmdSave);
    themeButtons->addWidget(cmdRemove);
    themeButtons->addStretch();
    grid->addLayout(themeButtons, 10, 1);
    grid->setRowStretch(11, 1);
    grid->setColumnStretch(1, 1);

    connect(cmbScroll, &QComboBox::currentIndexChanged, this, &FrmOptions::applyLive);
    connect(cmbTab, &QComboBox::currentIndexChanged, this, &FrmOptions::applyLive);
    connect(cmbThemes, &QComboBox::activated, this, &FrmOptions::chooseTheme);
    connect(cmdSave, &QPushButton::clicked, this, &FrmOptions::saveThemeAsked);
    connect(cmdRemove, &QPushButton::clicked, this, &FrmOptions::removeTheme);
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
    chkRefresh->setText(tr("Refresh Server On Selection"));
    lblPort->setText(tr("Port Range:"));
    lblPortDesc->setText(tr("Note: Port Range is dependant on the query speed."));
    chkProxy->setText(tr("Use Proxy Server for updates"));
    lblPath->setText(tr("Quake 4 Executable:"));
    cmdBrowse->setText(tr("Browse"));

    const QStringList swatchLabels{tr("Form Back Colour"),       tr("List Back Colour"),
                                   tr("List Text Colour"),       tr("Text Box Back Colour"),
                                   tr("Text Box Text Colour"),   tr("Progress Bar Back Colour"),
                                   tr("Progress Bar Bar Colour")};
    for (int i = 0; i < 7; ++i)
        m_swatches[i].label->setText(swatchLabels.at(i));
    lblScroll->setText(tr("Progress Bar Type:"));
    const QStringList types{tr("Standard"), tr("Segmented"), tr("Smooth")};
    for (int i = 0; i < types.size(); ++i)
        cmbScroll->setItemText(i, types.at(i));
    lblTab->setText(tr("Tab Style:"));
    cmbTab->setItemText(0, tr("Small Tabs"));
    cmbTab->setItemText(1, tr("Large Tabs"));
    lblSaved->setText(tr("Saved Themes:"));
    cmdSave->setText(tr("Save"));
    cmdRemove->setText(tr("Remove"));

    cmdOK->setText(tr("OK"));
    cmdCancel->setText(tr("Cancel"));
    cmdApply->setText(tr("Apply"));
    cmdDefaults->setText(tr("Defaults"));
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
    // The text as stored: the rule below trims it as if it had been typed.
    txtStartPort->setText(m_settings.get(Keys::StartPort.key, QString::number(Keys::StartPort.defaultValue)));
    chkProxy->setChecked(m_settings.value(Keys::Proxy));
    txtProxy->setText(m_settings.value(Keys::ProxyAddress));
    txtProxy->setEnabled(chkProxy->isChecked());
    chkRefresh->setChecked(m_settings.value(Keys::RefreshServers));
    txtPath->setText(m_settings.value(Keys::Path));

    m_serversTab->load();
    m_friendsTab->load();
    showTheme(m_themeService.applied());
    runStartPortRule();
    loadThemes();
    m_loaded = true;
}

void FrmOptions::loadThemes()
{
    m_themes = ThemeFile::readFile(m_themeService.filePath()).value_or(ThemeFile::Themes{});
    for (const ThemeFile::Theme& theme : std::as_const(m_themes.list))
        cmbThemes->addItem(theme.name);
    const int current = cmbThemes->findText(m_themes.current, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (current >= 0) {
        cmbThemes->setCurrentIndex(current);
        chooseTheme(current);
        return;
    }
    // The file gains a theme the first time the dialog opens.
    cmbThemes->setCurrentIndex(-1);
    saveTheme(ThemeFile::DefaultName);
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

ThemeFile::Theme FrmOptions::shownTheme(const QString& name) const
{
    ThemeFile::Theme theme;
    theme.name = name;
    for (int i = 0; i < 7; ++i)
        theme.*SwatchFields[i] = m_swatches[i].swatch->value();
    theme.progressType = qint16(cmbScroll->currentIndex());
    theme.tabStyle = qint16(cmbTab->currentIndex());
    return theme;
}

void FrmOptions::showTheme(const ThemeFile::Theme& theme)
{
    const bool loaded = std::exchange(m_loaded, false);
    for (int i = 0; i < 7; ++i)
        m_swatches[i].swatch->setValue(theme.*SwatchFields[i]);
    // An index the lists do not have shows their first entry.
    cmbScroll->setCurrentIndex(theme.progressType >= 0 && theme.progressType <= 2 ? theme.progressType : 0);
    cmbTab->setCurrentIndex(theme.tabStyle >= 0 && theme.tabStyle <= 1 ? theme.tabStyle : 0);
    m_loaded = loaded;
}

void FrmOptions::applyLive()
{
    if (m_loaded)
        m_themeService.apply(shownTheme(cmbThemes->currentText()));
}

void FrmOptions::pickColour(ColourSwatch* swatch)
{
    if (const auto chosen = m_desktop.pickColour(this, swatch->color()))
        swatch->setValue(ThemeService::fromColor(*chosen));
    applyLive();
}

void FrmOptions::chooseTheme(int index)
{
    if (index < 0 || index >= m_themes.list.size())
        return;
    showTheme(m_themes.list.at(index));
    // Shown on both windows even while the dialog is still opening.
    m_themeService.apply(shownTheme(m_themes.list.at(index).name));
}

void FrmOptions::saveThemeAsked()
{
    const auto name =
        m_desktop.inputText(this, tr("Save Theme"), tr("Please enter a name for this theme"), cmbThemes->currentText());
    if (name && !name->isEmpty())
        saveTheme(*name);
}

bool FrmOptions::saveTheme(const QString& name)
{
    const ThemeFile::Theme theme = shownTheme(name);
    const bool known = std::any_of(m_themes.list.cbegin(), m_themes.list.cend(),
                                   [&name](const ThemeFile::Theme& saved) { return saved.name == name; });
    ThemeFile::saveTheme(m_themes, theme);
    if (!known)
        cmbThemes->addItem(name);
    cmbThemes->setCurrentIndex(cmbThemes->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
    return writeThemes();
}

void FrmOptions::removeTheme()
{
    const int index = cmbThemes->currentIndex();
    if (index < 0 || index >= m_themes.list.size())
        return;
    m_themes.list.removeAt(index);
    cmbThemes->removeItem(index);
    if (writeThemes())
        m_themeService.applyFile();
}

bool FrmOptions::writeThemes()
{
    if (ThemeFile::writeFile(m_themeService.filePath(), m_themes)) {
        say(QString());
        return true;
    }
    say(tr("The themes could not be saved to %1; the other settings are not affected.")
            .arg(QDir::toNativeSeparators(m_themeService.filePath())));
    return false;
}

void FrmOptions::resetToDefaults()
{
    const QMessageBox::StandardButton answer = m_desktop.message(
        this, Desktop::Icon::Warning, tr("Options"),
        tr("Are you sure you want to reset all settings to their default values?"), QMessageBox::Yes | QMessageBox::No);
    if (tabOptions->currentIndex() == ThemeTab) {
        // The colours go back to the system's whatever the answer.
        showTheme(ThemeFile::systemTheme());
        applyLive();
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
    txtStartPort->setText(QString::number(Keys::StartPort.defaultValue));
    chkProxy->setChecked(false);
    txtProxy->clear();
    txtPath->clear();
}

void FrmOptions::browse()
{
    const QString path = m_desktop.openFileName(this, tr("Select your Quake 4 Executable"), QString(),
                                                tr("Quake 4 Executable (%1)").arg(Desktop::executablePattern()));
    if (!path.isEmpty())
        txtPath->setText(path);
}

bool FrmOptions::save()
{
    if (!StartPortRule::isAcceptable(txtStartPort->text())) {
        m_desktop.message(this, Desktop::Icon::Warning, tr("Options"),
                          tr("You must type a port number between 1024 and 65512! (Default: 9000)"), QMessageBox::Ok);
        return false;
    }
    {
        const SettingsStore::Batch batch(m_settings);
        m_settings.set(Keys::Language, cmbLanguage->currentIndex());
        m_settings.set(Keys::AutoUpdate, chkAutoUpdate->isChecked());
        m_settings.set(Keys::CloseAfterJoin, chkCloseAfterJoin->isChecked());
        m_settings.save(Keys::StartPort.key, txtStartPort->text());
        m_settings.set(Keys::Proxy, chkProxy->isChecked());
        m_settings.set(Keys::ProxyAddress, txtProxy->text());
        m_settings.set(Keys::RefreshServers, chkRefresh->isChecked());
        m_settings.set(Keys::Path, txtPath->text());
        m_settings.set(Keys::Speed, cmbSpeed->currentIndex());
        m_serversTab->save();
        m_friendsTab->save();
    }
    const QString name = cmbThemes->currentText().isEmpty() ? ThemeFile::DefaultName : cmbThemes->currentText();
    saveTheme(name);
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
    lblMessage->setText(text);
    lblMessage->setVisible(!text.isEmpty());
}
