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
    // address:port, the time of the join and the name.
    return parseServerLines<Entry>(
        bytes, MaxEntries, 3, 3, [](const AddressEntry& server, const QList<QByteArrayView>& fields) {
            bool timeOk = false;
            const qint64 joinedAt = fields.at(1).toLongLong(&timeOk);
            if (!timeOk || joinedAt < 0)
                return std::optional<Entry>();
            return std::optional<Entry>(Entry{server.address, server.port,
                                              QString::fromLatin1(dataFileField(QString::fromLatin1(fields.at(2)))),
                                              joinedAt});
        });
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
