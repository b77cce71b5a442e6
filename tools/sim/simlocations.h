// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>

// A small IP location database written with libloc's own writer, as the
// real one is made, for a simulated fleet: networks ("127.0.0.0/26") with their countries, and
// the countries' names. False when it could not be written.
struct PlacedNetwork {
    const char* network;
    const char* country;
};
struct NamedCountry {
    const char* code;
    const char* name;
};
bool writeLocationDatabase(const QString& path, const QList<PlacedNetwork>& networks,
                           const QList<NamedCountry>& countries);

// Parts of 127.0.0.0/8 in a few countries, so a fleet on loopback is
// spread over them: 127.0.0.0/29 in Germany, 127.0.0.8/29 in the United
// States, 127.0.0.16/28 in Russia, 127.0.1.0/24 in France.
bool writeLoopbackCountries(const QString& path);
