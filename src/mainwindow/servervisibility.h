// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"
#include "userdata/filters.h"

#include <vector>

// Whether each server passes the filters, worked out once per server and
// kept until the filters are set again (every rebuild sets them), so a
// server that answers again keeps its place until then; the visible
// server list and the visible player list both ask it, so a player is shown
// exactly when its server is.
class ServerVisibility final {
public:
    explicit ServerVisibility(const ServerStore& store);

    void setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn);
    bool isVisible(int server) const;

private:
    const ServerStore& m_store;
    QList<Filters::VariableFilter> m_filters;
    Filters::BuiltIn m_builtIn;
    mutable std::vector<qint8> m_known; // -1 not yet tested, else 0 or 1
};
