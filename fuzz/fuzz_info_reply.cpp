// SPDX-License-Identifier: GPL-2.0-or-later
// A game server's infoResponse, whatever a server (or anyone forging one)
// sends: parsed without a crash, and its parts stay consistent.
#include "fuzzinput.h"
#include "query/infoprotocol.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray datagram = bytesOf(data, size);
    const std::optional<ServerRecord> server = InfoProtocol::parseReply(datagram);
    FUZZ_CHECK(server.has_value() == InfoProtocol::readHeader(datagram).has_value());
    // Behind a header of 1.4.2 (protocol 2.85) the same bytes parse the
    // same way twice, with the version as the first rule.
    const QByteArray withHeader = InfoProtocol::replyPrefix() + QByteArray("\x04\0\0\0\x55\0\x02\0", 8) + datagram;
    InfoProtocol::splitSections(withHeader);
    const std::optional<ServerRecord> once = InfoProtocol::parseReply(withHeader);
    const std::optional<ServerRecord> twice = InfoProtocol::parseReply(withHeader);
    FUZZ_CHECK(once && twice);
    FUZZ_CHECK(once->tokens == twice->tokens);
    FUZZ_CHECK(once->players.size() == twice->players.size());
    FUZZ_CHECK(once->tokens.size() >= 2 && once->tokens.at(1) == QLatin1String("2.85"));
    FUZZ_CHECK(once->players.size() <= std::max(0, once->maxPlayers + 1));
    return 0;
}
