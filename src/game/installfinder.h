// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "game/gameinstall.h"
#include "game/keyvalues.h"
#include "platform/gameplaces.h"

#include <QList>

// Finds the game's installs on this machine without the network, reading
// only Steam's small text files and folder listings:
// - Steam: each root (~/.steam/steam, ~/.local/share/Steam,
//   ~/.steam/debian-installation, Flatpak Steam's), every library its
//   steamapps/libraryfolders.vdf names, the game where
//   appmanifest_2210.acf names its installdir;
// - the Linux release in /usr/local/games/quake4, /opt/quake4,
//   /usr/lib/quake4, ~/.local/share/quake4 and as quake4 on PATH;
// - the Windows build under drive_c of ~/.wine and of WINEPREFIX.
// An install is listed only with what starts it (steam, flatpak, wine), and
// each folder once however it is reached.
namespace InstallFinder {

// Libraries read per Steam root: the file is the user's, its size is not.
inline constexpr int MaxLibraries = 64;

QList<GameInstall> find(const GamePlaces& places);

// The install the settings name (Game, and Path for a picked program)
// among those found; nothing when they name none (none chosen yet, or that
// install is gone). Without a choice, a Path set before is the program. A
// Windows build the user had Wine run is taken wherever it lies.
std::optional<GameInstall> chosen(const QString& setting, const QString& path, const QList<GameInstall>& found,
                                  const GamePlaces& places);
// What runs a Windows build here: wine on PATH, or empty.
QString wineProgram(const GamePlaces& places);

// The library folders a libraryfolders.vdf names, in both of its formats:
// numbered blocks with a "path" (today's) and numbered paths (older).
QStringList steamLibraries(const QList<KeyValues::Pair>& libraryFolders);
// The game's folder name under steamapps/common that an app manifest
// names; empty when it names none or something that is no plain name.
QString installDir(const QList<KeyValues::Pair>& manifest);

} // namespace InstallFinder
