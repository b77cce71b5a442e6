// SPDX-License-Identifier: GPL-2.0-or-later
// Themes.ini as found: read without a crash, and what is written from it
// reads back the same (themes without a name aside, which are not written,
// and line breaks in names, which become blanks).
#include "fuzzinput.h"
#include "presentation/themefile.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const ThemeFile::Themes themes = ThemeFile::parse(bytesOf(data, size));
    ThemeFile::currentTheme(themes);
    const QByteArray written = ThemeFile::toBytes(themes);
    const ThemeFile::Themes again = ThemeFile::parse(written);
    qsizetype named = 0;
    for (const ThemeFile::Theme& theme : themes.list)
        named += !theme.name.isEmpty();
    FUZZ_CHECK(again.list.size() == named);
    FUZZ_CHECK(ThemeFile::toBytes(again) == written);
    return 0;
}
