// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "simfleet.h"

#include <QStringList>

// The fleets and friends the benchmarks share.
inline FleetOptions fleetOptions(int servers, double silent, int delayMs)
{
    FleetOptions options;
    options.servers = servers;
    options.silentFraction = silent;
    options.delayMs = delayMs;
    options.masterPort = 19999;
    options.firstServerPort = 20000;
    options.seed = 42;
    return options;
}

// Fifty friends as users keep them: names, a few patterns, one of which
// matches in the fleets here.
inline QStringList fiftyFriends()
{
    QStringList friends;
    for (int i = 0; i < 45; ++i)
        friends.append(QStringLiteral("Friend%1").arg(i));
    friends += {"*Hammer*", "[UFO]*", "Player7", "Grim#", "?ail*"};
    return friends;
}
