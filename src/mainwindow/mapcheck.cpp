// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/mapcheck.h"

#include <QDir>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

MapCheck::MapCheck(QObject* parent)
    : QObject(parent)
{
}

MapCheck::Verdict MapCheck::check(const QStringList& gameFolders, const QString& map, const QString& fsGame)
{
    const QStringList entries = GameFiles::mapEntries(map);
    const QStringList folders = GameFiles::modFolders(fsGame);
    if (gameFolders.isEmpty() || entries.isEmpty() || folders.isEmpty())
        return Verdict::NotChecked;
    bool pending = false;
    for (const QString& game : gameFolders)
        for (const QString& folder : folders) {
            const QString path = QDir(game).filePath(folder);
            // A folder that is not there (yet) needs no reading: the usual
            // case for all but one of them.
            if (m_read.contains(path) || !QFileInfo(path).isDir())
                continue;
            read(path);
            pending = true;
        }
    if (pending)
        return Verdict::Pending;
    bool baseThere = false;
    bool modThere = folders.size() == 1;
    bool mapThere = false;
    for (const QString& game : gameFolders)
        for (const QString& folder : folders) {
            const GameFiles::Index index = m_read.value(QDir(game).filePath(folder));
            baseThere = baseThere || (folder == GameFiles::BaseFolder && index.exists);
            modThere = modThere || (folder != GameFiles::BaseFolder && index.exists);
            for (const QString& entry : entries)
                mapThere = mapThere || index.entries.contains(entry);
        }
    // No q4base anywhere: this is no game folder we know how to read.
    if (!baseThere)
        return Verdict::NotChecked;
    // The game cannot join a mod's server without the mod, even with the
    // map in q4base.
    if (!modThere)
        return Verdict::MissingMod;
    return mapThere ? Verdict::Installed : Verdict::MissingMap;
}

void MapCheck::read(const QString& folder)
{
    if (m_reading.contains(folder))
        return;
    m_reading.insert(folder);
    auto* watcher = new QFutureWatcher<GameFiles::Index>(this);
    connect(watcher, &QFutureWatcher<GameFiles::Index>::finished, this, [this, watcher, folder] {
        m_read.insert(folder, watcher->result());
        m_reading.remove(folder);
        watcher->deleteLater();
        emit indexed();
    });
    watcher->setFuture(QtConcurrent::run(&GameFiles::indexFolder, folder));
}
