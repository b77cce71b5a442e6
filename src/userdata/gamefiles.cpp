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

bool readNames(zip_t* archive, QSet<QString>& into)
{
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    if (count < 0)
        return false;
    for (zip_int64_t i = 0; i < std::min<zip_int64_t>(count, MaxEntries); ++i) {
        const char* raw = zip_get_name(archive, zip_uint64_t(i), ZIP_FL_ENC_GUESS);
        if (!raw)
            continue;
        const QString name = QString::fromUtf8(raw).toLower();
        if (isSafeName(name))
            into.insert(name);
    }
    return true;
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
        index.entries.insert(dir.relativeFilePath(loose.next()).toLower());
    return index;
}

} // namespace GameFiles
