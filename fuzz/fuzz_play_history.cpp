// SPDX-License-Identifier: GPL-2.0-or-later
// history.dat as a crash, a disk fault or a person may have left it. What
// is read writes back to the same list, holds each server once, and a join
// recorded on top keeps it within the limit.
#include "fuzzinput.h"
#include "userdata/playhistory.h"

#include <QSet>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const PlayHistory::List read = PlayHistory::parse(bytesOf(data, size));
    FUZZ_CHECK(read.size() <= PlayHistory::MaxEntries);
    QSet<QString> servers;
    for (const PlayHistory::Entry& entry : read) {
        FUZZ_CHECK(entry.port >= 1 && entry.port <= 65535 && entry.joinedAt >= 0);
        servers.insert(entry.endpointText());
    }
    FUZZ_CHECK(servers.size() == read.size());
    FUZZ_CHECK(PlayHistory::parse(PlayHistory::toBytes(read)) == read);

    const PlayHistory::Entry joined{QStringLiteral("10.0.0.1"), 28004, QStringLiteral("x"), 1};
    const PlayHistory::List recorded = PlayHistory::record(read, joined);
    FUZZ_CHECK(recorded.size() <= PlayHistory::MaxEntries && recorded.first() == joined);
    return 0;
}
