// SPDX-License-Identifier: GPL-2.0-or-later
// Values of the settings file: lenient numbers, flags, truths and the
// remembered entries of the drop-down boxes.
#include "fuzzinput.h"
#include "query/masteraddress.h"
#include "userdata/settingscodec.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    SettingsCodec::toNumber(text);
    SettingsCodec::isOn(text);
    SettingsCodec::toTruth(text, false);
    const QStringList entries = SettingsCodec::decodeEntries(text);
    // What is stored of a list reads back as that list.
    FUZZ_CHECK(SettingsCodec::decodeEntries(SettingsCodec::encodeEntries(entries)) == entries);
    if (const auto master = parseMasterAddress(text))
        FUZZ_CHECK(!master->host.isEmpty() && master->port != 0);
    return 0;
}
