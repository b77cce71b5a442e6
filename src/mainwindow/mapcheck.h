// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/gamefiles.h"

#include <QHash>
#include <QObject>
#include <QSet>

// Whether the game has a server's map and mod: the archives of the game's
// folders, each folder read once and on a worker thread (a large install
// takes seconds to list), then asked from memory.
class MapCheck final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MapCheck)

public:
    enum class Verdict { NotChecked, Pending, Installed, MissingMap, MissingMod };

    explicit MapCheck(QObject* parent = nullptr);

    // gameFolders hold q4base and the mods' folders (the install's own,
    // the user's). Pending while a folder is still being read; a mod the
    // game lacks is missing whatever q4base holds.
    Verdict check(const QStringList& gameFolders, const QString& map, const QString& fsGame);

signals:
    // A folder was read: a pending check can be asked again.
    void indexed();

private:
    void read(const QString& folder);

    QHash<QString, GameFiles::Index> m_read;
    QSet<QString> m_reading;
};
