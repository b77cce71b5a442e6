// SPDX-License-Identifier: GPL-2.0-or-later
#include "simlocations.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstring>

extern "C" {
#include <libloc/country.h>
#include <libloc/libloc.h>
#include <libloc/network.h>
#include <libloc/writer.h>
}

bool writeLocationDatabase(const QString& path, const QList<PlacedNetwork>& networks,
                           const QList<NamedCountry>& countries)
{
    loc_ctx* context = nullptr;
    if (loc_new(&context) != 0)
        return false;
    loc_writer* writer = nullptr;
    bool ok = loc_writer_new(context, &writer, nullptr, nullptr) == 0;
    if (ok) {
        loc_writer_set_vendor(writer, "Quake 4 Vantage tests");
        for (const PlacedNetwork& placed : networks) {
            loc_network* network = nullptr;
            ok = ok && loc_writer_add_network(writer, &network, placed.network) == 0 &&
                 loc_network_set_country_code(network, placed.country) == 0;
            if (network)
                loc_network_unref(network);
        }
        // The reader finds a country by binary search: they go in sorted.
        QList<NamedCountry> sorted = countries;
        std::sort(sorted.begin(), sorted.end(),
                  [](const NamedCountry& a, const NamedCountry& b) { return std::strcmp(a.code, b.code) < 0; });
        for (const NamedCountry& named : std::as_const(sorted)) {
            loc_country* country = nullptr;
            ok = ok && loc_writer_add_country(writer, &country, named.code) == 0 &&
                 loc_country_set_name(country, named.name) == 0;
            if (country)
                loc_country_unref(country);
        }
        FILE* file = std::fopen(QFile::encodeName(path).constData(), "w");
        ok = ok && file && loc_writer_write(writer, file, LOC_DATABASE_VERSION_LATEST) == 0;
        if (file)
            ok = std::fclose(file) == 0 && ok;
        loc_writer_unref(writer);
    }
    loc_unref(context);
    return ok;
}

bool writeLoopbackCountries(const QString& path)
{
    return writeLocationDatabase(
        path, {{"127.0.0.0/29", "DE"}, {"127.0.0.8/29", "US"}, {"127.0.0.16/28", "RU"}, {"127.0.1.0/24", "FR"}},
        {{"DE", "Germany"}, {"US", "United States of America"}, {"RU", "Russian Federation"}, {"FR", "France"}});
}
