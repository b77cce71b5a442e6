// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QtGlobal>

// The ports of this test process on 127.0.0.1: a block no other test
// process holds, so tests never collide however many run at once. A
// process claims its block by listening on the block's first port for as
// long as it runs; the block's other ports were free for UDP when claimed.
// The blocks lie below the game's own ports (26000 and up: 27650, 27960,
// 28004 are named by tests as they are) and below the system's ephemeral
// ports, so no socket the system numbers by itself lands in one. When
// every block is taken, a process waits for one to come free.
namespace TestPorts {

inline constexpr int BlockSize = 3000;

// A port of this process's block (offset 1 to BlockSize - 1); the block is
// claimed at the first call.
quint16 at(int offset);
// "127.0.0.1:port" of that port, as lists and the status line write it.
inline QString local(int offset)
{
    return QStringLiteral("127.0.0.1:%1").arg(at(offset));
}

} // namespace TestPorts
