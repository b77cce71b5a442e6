// SPDX-License-Identifier: GPL-2.0-or-later
// The filters' wildcard match with any text and any pattern (split at the
// first zero byte): no crash, no run-away time on many stars.
#include "fuzzinput.h"
#include "userdata/filters.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString input = latin1Of(data, size);
    const qsizetype split = input.indexOf(QChar(0));
    const QString text = split < 0 ? input : input.left(split);
    const QString pattern = split < 0 ? input : input.mid(split + 1);
    const bool matched = Filters::matchesPattern(text, pattern);
    // A pattern of plain letters matches exactly itself.
    if (split < 0 && !input.contains(QLatin1Char('*')) && !input.contains(QLatin1Char('?')) &&
        !input.contains(QLatin1Char('#')) && !input.contains(QLatin1Char('[')))
        FUZZ_CHECK(matched);
    FUZZ_CHECK(Filters::matchesPattern(text, QStringLiteral("*")));
    return 0;
}
