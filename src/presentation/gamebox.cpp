// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/gamebox.h"

#include "game/gameinstalls.h"
#include "game/installfinder.h"
#include "game/joincommand.h"
#include "presentation/gamechooser.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"
#include "widgets/namedcontrol.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

// The item that stands for "none chosen yet": the first join decides.
const QString NotChosen;
// What the command is shown for: an address no server has (RFC 5737).
const QString SampleServer = QStringLiteral("192.0.2.1:28004");

} // namespace

GameBox::GameBox(SettingsStore& settings, Desktop& desktop, GameInstalls& installs, QWidget* page, QGridLayout* grid,
                 int row)
    : QObject(page)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_installs(installs)
{
    lblGame = makeControl<QLabel>(page, "lblGame");
    cmbGame = makeControl<QComboBox>(page, "cmbGame");
    cmbGame->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbGame->setMinimumContentsLength(12);
    cmdLookAgain = makeControl<QPushButton>(page, "cmdLookAgain");
    lblPath = makeControl<QLabel>(page, "lblPath");
    txtPath = makeControl<QLineEdit>(page, "txtPath");
    cmdBrowse = makeControl<QPushButton>(page, "cmdBrowse");
    lblGameCommand = makeControl<QLabel>(page, "lblGameCommand");
    txtGameCommand = makeControl<QLineEdit>(page, "txtGameCommand");
    // Read and copied, never typed into.
    txtGameCommand->setReadOnly(true);
    lblGame->setBuddy(cmbGame);
    lblPath->setBuddy(txtPath);
    lblGameCommand->setBuddy(txtGameCommand);

    // Each caption above its box, as the executable's always was: the
    // boxes hold long folders and get the whole width.
    grid->addWidget(lblGame, row, 0, 1, 4);
    grid->addWidget(cmbGame, row + 1, 0, 1, 3);
    grid->addWidget(cmdLookAgain, row + 1, 3);
    grid->addWidget(lblPath, row + 2, 0, 1, 4);
    grid->addWidget(txtPath, row + 3, 0, 1, 3);
    grid->addWidget(cmdBrowse, row + 3, 3);
    grid->addWidget(lblGameCommand, row + 4, 0, 1, 4);
    grid->addWidget(txtGameCommand, row + 5, 0, 1, 4);

    connect(cmbGame, &QComboBox::currentIndexChanged, this, &GameBox::showCommand);
    connect(txtPath, &QLineEdit::textChanged, this, &GameBox::showCommand);
    connect(cmdBrowse, &QPushButton::clicked, this, &GameBox::browse);
    connect(cmdLookAgain, &QPushButton::clicked, this, [this] {
        cmdLookAgain->setEnabled(false);
        m_installs.lookAgain();
    });
    connect(&m_installs, &GameInstalls::looked, this, [this] {
        cmdLookAgain->setEnabled(true);
        fill(choice());
    });
}

void GameBox::retranslateUi()
{
    lblGame->setText(tr("Game:"));
    cmdLookAgain->setText(tr("Look Again"));
    cmdLookAgain->setToolTip(tr("Looks for the game's installs on this machine again: Steam's libraries, the Linux "
                                "release and Wine."));
    lblPath->setText(tr("Quake 4 Executable:"));
    cmdBrowse->setText(tr("Browse"));
    lblGameCommand->setText(tr("A join runs:"));
    fill(choice());
}

void GameBox::load()
{
    txtPath->setText(m_settings.value(Keys::Path));
    QString setting = m_settings.value(Keys::Game);
    // A path set before the installs were looked for is the program.
    if (setting.isEmpty() && !txtPath->text().trimmed().isEmpty())
        setting = GameInstall::PickedSetting;
    m_installs.look();
    fill(setting);
}

void GameBox::fill(const QString& chosen)
{
    const QSignalBlocker quiet(cmbGame);
    cmbGame->clear();
    if (!m_installs.known()) {
        cmbGame->addItem(tr("Looking for the game on this machine..."), chosen);
        cmbGame->setEnabled(false);
        showCommand();
        return;
    }
    cmbGame->setEnabled(true);
    cmbGame->addItem(m_installs.found().isEmpty() ? tr("None found") : tr("Ask at the first join"), NotChosen);
    for (const GameInstall& install : m_installs.found() + m_picked)
        if (cmbGame->findData(install.settingText()) < 0) {
            cmbGame->addItem(install.label(), install.settingText());
            cmbGame->setItemData(cmbGame->count() - 1, install.label(), Qt::ToolTipRole);
        }
    cmbGame->addItem(tr("Other program..."), GameInstall::PickedSetting);
    choose(chosen);
    showCommand();
}

QString GameBox::choice() const
{
    return cmbGame->currentData().toString();
}

void GameBox::choose(const QString& setting)
{
    int index = cmbGame->findData(setting);
    // A Windows build run by Wine from the settings, found by no search.
    if (index < 0 && setting.startsWith(QLatin1String("wine:"))) {
        if (const auto install = InstallFinder::chosen(setting, {}, {}, m_installs.places())) {
            m_picked << *install;
            cmbGame->insertItem(cmbGame->count() - 1, install->label(), install->settingText());
            index = cmbGame->findData(setting);
        }
    }
    cmbGame->setCurrentIndex(index < 0 ? 0 : index);
}

void GameBox::browse()
{
    const auto shown = shownInstall();
    GameChooser chooser(m_settings, m_desktop, m_installs);
    const auto picked = chooser.pick(cmbGame->window(), shown ? shown->folder : QString());
    if (!picked)
        return;
    txtPath->setText(picked->path);
    if (picked->install.kind != GameInstall::Kind::Program && cmbGame->findData(picked->install.settingText()) < 0) {
        m_picked << picked->install;
        cmbGame->insertItem(cmbGame->count() - 1, picked->install.label(), picked->install.settingText());
    }
    choose(picked->install.settingText());
}

std::optional<GameInstall> GameBox::shownInstall() const
{
    const QString setting = choice();
    if (setting == NotChosen) {
        // What the first join will do: the one install found, if one.
        if (m_installs.known() && m_installs.found().size() == 1)
            return m_installs.found().first();
        if (!m_installs.known() || !m_installs.found().isEmpty())
            return std::nullopt;
    }
    return InstallFinder::chosen(setting == NotChosen ? GameInstall::PickedSetting : setting, txtPath->text(),
                                 m_installs.found() + m_picked, m_installs.places());
}

void GameBox::showCommand()
{
    const QString setting = choice();
    const bool program = setting == GameInstall::PickedSetting ||
                         (setting == NotChosen && m_installs.known() && m_installs.found().isEmpty());
    // Path is the program's: it says nothing for an install found. Browse
    // stays: a program picked there becomes the choice.
    txtPath->setEnabled(program);
    const auto install = shownInstall();
    if (!install) {
        txtGameCommand->clear();
        txtGameCommand->setPlaceholderText(setting == NotChosen && m_installs.found().size() > 1
                                               ? tr("Chosen at the first join")
                                               : tr("No program chosen"));
        return;
    }
    const JoinCommand command =
        JoinCommand::make(*install, m_settings.value(Keys::PlayerName), SampleServer, QString());
    txtGameCommand->setText(command.commandLine);
    txtGameCommand->setCursorPosition(0);
    txtGameCommand->setToolTip(tr("Started in %1").arg(command.workingFolder));
}

void GameBox::save()
{
    m_settings.set(Keys::Path, txtPath->text());
    // "Looking..." keeps what was chosen: the choice is not the user's to lose.
    m_settings.set(Keys::Game, choice());
}

void GameBox::resetToDefaults()
{
    txtPath->clear();
    choose(NotChosen);
}
