// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QNetworkProxy>
#include <QString>

// The proxy of the program's HTTP transfers from its two settings: off
// means a direct connection (never the system's proxy), on means the named
// proxy, "host", "host:port" or "http://host:port" (port 8080 when none
// is given).
QNetworkProxy httpProxy(bool enabled, const QString& address);
