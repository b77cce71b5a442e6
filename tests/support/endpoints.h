// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QStringList>

// A table's addresses as "address:port", in its order.
inline QStringList endpoints(const AddressTable& table)
{
    QStringList texts;
    for (const AddressEntry& entry : table.entries())
        texts.append(entry.endpointText());
    return texts;
}
