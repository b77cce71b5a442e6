// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/settingscodec.h"
#include "userdata/settingsstore.h"
#include "widgets/columnlayout.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <limits>

using namespace ColumnLayout;

namespace {

// A list with four columns whose design-time widths are 100, 110, 120, 130.
struct List {
    QStandardItemModel model{0, 4};
    QTreeView view;
    List()
    {
        view.setModel(&model);
        view.header()->setStretchLastSection(false);
        view.header()->setSectionsMovable(true);
        for (int column = 0; column < 4; ++column)
            view.header()->resizeSection(column, 100 + 10 * column);
    }
    QHeaderView& header() { return *view.header(); }
};

} // namespace

class TestColumnLayout final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_files = 0;
    SettingsStore freshStore() { return SettingsStore(m_dir.filePath(QString::number(++m_files) + ".ini")); }

private slots:
    void permutations()
    {
        QVERIFY(isPermutation({2, 0, 1}, 3));
        QVERIFY(isPermutation({}, 0));
        QVERIFY(!isPermutation({0, 0, 1}, 3));
        QVERIFY(!isPermutation({0, 1}, 3));
        QVERIFY(!isPermutation({0, 1, 3}, 3));
        QVERIFY(!isPermutation({-1, 0, 1}, 3));
    }

    void firstStartKeepsDesignTimeLayout()
    {
        const SettingsStore store = freshStore();
        List list;
        restore(store, u"S", list.header());
        QCOMPARE(displayOrder(list.header()), (QList<int>{0, 1, 2, 3}));
        for (int column = 0; column < 4; ++column)
            QCOMPARE(list.header().sectionSize(column), 100 + 10 * column);
    }

    void orderEntryHoldsTheColumnShownAtEachPosition()
    {
        SettingsStore store = freshStore();
        List list;
        list.header().moveSection(3, 0); // column 3 dragged to the front
        saveOrder(store, u"S", list.header());
        QCOMPARE(store.get(u"SColumnOrder0"), QStringLiteral("3"));
        QCOMPARE(store.get(u"SColumnOrder1"), QStringLiteral("0"));
        QCOMPARE(store.get(u"SColumnOrder3"), QStringLiteral("2"));

        List restored;
        restore(store, u"S", restored.header());
        QCOMPARE(displayOrder(restored.header()), (QList<int>{3, 0, 1, 2}));
    }

    void widthKeysFollowTheColumnNotItsPosition()
    {
        SettingsStore store = freshStore();
        List list;
        list.header().moveSection(3, 0);
        list.header().resizeSection(3, 250);
        list.header().resizeSection(0, 60);
        saveOrder(store, u"P", list.header());
        saveWidths(store, u"P", list.header());
        QCOMPARE(store.get(u"PColumnWidth3"), QStringLiteral("250"));
        QCOMPARE(store.get(u"PColumnWidth0"), QStringLiteral("60"));

        List restored;
        restore(store, u"P", restored.header());
        QCOMPARE(restored.header().sectionSize(3), 250);
        QCOMPARE(restored.header().sectionSize(0), 60);
        QCOMPARE(restored.header().logicalIndex(0), 3);
    }

    void orderThatIsNoPermutationKeepsDesignTime_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::newRow("duplicate") << QStringList{"1", "1", "2", "3"};
        QTest::newRow("out of range") << QStringList{"0", "1", "2", "9"};
        QTest::newRow("garbage reads 0") << QStringList{"2", "x", "0", "3"};
        QTest::newRow("negative") << QStringList{"-1", "0", "1", "2"};
    }
    void orderThatIsNoPermutationKeepsDesignTime()
    {
        QFETCH(QStringList, stored);
        SettingsStore store = freshStore();
        for (int position = 0; position < stored.size(); ++position)
            store.save(SettingsCodec::columnOrderKey(u"SI", position), stored[position]);
        List list;
        restore(store, u"SI", list.header());
        QCOMPARE(displayOrder(list.header()), (QList<int>{0, 1, 2, 3}));
    }

    void partlyWrittenOrderFillsMissingPositions()
    {
        // Positions 2 and 3 missing read as 2 and 3; with 0 and 1 swapped
        // that is still a complete order.
        SettingsStore store = freshStore();
        store.save(u"SPColumnOrder0", QStringLiteral("1"));
        store.save(u"SPColumnOrder1", QStringLiteral("0"));
        QCOMPARE(readOrder(store, u"SP", 4), (QList<int>{1, 0, 2, 3}));
        List list;
        restore(store, u"SP", list.header());
        QCOMPARE(displayOrder(list.header()), (QList<int>{1, 0, 2, 3}));
    }

    void widthThatIsNotANumberIsZero()
    {
        SettingsStore store = freshStore();
        store.save(u"SColumnWidth1", QStringLiteral("wide"));
        store.save(u"SColumnWidth2", QStringLiteral("75px"));
        List list;
        restore(store, u"S", list.header());
        QCOMPARE(list.header().sectionSize(1), 0);
        QCOMPARE(list.header().sectionSize(2), 75);
        QCOMPARE(list.header().sectionSize(3), 130);
    }

    // The last column is optional: hidden, it leaves a list's keys as they
    // were; once shown, moved and hidden again its place and width are kept.
    void anOptionalColumnKeepsItsPlaceAndWidth()
    {
        SettingsStore store = freshStore();
        {
            List list;
            list.header().hideSection(3);
            restore(store, u"S", list.header());
            saveOrder(store, u"S", list.header());
            saveWidths(store, u"S", list.header());
            QVERIFY(store.contains(u"SColumnOrder2"));
            QVERIFY(!store.contains(u"SColumnOrder3"));
            QVERIFY(!store.contains(u"SColumnWidth3"));
            QCOMPARE(shownOnly(readOrder(store, u"S", 4), list.header()), (QList<int>{0, 1, 2}));

            list.header().showSection(3);
            QCOMPARE(list.header().sectionSize(3), 130); // its design width
            list.header().resizeSection(3, 90);
            list.header().moveSection(3, 0);
            saveShown(store, u"S", 3, true);
            saveOrder(store, u"S", list.header());
            saveWidths(store, u"S", list.header());
            list.header().hideSection(3);
            saveShown(store, u"S", 3, false);
            saveOrder(store, u"S", list.header());
            saveWidths(store, u"S", list.header());
            QCOMPARE(store.get(u"SColumnWidth3"), QStringLiteral("90"));
            QCOMPARE(shownOnly(readOrder(store, u"S", 4), list.header()), (QList<int>{0, 1, 2}));
        }
        saveShown(store, u"S", 3, true);
        List again;
        again.header().hideSection(3);
        restore(store, u"S", again.header());
        QVERIFY(!again.header().isSectionHidden(3));
        QCOMPARE(displayOrder(again.header()), (QList<int>{3, 0, 1, 2}));
        QCOMPARE(again.header().sectionSize(3), 90);
        // A column the list always shows is never hidden by the file.
        store.save(u"SColumnShown1", QStringLiteral("0"));
        List third;
        restore(store, u"S", third.header());
        QVERIFY(!third.header().isSectionHidden(1));
    }

    void sortStateDefaultsAndRoundTrip()
    {
        SettingsStore store = freshStore();
        QCOMPARE(readSort(store, u"S", SortState{}), (SortState{0, 1}));
        saveSort(store, u"PL", SortState{3, 0});
        QCOMPARE(store.get(u"PLSortKey"), QStringLiteral("3"));
        QCOMPARE(store.get(u"PLSortOrder"), QStringLiteral("0"));
        QCOMPARE(readSort(store, u"PL", SortState{}), (SortState{3, 0}));

        // Every click flips, whatever number a hand-edited file holds; a
        // constant evaluation refuses to compile an overflow.
        constexpr SortState top = SortState{0, std::numeric_limits<int>::max()}.flippedTo(2);
        QCOMPARE(top, (SortState{2, 0}));
        QCOMPARE((SortState{0, 0}).flippedTo(0), (SortState{0, 1}));
        QCOMPARE((SortState{0, -1}).flippedTo(1), (SortState{1, 0}));
        store.save(u"SSortOrder", QStringLiteral("2147483647"));
        QCOMPARE(readSort(store, u"S", SortState{}).flippedTo(0), (SortState{0, 0}));
    }
};

QTEST_MAIN(TestColumnLayout)
#include "tst_columnlayout.moc"
