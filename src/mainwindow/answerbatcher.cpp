// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/answerbatcher.h"

AnswerBatcher::AnswerBatcher(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(IntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &AnswerBatcher::due);
}

void AnswerBatcher::add(const ServerRecord& server)
{
    m_pending.append(server);
    if (!m_timer.isActive())
        m_timer.start();
}

QList<ServerRecord> AnswerBatcher::take()
{
    m_timer.stop();
    return std::exchange(m_pending, {});
}

void AnswerBatcher::clear()
{
    m_timer.stop();
    m_pending.clear();
}
