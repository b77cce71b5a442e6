// SPDX-License-Identifier: GPL-2.0-or-later
// The update site's version file as any server may send it. The reading
// never fails, and a version is never newer than itself.
#include "fuzzinput.h"
#include "update/updateversion.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto latest = UpdateVersion::latestParts(bytesOf(data, size));
    FUZZ_CHECK(latest.has_value() == (size >= 3));
    if (!latest)
        return 0;
    UpdateVersion::isNewer(*latest, UpdateVersion::running());
    UpdateVersion::text(*latest);
    bool ok[3] = {};
    const UpdateVersion::Version same{latest->value(0).trimmed().toInt(&ok[0]),
                                      latest->value(1).trimmed().toInt(&ok[1]),
                                      latest->value(2).trimmed().toInt(&ok[2])};
    if (ok[0] && ok[1] && ok[2])
        FUZZ_CHECK(!UpdateVersion::isNewer(*latest, same));
    return 0;
}
