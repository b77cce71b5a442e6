// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

// A field of favourites.dat or filters.dat: one byte per character, and
// no CR, LF or SOH, which would change the file's lines and columns (a
// server may send any of them in its name). Those become blanks.
QByteArray dataFileField(const QString& text);

// The lines of a data file this program writes (servers.dat,
// history.dat): ended by LF or CR LF, the empty ones and "#" comments left
// out. Views into bytes.
QList<QByteArrayView> dataFileLines(const QByteArray& bytes);

// A line cut at its first most - 1 tabs: the last field keeps its tabs.
QList<QByteArrayView> dataFileFields(QByteArrayView line, int most);

// The records of a file of servers (servers.dat, history.dat): each line a
// "host:port" and the fields after it. Lines with fewer than minFields
// fields or an address a list would refuse are skipped, each server is
// kept once (its first line), and at most maxRecords are read. read()
// makes the record from the server and the fields, or refuses the line.
template <typename Record, typename Read>
QList<Record> parseServerLines(const QByteArray& bytes, qsizetype maxRecords, int minFields, int maxFields, Read read)
{
    QList<Record> records;
    QSet<QString> seen;
    for (const QByteArrayView line : dataFileLines(bytes)) {
        if (records.size() >= maxRecords)
            break;
        const QList<QByteArrayView> fields = dataFileFields(line, maxFields);
        if (fields.size() < minFields)
            continue;
        const std::optional<AddressEntry> server = parseEndpoint(QString::fromLatin1(fields.first()));
        std::optional<Record> record = server ? read(*server, fields) : std::nullopt;
        if (!record || seen.contains(server->endpointText()))
            continue;
        seen.insert(server->endpointText());
        records.append(*record);
    }
    return records;
}

// The first maxBytes of a data file; empty when it is missing or cannot
// be read (the readers treat both as no entries).
QByteArray readDataFile(const QString& path, qint64 maxBytes);

// Every data file is written whole through QSaveFile: a crash or a full
// disk leaves the old file, never half a new one.
bool writeWholeFile(const QString& path, const QByteArray& bytes);
