// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/gameinstall.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString kindName(GameInstall::Kind kind)
{
    switch (kind) {
    case GameInstall::Kind::Steam:
        return QStringLiteral("steam");
    case GameInstall::Kind::FlatpakSteam:
        return QStringLiteral("flatpak-steam");
    case GameInstall::Kind::LinuxRelease:
        return QStringLiteral("linux");
    case GameInstall::Kind::Wine:
        return QStringLiteral("wine");
    case GameInstall::Kind::Program:
        break;
    }
    return GameInstall::PickedSetting;
}

} // namespace

GameInstall GameInstall::picked(const QString& path, const QString& home)
{
    const QFileInfo file(path);
    // As the game's folders have always been read for a picked program:
    // its own, and the Linux release's user folder.
    return {Kind::Program,
            file.absolutePath(),
            path,
            {},
            {},
            home.isEmpty() ? QString() : QDir(home).filePath(QStringLiteral(".quake4"))};
}

GameInstall GameInstall::throughWine(const QString& exe, const QString& wine)
{
    const QFileInfo file(exe);
    // The prefix is the folder holding drive_c; elsewhere Wine's default.
    const QString path = QDir::fromNativeSeparators(file.absoluteFilePath());
    const qsizetype drive = path.indexOf(QLatin1String("/drive_c/"));
    return {Kind::Wine, file.absolutePath(), wine, drive > 0 ? path.left(drive) : QString(), file.fileName(), {}};
}

QStringList GameInstall::gameFolders() const
{
    QStringList folders{folder};
    if (!userFolder.isEmpty())
        folders << userFolder;
    return folders;
}

QString GameInstall::label() const
{
    const QString where = QDir::toNativeSeparators(kind == Kind::Program ? program
                                                   : kind == Kind::Wine  ? QDir(folder).filePath(windowsProgram)
                                                                         : folder);
    switch (kind) {
    case Kind::Steam:
        return tr("Steam: %1").arg(where);
    case Kind::FlatpakSteam:
        return tr("Steam (Flatpak): %1").arg(where);
    case Kind::LinuxRelease:
        return tr("Linux release: %1").arg(where);
    case Kind::Wine:
        return tr("Wine: %1").arg(where);
    case Kind::Program:
        break;
    }
    return where;
}

bool GameInstall::isWindowsBuild() const
{
#ifdef Q_OS_WIN
    return false;
#else
    return kind == Kind::Program && program.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive);
#endif
}

QString GameInstall::settingText() const
{
    if (kind == Kind::Program)
        return PickedSetting;
    if (kind == Kind::Wine)
        return kindName(kind) + QLatin1Char(':') + QDir(folder).filePath(windowsProgram);
    return kindName(kind) + QLatin1Char(':') + folder;
}
