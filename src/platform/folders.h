#pragma once

#include <QString>

namespace Folders {

// The folder the executable lives in.
QString programFolder();

// Where favourites.dat, filters.dat and Themes.ini live: the program's
// folder when we may write there (a portable install), else the per-user
// data folder, created on demand.
QString dataFolder();

// The rule behind dataFolder(), with both candidates given, so it can be
// tested without touching the real folders.
QString chooseDataFolder(const QString& programFolder, const QString& userFolder);

// True when a file can really be created in the folder. Permission bits
// alone do not tell (root, read-only mounts, ACLs), so we try.
bool canCreateFilesIn(const QString& folder);

} // namespace Folders
