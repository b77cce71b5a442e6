// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/refreshround.h"

#include "mainwindow/answerbatcher.h"
#include "mainwindow/servermemory.h"
#include "query/querysession.h"

RefreshRound::RefreshRound(QuerySession& session, AnswerBatcher& batcher, ServerMemory& memory, QObject* parent)
    : QObject(parent)
    , m_session(session)
    , m_batcher(batcher)
    , m_memory(memory)
{
}

bool RefreshRound::start(const AddressTable& table)
{
    m_batcher.clear();
    m_memory.clear();
    m_active = true;
    if (const auto error = m_session.startAddresses(table)) {
        m_active = false;
        emit status(error->message(), StatusTone::Failed);
        return false;
    }
    return true;
}

void RefreshRound::end()
{
    if (!m_active)
        return;
    m_active = false;
    m_session.cancel();
    if (const QList<ServerRecord> batch = m_batcher.take(); !batch.isEmpty())
        emit updated(batch);
    // The user's own query follows and says whether it could remember.
    (void)m_memory.remember(m_session.addresses(), false);
}

void RefreshRound::finish()
{
    m_active = false;
    if (const QList<ServerRecord> batch = m_batcher.take(); !batch.isEmpty())
        emit updated(batch);
    const QStringList silent = m_memory.silent(m_session.addresses());
    // A silent round costs no known server a miss: rounds come often.
    const bool saved = m_memory.remember(m_session.addresses(), false);
    emit ended(m_session.addresses().count(), silent);
    if (!saved)
        emit status(m_memory.notSavedText(), StatusTone::Failed);
}
