// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"
#include "query/serversources.h"

#include <QByteArray>
#include <QList>

// What q4vantage-query prints: the answers of one query as JSON or text.
namespace QueryReport {

struct Summary {
    int addresses = 0;
    int answered = 0;
    int timedOut = 0;
    int droppedDatagrams = 0;
    qint64 elapsedMs = 0;
    // Where the addresses came from; empty for favourites and --server.
    QList<SourceReport> sources;
};

enum class Format { Text, Json };

// Writes each server as it answers, and the summary at the end: nothing
// of a query's answers is kept, however many servers there are. In JSON
// every received byte is the Unicode character of the same code in the
// strings, so the raw names survive exactly.
class Writer final {
public:
    explicit Writer(Format format)
        : m_format(format)
    {
    }
    QByteArray server(const ServerRecord& record);
    QByteArray finish(const Summary& summary);

private:
    Format m_format;
    int m_servers = 0;
};

// A whole report at once.
QByteArray json(const Summary& summary, const QList<ServerRecord>& servers);
QByteArray text(const Summary& summary, const QList<ServerRecord>& servers);

} // namespace QueryReport
