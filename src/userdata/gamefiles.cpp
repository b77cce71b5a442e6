// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/gamefiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <zip.h>

namespace GameFiles {

namespace {

// A name that climbs out of the archive or is absolute names nothing in it.
bool isSafeName(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(QLatin1Char('/')) && !name.contains(QLatin1Char('\\')) &&
           !name.split(QLatin1Char('/')).contains(QStringLiteral(".."));
}

// Only what a map check asks for is kept: names of maps.
bool isMapName(const QString& name)
{
    return name.startsWith(QLatin1String("maps/")) &&
           (name.endsWith(QLatin1String(".map")) || name.endsWith(QLatin1String(".proc")) ||
            name.endsWith(QLatin1String(".cm")));
}

void keep(const QString& name, QSet<QString>& into)
{
    if (into.size() < MaxKept && isSafeName(name) && isMapName(name))
        into.insert(name);
}

bool readNames(zip_t* archive, QSet<QString>& into)
{
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    if (count < 0)
        return false;
    for (zip_int64_t i = 0; i < std::min<zip_int64_t>(count, MaxEntries); ++i) {
        const char* raw = zip_get_name(archive, zip_uint64_t(i), ZIP_FL_ENC_GUESS);
        if (!raw || qstrnlen(raw, MaxNameBytes + 1) > MaxNameBytes)
            continue;
        keep(QString::fromUtf8(raw).toLower(), into);
    }
    return true;
}

quint64 little(const QByteArray& bytes, qsizetype at, int size)
{
    quint64 value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = (value << 8) | quint8(bytes.at(at + i));
    return value;
}

// The size of the central directory the archive's end record claims, read
// from its last 64 KiB (zip64 too); 0 when none is found (libzip decides).
quint64 claimedDirectoryBytes(QFile& file)
{
    const qint64 tail = std::min<qint64>(file.size(), 65557 + 20);
    if (tail < 22 || !file.seek(file.size() - tail))
        return 0;
    const QByteArray bytes = file.read(tail);
    const qsizetype end = bytes.lastIndexOf(QByteArray("PK\x05\x06", 4));
    if (end < 0 || end + 22 > bytes.size())
        return 0;
    quint64 size = little(bytes, end + 12, 4);
    if (size != 0xFFFFFFFF)
        return size;
    // Zip64: the locator just before names the real end record.
    if (end < 20 || bytes.mid(end - 20, 4) != QByteArray("PK\x06\x07", 4))
        return 0;
    const quint64 record = little(bytes, end - 20 + 8, 8);
    if (record > quint64(file.size()) || !file.seek(qint64(record)))
        return 0;
    const QByteArray zip64 = file.read(56);
    if (zip64.size() < 56 || !zip64.startsWith(QByteArray("PK\x06\x06", 4)))
        return 0;
    return little(zip64, 40, 8);
}

} // namespace

QStringList mapEntries(const QString& map)
{
    const QString name = map.trimmed().toLower();
    if (!isSafeName(name) || name.contains(QLatin1Char(':')))
        return {};
    const QString base = QStringLiteral("maps/") + name;
    return {base + QStringLiteral(".map"), base + QStringLiteral(".proc"), base + QStringLiteral(".cm")};
}

QString modFolder(const QString& fsGame)
{
    const QString name = fsGame.trimmed();
    if (name.isEmpty() || name.compare(BaseFolder, Qt::CaseInsensitive) == 0 ||
        name.compare(QLatin1String("baseQUAKE4"), Qt::CaseInsensitive) == 0)
        return {};
    return name;
}

QStringList modFolders(const QString& fsGame)
{
    const QString mod = modFolder(fsGame);
    if (mod.isEmpty())
        return {BaseFolder};
    if (mod.contains(QLatin1Char('/')) || mod.contains(QLatin1Char('\\')) || mod == QLatin1String("..") ||
        mod == QLatin1String(".") || mod.contains(QLatin1Char(':')))
        return {};
    return {BaseFolder, mod};
}

bool archiveEntries(const QString& path, QSet<QString>& into)
{
    // libzip takes an empty file for an empty archive; the game does not.
    if (QFileInfo(path).size() == 0)
        return false;
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || claimedDirectoryBytes(file) > quint64(MaxDirectoryBytes))
            return false;
    }
    int error = 0;
    zip_t* archive = zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, &error);
    if (!archive)
        return false;
    const bool read = readNames(archive, into);
    zip_discard(archive);
    return read;
}

bool archiveEntries(const QByteArray& bytes, QSet<QString>& into)
{
    if (bytes.isEmpty())
        return false;
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(bytes.constData(), zip_uint64_t(bytes.size()), 0, &error);
    if (!source) {
        zip_error_fini(&error);
        return false;
    }
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY, &error);
    zip_error_fini(&error);
    if (!archive) {
        zip_source_free(source);
        return false;
    }
    const bool read = readNames(archive, into);
    zip_discard(archive);
    return read;
}

Index indexFolder(const QString& folder)
{
    Index index;
    const QDir dir(folder);
    index.exists = dir.exists();
    if (!index.exists)
        return index;
    // The game reads its archives in name order; so do we (it matters not
    // for a set, but keeps what is said of them stable).
    const QStringList archives =
        dir.entryList({QStringLiteral("*.pk4"), QStringLiteral("*.PK4")}, QDir::Files | QDir::Readable, QDir::Name);
    for (const QString& archive : archives) {
        if (!archiveEntries(dir.filePath(archive), index.entries))
            index.unreadable.append(archive);
    }
    QDirIterator loose(dir.filePath(QStringLiteral("maps")), QDir::Files, QDirIterator::Subdirectories);
    for (qsizetype found = 0; loose.hasNext() && found < MaxEntries; ++found)
        keep(dir.relativeFilePath(loose.next()).toLower(), index.entries);
    return index;
}

} // namespace GameFiles
