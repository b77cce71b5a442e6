// SPDX-License-Identifier: GPL-2.0-or-later
// What knowing where a server is and whether its map is installed costs.
//
// What placing a server in its country costs: lookups of random IPv4
// addresses in Debian's location database (the one the program uses by
// default), against the time a server's answer takes to handle anyway.

#include "query/countrydatabase.h"
#include "userdata/gamefiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>
#include <vector>

int countries()
{
    QElapsedTimer clock;
    clock.start();
    const auto opened = CountryDatabase::open(CountryDatabase::DebianPath);
    if (!opened.database) {
        std::fprintf(stderr, "countries: %s (install libloc-database)\n", qPrintable(opened.error));
        return 1;
    }
    const qint64 openNs = clock.nsecsElapsed();
    constexpr int Lookups = 200000;
    QRandomGenerator random(42);
    std::vector<QHostAddress> addresses;
    addresses.reserve(Lookups);
    for (int i = 0; i < Lookups; ++i)
        addresses.emplace_back(quint32(random.generate()));
    int placed = 0;
    clock.restart();
    for (const QHostAddress& address : addresses)
        placed += !opened.database->countryOf(address).isEmpty();
    const qint64 lookupNs = clock.nsecsElapsed();
    std::printf("countries: %s\n", qPrintable(opened.database->description()));
    std::printf("  opened in %.1f ms; %d lookups of random IPv4 addresses, %d placed: %.2f us per lookup\n",
                openNs / 1e6, Lookups, placed, lookupNs / 1e3 / Lookups);
    return 0;
}

// The map check's one read of a game folder: every .pk4's directory, as a
// join does once per folder on its worker thread.
int mapscan(const QString& folder)
{
    if (folder.isEmpty()) {
        std::fprintf(stderr, "usage: q4vantage-bench mapscan GAME_FOLDER/q4base\n");
        return 2;
    }
    QElapsedTimer clock;
    clock.start();
    const GameFiles::Index index = GameFiles::indexFolder(folder);
    const qint64 ms = clock.elapsed();
    qint64 bytes = 0;
    for (const QFileInfo& archive : QDir(folder).entryInfoList({"*.pk4"}, QDir::Files))
        bytes += archive.size();
    std::printf("mapscan: %s, %.0f MB of archives: %lld names in %lld ms (%lld unreadable)\n", qPrintable(folder),
                bytes / 1048576.0, (long long)index.entries.size(), (long long)ms, (long long)index.unreadable.size());
    return index.exists ? 0 : 1;
}
