#include "find.h"

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
