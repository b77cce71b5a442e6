// SPDX-License-Identifier: GPL-2.0-or-later
// favourites.dat as any program or person may have left it, and the lines
// written for whatever names a server sends.
#include "fuzzinput.h"
#include "userdata/favourites.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const auto favourites = Favourites::parse(bytes);
    if (favourites) {
        FUZZ_CHECK(favourites->size() <= Favourites::MaxFavourites);
        Favourites::toAddressTable(*favourites);
    }

    // Any text as the three fields: one line, two separators, always.
    const QString text = latin1Of(data, size);
    const qsizetype third = text.size() / 3;
    const QByteArray line = Favourites::line(text.left(third), text.mid(third, third), text.mid(2 * third));
    FUZZ_CHECK(line.endsWith("\r\n"));
    FUZZ_CHECK(line.count('\n') == 1 && line.count('\r') == 1);
    FUZZ_CHECK(line.count('\x01') == 2);
    const auto read = Favourites::parse(line + line);
    FUZZ_CHECK(read && read->size() == 2);
    return 0;
}
