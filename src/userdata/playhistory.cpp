// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/playhistory.h"

#include "query/records.h"
#include "userdata/datafield.h"

#include <QDir>
#include <QSet>

namespace PlayHistory {

namespace {

constexpr char Header[] = "# Quake 4 Vantage: servers joined, newest first. address:port, time, name\n";

} // namespace

QString filePath(const QString& dataFolder)
{
    return QDir(dataFolder).filePath(QLatin1String(FileName));
}

List parse(const QByteArray& bytes)
{
    List entries;
    QSet<QString> seen;
    for (const QByteArrayView line : dataFileLines(bytes)) {
        if (entries.size() >= MaxEntries)
            break;
        const qsizetype firstTab = line.indexOf('\t');
        const qsizetype secondTab = firstTab < 0 ? -1 : line.indexOf('\t', firstTab + 1);
        if (secondTab < 0)
            continue;
        const auto endpoint = parseEndpoint(QString::fromLatin1(line.first(firstTab)));
        bool timeOk = false;
        const qint64 joinedAt = line.sliced(firstTab + 1, secondTab - firstTab - 1).toByteArray().toLongLong(&timeOk);
        if (!endpoint || !timeOk || joinedAt < 0)
            continue;
        Entry entry{endpoint->address, endpoint->port,
                    QString::fromLatin1(dataFileField(QString::fromLatin1(line.sliced(secondTab + 1)))), joinedAt};
        if (seen.contains(entry.endpointText()))
            continue;
        seen.insert(entry.endpointText());
        entries.append(entry);
    }
    return entries;
}

QByteArray toBytes(const List& entries)
{
    QByteArray bytes(Header);
    for (const Entry& entry : entries) {
        bytes += dataFileField(entry.endpointText());
        bytes += '\t' + QByteArray::number(entry.joinedAt) + '\t';
        bytes += dataFileField(entry.name);
        bytes += '\n';
    }
    return bytes;
}

List readFile(const QString& path)
{
    return parse(readDataFile(path, MaxFileBytes));
}

bool writeFile(const QString& path, const List& entries)
{
    return writeWholeFile(path, toBytes(entries));
}

List record(List entries, const Entry& joined)
{
    entries.removeIf([&joined](const Entry& entry) { return entry.endpointText() == joined.endpointText(); });
    entries.prepend(joined);
    if (entries.size() > MaxEntries)
        entries.resize(MaxEntries);
    return entries;
}

AddressTable toAddressTable(const List& entries)
{
    AddressTable table;
    for (const Entry& entry : entries)
        table.add(entry.address, entry.port, entry.name);
    return table;
}

} // namespace PlayHistory
