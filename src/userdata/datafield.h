// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

// A field of favourites.dat or filters.dat: one byte per character, and
// no CR, LF or SOH, which would change the file's lines and columns (a
// server may send any of them in its name). Those become blanks.
QByteArray dataFileField(const QString& text);

// The lines of a data file this program writes (servers.dat,
// history.dat): ended by LF or CR LF, the empty ones and "#" comments left
// out. Views into bytes.
QList<QByteArrayView> dataFileLines(const QByteArray& bytes);

// The first maxBytes of a data file; empty when it is missing or cannot
// be read (the readers treat both as no entries).
QByteArray readDataFile(const QString& path, qint64 maxBytes);

// Every data file is written whole through QSaveFile: a crash or a full
// disk leaves the old file, never half a new one.
bool writeWholeFile(const QString& path, const QByteArray& bytes);
