// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/copytext.h"

#include <QTest>

using CopyText::What;

namespace {

// Three rows of three columns; cells read "r<row>c<column>".
CopyText::List table(int selected, int clicked, QList<int> order = {0, 1, 2})
{
    CopyText::List list;
    list.rowCount = 3;
    list.cell = [](int row, int column) { return QStringLiteral("r%1c%2").arg(row).arg(column); };
    list.selectedRow = selected;
    list.clickedColumn = clicked;
    list.displayOrder = order;
    return list;
}

} // namespace

class TestCopyText final : public QObject {
    Q_OBJECT

private slots:
    void theFourCommands()
    {
        QCOMPARE(*CopyText::build(What::Cell, table(1, 2)), QStringLiteral("r1c2"));
        QCOMPARE(*CopyText::build(What::Column, table(1, 0)), QStringLiteral("r0c0\r\nr1c0\r\nr2c0"));
        QCOMPARE(*CopyText::build(What::Row, table(2, 0)), QStringLiteral("r2c0     r2c1     r2c2"));
        QCOMPARE(*CopyText::build(What::All, table(0, 0)),
                 QStringLiteral("r0c0     r0c1     r0c2\r\nr1c0     r1c1     r1c2\r\nr2c0     r2c1     r2c2"));
    }

    void rowsFollowTheDraggedOrder()
    {
        QCOMPARE(*CopyText::build(What::Row, table(0, 0, {2, 0, 1})), QStringLiteral("r0c2     r0c0     r0c1"));
    }

    void editorsPutAColumnOnOneLine()
    {
        CopyText::List list = table(0, 1);
        list.columnJoin = CopyText::CellSeparator;
        QCOMPARE(*CopyText::build(What::Column, list), QStringLiteral("r0c1     r1c1     r2c1"));
    }

    void oneRowHasNoTrailingLineEnd()
    {
        CopyText::List list = table(0, 0);
        list.rowCount = 1;
        QCOMPARE(*CopyText::build(What::All, list), QStringLiteral("r0c0     r0c1     r0c2"));
    }

    void verticalTabBecomesABar()
    {
        CopyText::List list = table(0, 0);
        list.cell = [](int, int) {
            return QStringLiteral("a\x0b"
                                  "b");
        };
        QCOMPARE(*CopyText::build(What::Cell, list), QStringLiteral("a|b"));
    }

    void nothingWithoutASelectedRow()
    {
        for (What what : {What::Cell, What::Column, What::Row, What::All})
            QVERIFY(!CopyText::build(what, table(-1, 0)));
        QVERIFY(!CopyText::build(What::Cell, table(3, 0)));
    }
};

QTEST_APPLESS_MAIN(TestCopyText)
#include "tst_copytext.moc"
