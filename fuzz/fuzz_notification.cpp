// SPDX-License-Identifier: GPL-2.0-or-later
// Player and server names as any server sends them, on their way into a
// desktop notification: one short line each, and no markup the
// notification server could render.
#include "fuzzinput.h"
#include "mainwindow/alerts.h"
#include "platform/desktop.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString name = latin1Of(data, size);
    const QString shown = Alerts::shortName(name);
    FUZZ_CHECK(shown.size() <= Alerts::MaxNameLength);
    FUZZ_CHECK(!shown.contains(QLatin1Char('\n')) && !shown.contains(QLatin1Char('\r')));
    const QString markup = Desktop::notificationMarkup(name + QLatin1Char('\n') + shown);
    FUZZ_CHECK(!markup.contains(QLatin1Char('<')) && !markup.contains(QLatin1Char('>')));
    return 0;
}
