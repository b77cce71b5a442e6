// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/serversources.h"

#include <QCoreApplication>
#include <QString>

// What the sources of a query gave, in the window's words: the status
// line's second line names the sources still awaited, then those that gave
// nothing; the tooltip and the time-out box say what each one gave.
struct SourceStatus {
    Q_DECLARE_TR_FUNCTIONS(SourceStatus)

public:
    static SourceStatus of(const QList<SourceReport>& reports);

    // "Querying N Servers...", and the awaited or failed sources below.
    QString queryingText(int count) const;
    // The box of "Master Servers Timed Out": what each source said and
    // where to turn when none works.
    QString timedOutText() const;
    // The status line after "Master Servers Timed Out": why each source
    // gave nothing, short, and where to add one that works.
    QString timedOutLine() const;

    QString summary; // one line per source
    QString failed;  // the hosts that gave nothing, comma-separated
    QString awaited; // the hosts not heard from yet
    QString reasons; // each failed host with its reason in a word or two
};
