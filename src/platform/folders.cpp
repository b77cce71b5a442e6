// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace Folders {

QString programFolder()
{
    return QCoreApplication::applicationDirPath();
}

QString dataFolder()
{
    return chooseDataFolder(programFolder(), QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QString chooseDataFolder(const QString& programFolder, const QString& userFolder)
{
    if (!programFolder.isEmpty() && !isInstalled(programFolder) && canCreateFilesIn(programFolder))
        return QDir::cleanPath(programFolder);
    QDir().mkpath(userFolder);
    return QDir::cleanPath(userFolder);
}

bool isInstalled(const QString& programFolder)
{
    return QFileInfo::exists(
        QDir(programFolder).filePath(QStringLiteral("../share/metainfo/org.q4vantage.Q4Vantage.metainfo.xml")));
}

bool canCreateFilesIn(const QString& folder)
{
    if (!QFileInfo(folder).isDir())
        return false;
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".q4vantage-write-probe-XXXXXX")));
    return probe.open();
}

} // namespace Folders
