#pragma once

#include <QByteArray>
#include <QString>

// A field of favourites.dat or filters.dat: one byte per character, and
// no CR, LF or SOH, which would change the file's lines and columns (a
// server may send any of them in its name). Those become blanks.
QByteArray dataFileField(const QString& text);

// Every data file is written whole through QSaveFile: a crash or a full
// disk leaves the old file, never half a new one.
bool writeWholeFile(const QString& path, const QByteArray& bytes);
