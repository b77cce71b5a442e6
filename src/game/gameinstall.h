// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// One way the game is installed on this machine, and so how it is started:
// a program the user picked (started as it is), the Linux release (its
// launcher), the Windows build through Steam (natively or as a Flatpak) or
// through Wine.
struct GameInstall {
    Q_DECLARE_TR_FUNCTIONS(GameInstall)

public:
    enum class Kind { Program, Steam, FlatpakSteam, LinuxRelease, Wine };

    // The game's number in Steam's store.
    static constexpr int SteamAppId = 2210;

    Kind kind = Kind::Program;
    // The game's own folder (q4base lies in it).
    QString folder;
    // What is started: the game's program, its launcher, or the program
    // that runs it (steam, flatpak, wine), by full path.
    QString program;
    // Wine's prefix (the drive_c the game lies on belongs to it; empty:
    // Wine's default) and the game's .exe in folder.
    QString prefix;
    QString windowsProgram;
    // Where the game keeps what the player downloads (~/.quake4 for the
    // Linux release); empty where that is the game's own folder.
    QString userFolder;

    // The program a user picked, started as it is in its own folder.
    static GameInstall picked(const QString& path, const QString& home);
    // The Windows build at this path, run by Wine (the program named).
    static GameInstall throughWine(const QString& exe, const QString& wine);

    // The folders the game reads maps from: its own, then the user's.
    QStringList gameFolders() const;
    // "Steam: /home/me/.local/share/Steam/steamapps/common/Quake 4", in
    // the user's language.
    QString label() const;
    // The game's Windows build, which this system cannot start by itself.
    bool isWindowsBuild() const;

    // How the choice is kept in the settings: "steam:FOLDER" and the like
    // ("wine:" names the .exe); a picked program is "program", its path
    // kept where it always was.
    QString settingText() const;
    static inline const QString PickedSetting = QStringLiteral("program");

    bool operator==(const GameInstall&) const = default;
};
