// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/knownservers.h"

#include "query/records.h"
#include "userdata/datafield.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace KnownServers {

namespace {

constexpr qint64 SecondsPerDay = 24 * 60 * 60;
constexpr char Header[] = "# Quake 4 Vantage: servers that answered. address:port, last seen, misses, name\n";

} // namespace

QString filePath(const QString& dataFolder)
{
    return QDir(dataFolder).filePath(QLatin1String(FileName));
}

List parse(const QByteArray& bytes)
{
    // address:port, last seen, misses and the name, which keeps its tabs as
    // it will be written again.
    return parseServerLines<Server>(
        bytes, MaxServers, 3, 4, [](const AddressEntry& server, const QList<QByteArrayView>& fields) {
            bool seenOk = false;
            bool missesOk = false;
            const qint64 lastSeen = fields.at(1).toLongLong(&seenOk);
            const int misses = fields.at(2).toInt(&missesOk);
            if (!seenOk || !missesOk || misses < 0)
                return std::optional<Server>();
            const QString name =
                fields.size() > 3 ? QString::fromLatin1(dataFileField(QString::fromLatin1(fields.at(3)))) : QString();
            return std::optional<Server>(Server{server.address, server.port, name, lastSeen, misses});
        });
}

QByteArray toBytes(const List& servers)
{
    QByteArray bytes(Header);
    for (const Server& server : servers) {
        bytes += dataFileField(endpointText(server.address, server.port));
        bytes += '\t' + QByteArray::number(server.lastSeen) + '\t' + QByteArray::number(server.misses) + '\t';
        bytes += dataFileField(server.name);
        bytes += '\n';
    }
    return bytes;
}

List readFile(const QString& path)
{
    return parse(readDataFile(path, MaxFileBytes));
}

bool writeFile(const QString& path, const List& servers)
{
    return writeWholeFile(path, toBytes(servers));
}

bool forget(const QString& path)
{
    return !QFile::exists(path) || QFile::remove(path);
}

AddressTable toAddressTable(const List& servers)
{
    AddressTable table;
    for (const Server& server : servers)
        table.add(server.address, server.port);
    return table;
}

List update(List known, const AddressTable& asked, const QList<AddressEntry>& answered, qint64 now, bool finished)
{
    QHash<QString, qsizetype> index;
    for (qsizetype i = 0; i < known.size(); ++i)
        index.insert(endpointText(known.at(i).address, known.at(i).port), i);

    QSet<QString> answeredKeys;
    for (const AddressEntry& answer : answered) {
        const QString key = answer.endpointText();
        answeredKeys.insert(key);
        const auto found = index.constFind(key);
        if (found == index.cend()) {
            index.insert(key, known.size());
            known.append(Server{answer.address, answer.port, answer.name, now, 0});
            continue;
        }
        Server& server = known[*found];
        server.name = answer.name;
        server.lastSeen = now;
        server.misses = 0;
    }
    if (finished) {
        QSet<QString> missed;
        for (const AddressEntry& entry : asked.entries()) {
            const QString key = entry.endpointText();
            if (answeredKeys.contains(key) || missed.contains(key))
                continue;
            missed.insert(key);
            if (const auto found = index.constFind(key); found != index.cend())
                ++known[*found].misses;
        }
    }
    const qint64 oldest = now - MaxAgeDays * SecondsPerDay;
    known.removeIf([oldest](const Server& server) { return server.misses >= MaxMisses || server.lastSeen < oldest; });
    if (known.size() > MaxServers) {
        std::stable_sort(known.begin(), known.end(),
                         [](const Server& a, const Server& b) { return a.lastSeen > b.lastSeen; });
        known.resize(MaxServers);
    }
    return known;
}

} // namespace KnownServers
