// SPDX-License-Identifier: GPL-2.0-or-later
// A published server list as any web site may serve it: JSON of any shape
// or text of any bytes. What is read is always a usable address, never more
// than the cap, and reads the same again when written as text.
#include "fuzzinput.h"
#include "query/serverlistreader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const ServerListReader::Result result = ServerListReader::read(bytes, 64);
    FUZZ_CHECK(result.addresses.count() <= 64);
    FUZZ_CHECK(!result.truncated || result.addresses.count() == 64);
    QByteArray lines;
    for (const AddressEntry& entry : result.addresses.entries()) {
        FUZZ_CHECK(entry.port >= 1 && entry.port <= 65535);
        FUZZ_CHECK(!entry.address.isEmpty() && !entry.address.contains(QLatin1Char(':')));
        lines += entry.endpointText().toUtf8() + '\n';
    }
    const ServerListReader::Result again = ServerListReader::read(lines, 64);
    FUZZ_CHECK(again.addresses.entries() == result.addresses.entries());
    FUZZ_CHECK(again.skipped == 0);
    return 0;
}
