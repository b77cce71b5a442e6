// SPDX-License-Identifier: GPL-2.0-or-later
// A .pk4 archive as any download or disk may have left it: cut, looping,
// claiming more entries than it holds, names climbing out with "..". Only
// its directory is read; what comes out is bounded and stays inside.
#include "fuzzinput.h"
#include "userdata/gamefiles.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    QSet<QString> names;
    GameFiles::archiveEntries(bytesOf(data, size), names);
    FUZZ_CHECK(names.size() <= GameFiles::MaxEntries);
    for (const QString& name : std::as_const(names)) {
        FUZZ_CHECK(!name.startsWith(QLatin1Char('/')));
        FUZZ_CHECK(!name.split(QLatin1Char('/')).contains(QStringLiteral("..")));
        FUZZ_CHECK(name == name.toLower());
    }
    // The same bytes as the map and mod names a server may send.
    const QString text = latin1Of(data, size);
    for (const QString& entry : GameFiles::mapEntries(text))
        FUZZ_CHECK(entry.startsWith(QStringLiteral("maps/")) && !entry.contains(QStringLiteral("/../")));
    for (const QString& folder : GameFiles::modFolders(text))
        FUZZ_CHECK(!folder.contains(QLatin1Char('/')) && folder != QLatin1String(".."));
    return 0;
}
