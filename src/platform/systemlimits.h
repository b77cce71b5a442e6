// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace SystemLimits {

// Lets the process keep up to `wanted` sockets and files open, as far as
// the system allows; returns the limit now in force (or -1 when the
// platform has no such limit to raise).
long raiseOpenFileLimit(long wanted);

// CPU time used so far by the calling thread, in microseconds (-1 where
// the platform cannot tell).
long long threadCpuMicroseconds();

} // namespace SystemLimits
