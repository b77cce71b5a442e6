// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QObject>
#include <QTimer>

// Gathers answers for a short while before handing them on: the lists take
// rows in batches, not one per datagram, which keeps the window fluid when
// thousands of servers answer within a second.
class AnswerBatcher final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AnswerBatcher)

public:
    static constexpr int IntervalMs = 40;

    explicit AnswerBatcher(QObject* parent = nullptr);

    // The first answer of a batch starts its interval.
    void add(const ServerRecord& server);
    // What is gathered, now; the interval stops.
    QList<ServerRecord> take();
    void clear();

signals:
    // The interval of the first gathered answer is over.
    void due();

private:
    QList<ServerRecord> m_pending;
    QTimer m_timer;
};
