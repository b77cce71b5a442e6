#pragma once

#include "simfleet.h"

// A simulated fleet on loopback: the master on masterPort, the servers on
// the ports right above it. The seed follows the port, so each test gets
// its own, repeatable fleet.
inline FleetOptions fleetOf(int servers, quint16 masterPort, int delayMs = 0)
{
    FleetOptions options;
    options.servers = servers;
    options.masterPort = masterPort;
    options.firstServerPort = quint16(masterPort + 1);
    options.delayMs = delayMs;
    options.seed = masterPort;
    return options;
}
