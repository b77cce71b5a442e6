// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/find.h"

#include <QStringList>
#include <QTest>

class TestFind final : public QObject {
    Q_OBJECT

    static int find(const QStringList& rows, const char* text, int start)
    {
        return Find::findRow(
            int(rows.size()), [&rows](int row) { return rows.at(row); }, QString::fromLatin1(text), start);
    }

private slots:
    void prefixBeatsANearerSubstring()
    {
        const QStringList rows{"zero", "xabc", "other", "more", "abcd"};
        QCOMPARE(find(rows, "abc", 0), 4);
        QCOMPARE(find(rows, "ABC", 0), 4);
        QCOMPARE(find(rows, "bc", 0), 1); // no prefix anywhere: first substring
    }

    void wrapsToTheTopWhenStartedBelowIt()
    {
        const QStringList rows{"abc", "x", "y"};
        QCOMPARE(find(rows, "abc", 1), 0);
        QCOMPARE(find(rows, "nothing", 2), -1);
        QCOMPARE(find(rows, "y", 2), 2);
        QCOMPARE(find({}, "a", 0), -1);
    }

    // "Next Friend": after the selection, round to the top, never the
    // selected row again unless it is the only one.
    void nextMarkedWrapsRound()
    {
        const QList<bool> marks{false, true, false, true, false};
        const auto marked = [&marks](int row) { return marks.at(row); };
        QCOMPARE(Find::nextMarked(5, marked, -1), 1);
        QCOMPARE(Find::nextMarked(5, marked, 1), 3);
        QCOMPARE(Find::nextMarked(5, marked, 3), 1);
        QCOMPARE(Find::nextMarked(5, marked, 4), 1);
        QCOMPARE(Find::nextMarked(5, marked, 9), 1); // a stale selection: from the top
        QCOMPARE(Find::nextMarked(
                     5, [](int row) { return row == 2; }, 2),
                 2);
        QCOMPARE(Find::nextMarked(
                     5, [](int) { return false; }, 0),
                 -1);
        QCOMPARE(Find::nextMarked(0, marked, -1), -1);
    }

    void startRowFollowsTheMarker()
    {
        QCOMPARE(Find::startRow(QStringLiteral("1"), 2, 5), 3);
        QCOMPARE(Find::startRow(QStringLiteral("1"), 4, 5), 0);  // past the last row: the first
        QCOMPARE(Find::startRow(QStringLiteral("1"), -1, 5), 0); // nothing selected: the first
        QCOMPARE(Find::startRow(QStringLiteral("0"), 2, 5), 0);
        QCOMPARE(Find::startRow(QString(), 2, 5), 0);
    }
};

QTEST_APPLESS_MAIN(TestFind)
#include "tst_find.moc"
