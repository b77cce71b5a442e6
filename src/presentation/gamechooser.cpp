// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/gamechooser.h"

#include "game/gameinstalls.h"
#include "game/installfinder.h"
#include "platform/desktop.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"

#include <QDir>
#include <QFileInfo>

GameChooser::GameChooser(SettingsStore& settings, Desktop& desktop, GameInstalls& installs)
    : m_settings(settings)
    , m_desktop(desktop)
    , m_installs(installs)
{
}

std::optional<GameInstall> GameChooser::chosen() const
{
    return InstallFinder::chosen(m_settings.value(Keys::Game), m_settings.value(Keys::Path), m_installs.found(),
                                 m_installs.places());
}

bool GameChooser::pickedWithoutPath() const
{
    return m_settings.value(Keys::Game) == GameInstall::PickedSetting &&
           m_settings.value(Keys::Path).trimmed().isEmpty();
}

std::optional<GameChooser::Picked> GameChooser::pick(QWidget* parent, const QString& folder)
{
    const QString path = m_desktop.chooseExecutable(parent, folder);
    if (path.isEmpty())
        return std::nullopt;
    const GameInstall install = GameInstall::picked(path, m_installs.places().home);
    if (!install.isWindowsBuild())
        return Picked{install, path};
    if (const auto through = runWindowsBuild(parent, path))
        return Picked{*through, path};
    return std::nullopt;
}

std::optional<GameInstall> GameChooser::runWindowsBuild(QWidget* parent, const QString& exe)
{
    // Steam starts its own copy of the game: the one holding this .exe if
    // it has several, else the first.
    std::optional<GameInstall> steam;
    for (const GameInstall& install : m_installs.found()) {
        if (install.kind != GameInstall::Kind::Steam && install.kind != GameInstall::Kind::FlatpakSteam)
            continue;
        if (!steam || QFileInfo(exe).absolutePath() == install.folder)
            steam = install;
    }
    const QString wine = InstallFinder::wineProgram(m_installs.places());
    const QString name = QDir::toNativeSeparators(exe);
    const QString title = tr("The game's Windows build");
    if (!steam && wine.isEmpty()) {
        m_desktop.message(parent, Desktop::Icon::Warning, title,
                          tr("%1 is the game's Windows build, which this system cannot start by itself, and neither "
                             "Steam with the game nor Wine is installed here.\n\nInstall the game in Steam (which "
                             "runs it through Proton), or install Wine (Debian's package \"wine\"), or choose the "
                             "Linux release's \"quake4\" instead.")
                              .arg(name),
                          QMessageBox::Ok);
        return std::nullopt;
    }
    QMessageBox::StandardButtons buttons = QMessageBox::Cancel;
    Desktop::ButtonTexts texts;
    if (steam) {
        buttons |= QMessageBox::Yes;
        texts.insert(QMessageBox::Yes, tr("Through Steam"));
    }
    if (!wine.isEmpty()) {
        buttons |= QMessageBox::No;
        texts.insert(QMessageBox::No, tr("Through Wine"));
    }
    const QString text =
        steam && !wine.isEmpty()
            ? tr("%1 is the game's Windows build, which this system cannot start by itself. Start it through Steam "
                 "(%2) or through Wine?")
                  .arg(name, steam->label())
        : steam ? tr("%1 is the game's Windows build, which this system cannot start by itself. Start it through "
                     "Steam (%2)?")
                      .arg(name, steam->label())
                : tr("%1 is the game's Windows build, which this system cannot start by itself. Start it through "
                     "Wine?")
                      .arg(name);
    const auto answer = m_desktop.message(parent, Desktop::Icon::Question, title, text, buttons, texts);
    if (answer == QMessageBox::Yes && steam)
        return steam;
    if (answer == QMessageBox::No && !wine.isEmpty())
        return GameInstall::throughWine(exe, wine);
    return std::nullopt;
}

std::optional<GameInstall> GameChooser::pickFound(QWidget* parent)
{
    QStringList labels;
    for (const GameInstall& install : m_installs.found())
        labels << install.label();
    const auto index = m_desktop.chooseItem(parent, tr("Which Quake 4?"),
                                            tr("Quake 4 is installed more than once here. Which one should a join "
                                               "start? You can change it later in Options."),
                                            labels);
    if (!index || *index < 0 || *index >= m_installs.found().size())
        return std::nullopt;
    return m_installs.found().at(*index);
}

void GameChooser::remember(const GameInstall& install, const QString& pickedPath)
{
    const SettingsStore::Batch batch(m_settings);
    m_settings.set(Keys::Game, install.settingText());
    if (install.kind == GameInstall::Kind::Program)
        m_settings.set(Keys::Path, install.program);
    else if (!pickedPath.isEmpty())
        m_settings.set(Keys::Path, pickedPath);
}
