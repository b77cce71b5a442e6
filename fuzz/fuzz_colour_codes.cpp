// The two colour-code grammars (server names count carets, player names
// do not): what a label shows is exactly what the list shows, one colour
// per character.
#include "colourcodes.h"
#include "fuzzinput.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = latin1Of(data, size);
    const ColouredText server = ShowServerName(text);
    FUZZ_CHECK(server.text == StripColourCodesCounted(text));
    FUZZ_CHECK(server.colours.size() == server.text.size());
    const ColouredText player = ShowPlayerName(text);
    FUZZ_CHECK(player.text == StripColourCodes(text));
    FUZZ_CHECK(player.colours.size() == player.text.size());
    return 0;
}
