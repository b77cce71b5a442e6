// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// Where this machine may hold the game: the user's home, the folders of
// PATH, the Wine prefixes named by WINEPREFIX and the root of the system
// folders (/usr/local/games, /opt, /usr/lib). Read once from the
// environment; tests lay out a home and a root of their own instead.
struct GamePlaces {
    QString home;
    QStringList searchPath;
    QStringList winePrefixes;
    QString systemRoot;

    static GamePlaces ofThisMachine();
};
