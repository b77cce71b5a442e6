// SPDX-License-Identifier: GPL-2.0-or-later
#include "testports.h"

#include <arpa/inet.h>
#include <cstdio>
#include <cstdlib>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int FirstBlock = 10000;
constexpr int Blocks = 5;       // 10000 to 24999
constexpr int WaitRounds = 600; // of 200 ms: two minutes, a test's time limit

bool bindLoopback(int socket, int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(quint16(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool udpFree(int port)
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
    const bool free = socket >= 0 && bindLoopback(socket, port);
    if (socket >= 0)
        ::close(socket);
    return free;
}

// Listens on the block's first port, kept open until the process ends.
bool claim(int base)
{
    const int lock = ::socket(AF_INET, SOCK_STREAM, 0);
    if (lock < 0)
        return false;
    if (!bindLoopback(lock, base) || ::listen(lock, 1) != 0) {
        ::close(lock);
        return false;
    }
    for (int port = base + 1; port < base + TestPorts::BlockSize; ++port) {
        if (!udpFree(port)) {
            ::close(lock);
            return false;
        }
    }
    return true;
}

int claimBlock()
{
    // Processes started together try different blocks first.
    const int first = int(::getpid()) % Blocks;
    for (int round = 0; round < WaitRounds; ++round) {
        for (int i = 0; i < Blocks; ++i) {
            const int base = FirstBlock + ((first + i) % Blocks) * TestPorts::BlockSize;
            if (claim(base))
                return base;
        }
        ::usleep(200 * 1000);
    }
    std::fprintf(stderr, "no free block of %d test ports on 127.0.0.1\n", TestPorts::BlockSize);
    std::abort();
}

} // namespace

namespace TestPorts {

quint16 at(int offset)
{
    static const int base = claimBlock();
    if (offset < 1 || offset >= BlockSize) {
        std::fprintf(stderr, "test port offset %d is outside the block\n", offset);
        std::abort();
    }
    return quint16(base + offset);
}

} // namespace TestPorts
