// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "simfleet.h"
#include "testports.h"

// A simulated fleet on loopback: the master on masterPort, the servers on
// the ports right above it. The seed follows the port's place in the test
// ports' block, so each test gets its own fleet, the same in every run.
inline FleetOptions fleetOf(int servers, quint16 masterPort, int delayMs = 0)
{
    FleetOptions options;
    options.servers = servers;
    options.masterPort = masterPort;
    options.firstServerPort = quint16(masterPort + 1);
    options.delayMs = delayMs;
    options.seed = masterPort % TestPorts::BlockSize;
    return options;
}

// A fleet that is up once constructed: a base for fixtures that need the
// fleet running before the window that queries it exists.
struct RunningFleet {
    SimFleet fleet;
    explicit RunningFleet(const FleetOptions& options)
        : fleet(options)
    {
        if (const auto error = fleet.start())
            qFatal("the fleet did not start: %s", qPrintable(*error));
    }
};
