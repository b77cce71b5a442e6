// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/gameplaces.h"

#include <QDir>

GamePlaces GamePlaces::ofThisMachine()
{
#ifdef Q_OS_WIN
    // The game's Windows build runs as it is there: the path the user
    // picks is all a join needs.
    return {};
#else
    GamePlaces places;
    places.home = QDir::homePath();
    places.searchPath = qEnvironmentVariable("PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QString prefix = qEnvironmentVariable("WINEPREFIX");
    if (!prefix.isEmpty())
        places.winePrefixes << prefix;
    places.systemRoot = QStringLiteral("/");
    return places;
#endif
}
