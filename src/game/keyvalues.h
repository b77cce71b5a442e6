// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

// Steam's text files (libraryfolders.vdf, appmanifest_*.acf): quoted or
// bare keys, each followed by a value or by a block of more pairs in
// braces; "//" comments, \" \\ \n \t escapes and [$PLATFORM] conditions.
// Another program writes them and anyone may have edited them, so a file
// is refused whole when it is too large or nested too deep.
namespace KeyValues {

inline constexpr qsizetype MaxBytes = 1024 * 1024;
inline constexpr int MaxDepth = 6;
inline constexpr qsizetype MaxPairs = 100000;

struct Pair {
    QString key;
    QString value;     // empty for a block
    QList<Pair> pairs; // a block's pairs, in file order
    bool block = false;

    // The first pair of that key, in any case (Steam writes "LibraryFolders"
    // and "libraryfolders"); none when there is none.
    const Pair* find(QStringView name) const;
    // That pair's value; empty when it is missing or a block.
    QString text(QStringView name) const;
};

// The pairs at the top of the text; nothing when it is no such file.
std::optional<QList<Pair>> parse(const QByteArray& text);
// A regular file of at most MaxBytes, parsed; nothing otherwise (a FIFO or
// a device is never opened).
std::optional<QList<Pair>> readFile(const QString& path);

} // namespace KeyValues
