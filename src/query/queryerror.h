// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

// Why a query could not start or had to stop, with the text the user sees.
struct QueryError {
    enum class Kind {
        PortUnavailable, // a local port is in use or not permitted
        TooManyServers,  // the master's list is longer than the record counter allows
        MasterNotFound,  // the master's host name did not resolve
        BadMasterAddress // the master setting names no usable host or port
    };

    Kind kind;
    QString detail; // the port, host or text concerned
    QString systemText = {};

    QString message() const;
};
