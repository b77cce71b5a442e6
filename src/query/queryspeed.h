// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// The query speed setting: how many requests may be in flight at once,
// and the local ports a query binds.
namespace QuerySpeed {

inline constexpr int PoolCapacity = 20;
inline constexpr int DefaultLastSocketIndex = PoolCapacity - 1;
// The master's local port lies this far above the highest query port,
// leaving the two ports between them free.
inline constexpr int MasterPortOffset = 3;

// The highest socket index in use for a speed 0 to 5; any other speed
// leaves the current index as it is.
constexpr int lastSocketIndex(int speed, int current)
{
    constexpr int table[] = {1, 2, 5, 11, 15, 19};
    return speed >= 0 && speed <= 5 ? table[speed] : current;
}

// The ports of one query: pool socket j on startPort + j, the master's
// socket above them.
struct PortPlan {
    int lastSocketIndex = DefaultLastSocketIndex;
    int startPort = 0;

    constexpr int masterPort() const { return startPort + lastSocketIndex + MasterPortOffset; }
    // Every port of the plan is a real port number.
    constexpr bool isValid() const { return startPort >= 1 && masterPort() <= 65535; }
};

} // namespace QuerySpeed
