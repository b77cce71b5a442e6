// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace Folders {

// The folder the executable lives in.
QString programFolder();

// Where favourites.dat, filters.dat, Themes.ini and servers.dat live: the
// program's folder when it is a portable copy we may write to, else the
// per-user data folder, created on demand.
QString dataFolder();

// The rule behind dataFolder(), with both candidates given, so it can be
// tested without touching the real folders.
QString chooseDataFolder(const QString& programFolder, const QString& userFolder);

// Installed system-wide (by the package or cmake --install): the install
// put the program's metadata beside its bin folder. Such a program never
// writes beside itself, even when it could (as root).
bool isInstalled(const QString& programFolder);

// True when a file can really be created in the folder. Permission bits
// alone do not tell (root, read-only mounts, ACLs), so we try.
bool canCreateFilesIn(const QString& folder);

} // namespace Folders
