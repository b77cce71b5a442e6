// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "game/gameinstall.h"

#include <QString>
#include <QStringList>

// How the game is started to join a server. The game's own arguments are
// "+set ui_name NAME +connect ADDRESS +set password PW", each part present
// only when it has a value; the install says what runs them: the program
// itself in its folder, "steam -applaunch 2210 ...", "flatpak run
// com.valvesoftware.Steam -applaunch 2210 ...", or "wine quake4.exe ..." in
// the game's folder. The name and the password are separate arguments,
// never read by a shell.
struct JoinCommand {
    QString program;
    QStringList arguments;
    QString workingFolder;
    // Added to this program's environment ("WINEPREFIX=...").
    QStringList environment;
    // The same as one line, name and password in double quotes (passed as
    // they are, quotes inside included): for the user to read and copy,
    // never run.
    QString commandLine;

    static JoinCommand make(const GameInstall& install, const QString& playerName, const QString& address,
                            const QString& password);
    // A program the user picked.
    static JoinCommand make(const QString& executable, const QString& playerName, const QString& address,
                            const QString& password);
};
