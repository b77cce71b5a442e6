// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/servervisibility.h"

ServerVisibility::ServerVisibility(const ServerStore& store)
    : m_store(store)
{
}

void ServerVisibility::setRules(const QList<Filters::VariableFilter>& filters, Filters::BuiltIn builtIn)
{
    m_filters = filters;
    m_builtIn = builtIn;
    m_known.clear();
}

bool ServerVisibility::isVisible(int server) const
{
    if (server < 0 || server >= m_store.count())
        return false;
    if (m_known.size() < size_t(m_store.count()))
        m_known.resize(size_t(m_store.count()), -1);
    qint8& known = m_known[size_t(server)];
    if (known < 0)
        known = Filters::isVisible(m_store.at(server), m_filters, m_builtIn) ? 1 : 0;
    return known == 1;
}
