// SPDX-License-Identifier: GPL-2.0-or-later
// servers.dat as a crash, a disk fault or a person may have left it. What
// is read writes back to the same list, and an update never keeps more
// than the cap or a server that should be forgotten.
#include "fuzzinput.h"
#include "userdata/knownservers.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const KnownServers::List read = KnownServers::parse(bytesOf(data, size));
    FUZZ_CHECK(read.size() <= KnownServers::MaxServers);
    for (const KnownServers::Server& server : read)
        FUZZ_CHECK(server.port >= 1 && server.port <= 65535 && server.misses >= 0);
    FUZZ_CHECK(KnownServers::parse(KnownServers::toBytes(read)) == read);

    const qint64 now = 2'000'000'000;
    const KnownServers::List updated = KnownServers::update(read, KnownServers::toAddressTable(read), {}, now, true);
    for (const KnownServers::Server& server : updated) {
        FUZZ_CHECK(server.misses < KnownServers::MaxMisses);
        FUZZ_CHECK(server.lastSeen >= now - KnownServers::MaxAgeDays * 24 * 60 * 60);
    }
    return 0;
}
