// SPDX-License-Identifier: GPL-2.0-or-later
// The two colour-code grammars (server names count carets, player names
// do not): what a label shows is what the list shows (SOH aside), one
// colour per character.
#include "fuzzinput.h"
#include "presentation/colourcodes.h"

#include <cstdio>

using namespace ColourCodes;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = latin1Of(data, size);
    const ColouredText server = ShowServerName(text);
    // SOH is a character to the label (it can even be taken as a code) but
    // does not exist for the counted stripper; without it the two agree.
    const QString counted = StripColourCodesCounted(text);
    if (!text.contains(QChar(1)))
        FUZZ_CHECK(server.text == counted);
    FUZZ_CHECK(server.colours.size() == server.text.size());
    const ColouredText player = ShowPlayerName(text);
    FUZZ_CHECK(player.text == StripColourCodes(text));
    FUZZ_CHECK(player.colours.size() == player.text.size());
    return 0;
}
