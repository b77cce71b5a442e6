// SPDX-License-Identifier: GPL-2.0-or-later
// filters.dat as found, and the lines written for any typed filter.
#include "fuzzinput.h"
#include "userdata/filters.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto first = Filters::firstFromFileBytes(bytesOf(data, size));
    if (first) {
        const QByteArray written = Filters::toFileBytes({*first});
        FUZZ_CHECK(written.count('\n') == 1);
        // Read back the same, but for line breaks, which become blanks.
        const auto again = Filters::firstFromFileBytes(written);
        QString variable = first->variable;
        variable.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
        FUZZ_CHECK(again && again->variable == variable);
    }
    const QString text = latin1Of(data, size);
    const QString variable = Filters::storedVariable(text.left(text.size() / 2));
    const QString value = Filters::storedValue(variable, text.mid(text.size() / 2));
    const QByteArray line = Filters::toFileBytes({{variable, value}});
    FUZZ_CHECK(line.count('\n') == 1 && line.count('\r') == 1 && line.endsWith("\r\n"));
    return 0;
}
