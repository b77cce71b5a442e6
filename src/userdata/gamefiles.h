// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

// What the game has installed: the maps inside its .pk4 archives (zip
// files, read with libzip) and loose in its folders. Only the archives'
// directories are read, never their contents, so a 2 GB install costs
// its file names; a hostile archive (cut, looping, a million entries,
// names climbing out with "..") costs at most MaxEntries names.
namespace GameFiles {

inline constexpr qsizetype MaxEntries = 100000; // read per archive
// What an index keeps: the names a map check asks for (below maps/, ending
// .map, .proc or .cm), each of at most MaxNameBytes, MaxKept in all; and an
// archive whose directory claims more than MaxDirectoryBytes is not opened
// (libzip would hold all of it).
inline constexpr qsizetype MaxNameBytes = 160;
inline constexpr qsizetype MaxKept = 20000;
inline constexpr qint64 MaxDirectoryBytes = 32 * 1024 * 1024;
inline const QString BaseFolder = QStringLiteral("q4base");

// The names a map may stand under in an archive, in lower case:
// "mp/q4dm1" -> "maps/mp/q4dm1.map", ".proc", ".cm". Empty for a map name
// that is no relative path.
QStringList mapEntries(const QString& map);
// The folders the game reads for a server's mod (its fs_game rule):
// q4base, then the mod's; none for a name that is no plain folder name.
QStringList modFolders(const QString& fsGame);
// The mod's own folder, or empty for the base game.
QString modFolder(const QString& fsGame);

// The map names of one archive (as above), in lower case; false when it is
// no readable zip file.
bool archiveEntries(const QString& path, QSet<QString>& into);
bool archiveEntries(const QByteArray& bytes, QSet<QString>& into);

// Every name under one game folder ("q4base", "q4max"): the entries of its
// .pk4 archives and its loose files below maps/, in lower case.
struct Index {
    QSet<QString> entries;
    QStringList unreadable; // archives that are no zip files
    bool exists = false;    // the folder is there at all
};
Index indexFolder(const QString& folder);

} // namespace GameFiles
