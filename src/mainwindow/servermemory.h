// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QCoreApplication>
#include <QStringList>

class Clock;

// What the program remembers of the servers it asked: each answer of a
// query is noted, and once the query ends (or is cut short) servers.dat
// learns who answered and who missed, so the next query can ask them even
// when no source lists them.
class ServerMemory final {
    Q_DECLARE_TR_FUNCTIONS(ServerMemory)

public:
    ServerMemory(QString knownPath, const Clock& clock);

    const QString& filePath() const { return m_path; }
    void note(const ServerRecord& server);
    void clear() { m_answered.clear(); }
    // Those of asked that did not answer since the last clear, as
    // "address:port".
    QStringList silent(const AddressTable& asked) const;
    // Writes what was noted; a query that finished counts a miss for every
    // asked server that did not answer. False when servers.dat could not
    // be written. What was noted is forgotten either way.
    bool remember(const AddressTable& asked, bool finished);
    // The status line's words when remember() failed.
    QString notSavedText() const;

private:
    QString m_path;
    const Clock& m_clock;
    QList<AddressEntry> m_answered;
};
