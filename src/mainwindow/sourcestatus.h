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
    // The sources the settings named beyond what one query asks.
    struct LeftOut {
        int masters = 0;
        int lists = 0;
    };
    // The status line names this many sources, then says how many more.
    static constexpr int NamesShown = 3;
    // The time-out box says what this many sources gave, then how many more:
    // its buttons stay on the screen however many sources there are.
    static constexpr int LinesInBox = 12;

    static SourceStatus of(const QList<SourceReport>& reports, LeftOut leftOut);
    // "a, b, c and 5 more": the first few names, then a count.
    static QString names(QStringList names, const QString& separator = QStringLiteral(", "));

    // "Querying N Servers...", and the awaited or failed sources below.
    QString queryingText(int count) const;
    // The box of "Master Servers Timed Out": what each source said and
    // where to turn when none works.
    QString timedOutText() const;
    // The status line after "Master Servers Timed Out": why each source
    // gave nothing, short, and where to add one that works.
    QString timedOutLine() const;

    QString summary; // the sources left out, if any, then one line per source
    QString leftOut; // a line each for the masters and the lists left out
    QString failed;  // the hosts that gave nothing, comma-separated
    QString awaited; // the hosts not heard from yet
    QString reasons; // each failed host with its reason in a word or two
};
