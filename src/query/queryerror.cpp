// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/queryerror.h"

#include "query/masterprotocol.h"

#include <QCoreApplication>

QString QueryError::message() const
{
    switch (kind) {
    case Kind::PortUnavailable:
        return QCoreApplication::translate("QueryError", "Local port %1 cannot be used (%2). Choose another start "
                                                         "port in the options.")
            .arg(detail, systemText);
    case Kind::TooManyServers:
        return QCoreApplication::translate("QueryError", "The master server listed more than %1 servers; the list "
                                                         "was not used.")
            .arg(MasterProtocol::MaxRecords);
    case Kind::MasterNotFound:
        return QCoreApplication::translate("QueryError", "Master server %1 not found (%2).").arg(detail, systemText);
    case Kind::BadMasterAddress:
        return QCoreApplication::translate("QueryError", "The master server address \"%1\" is not valid.").arg(detail);
    }
    return {};
}
