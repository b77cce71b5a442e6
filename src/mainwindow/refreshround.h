// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"
#include "widgets/statustone.h"

#include <QObject>

class AnswerBatcher;
class QuerySession;
class ServerMemory;

// A quiet round: the listed servers asked again through the query's pool.
// Their answers update rows in place, nothing is cleared and the query
// buttons stay as they are; at its end the round says who stayed silent.
class RefreshRound final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RefreshRound)

public:
    RefreshRound(QuerySession& session, AnswerBatcher& batcher, ServerMemory& memory, QObject* parent = nullptr);

    bool isActive() const { return m_active; }
    // The pool is prepared and no query runs. False when the session
    // refused the table (said in status; the next round tries again).
    bool start(const AddressTable& table);
    // The user starts a query meanwhile: the round ends quietly and the
    // rows it already heard stay updated.
    void end();
    // Every server was asked and waited for.
    void finish();

signals:
    void updated(const QList<ServerRecord>& batch);
    // How many were asked and which stayed silent ("address:port").
    void ended(int asked, const QStringList& silent);
    void status(const QString& text, StatusTone tone);

private:
    QuerySession& m_session;
    AnswerBatcher& m_batcher;
    ServerMemory& m_memory;
    bool m_active = false;
};
