// A game server's infoResponse, whatever a server (or anyone forging one)
// sends: parsed without a crash, and its parts stay consistent.
#include "fuzzinput.h"
#include "infoprotocol.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray datagram = bytesOf(data, size);
    const ServerRecord server = InfoProtocol::parseReply(datagram);
    InfoProtocol::splitSections(datagram);
    // With the header in front the same bytes parse the same way twice.
    const QByteArray withHeader = InfoProtocol::replyHeader() + datagram;
    const ServerRecord once = InfoProtocol::parseReply(withHeader);
    const ServerRecord twice = InfoProtocol::parseReply(withHeader);
    FUZZ_CHECK(once.tokens == twice.tokens);
    FUZZ_CHECK(once.players.size() == twice.players.size());
    FUZZ_CHECK(server.tokens.size() % 2 == 0 || !server.tokens.isEmpty());
    return 0;
}
