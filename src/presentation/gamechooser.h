// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "game/gameinstall.h"

#include <QCoreApplication>

#include <optional>

class Desktop;
class GameInstalls;
class QWidget;
class SettingsStore;

// Which of the game's installs a join starts, and the user's part in
// choosing it: the installs found, one of several picked in a list, a
// program picked in the file dialog, and for the game's Windows build the
// offer to run it through Steam or Wine (this system cannot start an .exe).
class GameChooser final {
    Q_DECLARE_TR_FUNCTIONS(GameChooser)

public:
    GameChooser(SettingsStore& settings, Desktop& desktop, GameInstalls& installs);

    // The install the settings name; nothing when none is chosen or the one
    // chosen is gone. The installs must have been looked for.
    std::optional<GameInstall> chosen() const;
    // Whether the user chose "Other program" without picking one yet.
    bool pickedWithoutPath() const;
    struct Picked {
        GameInstall install;
        QString path; // the file picked
    };
    // The file dialog, opened in folder (the home folder when empty); a
    // Windows build is offered to Steam or Wine. Nothing when cancelled or
    // when nothing here can run what was picked (said in a box).
    std::optional<Picked> pick(QWidget* parent, const QString& folder = {});
    // A Windows build picked: through Steam (when it has the game) or Wine
    // (when it is there), as the user says; nothing otherwise.
    std::optional<GameInstall> runWindowsBuild(QWidget* parent, const QString& exe);
    // One of several installs found, picked in a list.
    std::optional<GameInstall> pickFound(QWidget* parent);
    // Keeps the choice: Game, and Path for a picked program.
    void remember(const GameInstall& install, const QString& pickedPath = {});

private:
    SettingsStore& m_settings;
    Desktop& m_desktop;
    GameInstalls& m_installs;
};
