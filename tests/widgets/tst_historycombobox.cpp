// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/historycombobox.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

namespace {

void pressDel(HistoryComboBox& box)
{
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(127)));
    QCoreApplication::sendEvent(&box, &press);
}

void clear(HistoryComboBox& box)
{
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Backspace);
}

} // namespace

// Keys go to the box, as they do when it has the focus: its line edit's
// focus proxy is the box.
class TestHistoryComboBox final : public QObject {
    Q_OBJECT

private slots:
    void enterRemembersEachTextOnce()
    {
        HistoryComboBox box;
        QSignalSpy enter(&box, &HistoryComboBox::enterPressed);
        connect(&box, &HistoryComboBox::enterPressed, &box, [&box] { box.remember(box.currentText()); });
        box.show();
        QTest::keyClicks(&box, QStringLiteral("Abc"));
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_Enter);
        clear(box);
        QTest::keyClicks(&box, QStringLiteral("abc"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(enter.count(), 3);
        QCOMPARE(box.entries(), (QStringList{"Abc", "abc"}));
        QCOMPARE(box.currentText(), QStringLiteral("abc"));
        // An empty text is a real entry too.
        clear(box);
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.entries(), (QStringList{"Abc", "abc", ""}));
    }

    void setEntriesKeepsTheText()
    {
        HistoryComboBox box;
        box.setEditText(QStringLiteral("Player"));
        box.setEntries({"one", "two"});
        QCOMPARE(box.currentText(), QStringLiteral("Player"));
        QCOMPARE(box.entries(), (QStringList{"one", "two"}));
        QCOMPARE(box.pickedIndex(), -1);
    }

    void deleteKeysForgetAPickedEntry_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Delete") << int(Qt::Key_Delete);
        QTest::newRow("Backspace") << int(Qt::Key_Backspace);
        QTest::newRow("DEL character") << 127;
    }
    void deleteKeysForgetAPickedEntry()
    {
        QFETCH(int, key);
        HistoryComboBox box;
        box.setEntries({"one", "two", "three"});
        box.show();
        QTest::keyClick(&box, Qt::Key_Down); // picks "one"
        QTest::keyClick(&box, Qt::Key_Down); // picks "two"
        QCOMPARE(box.pickedIndex(), 1);
        QCOMPARE(box.currentText(), QStringLiteral("two"));
        if (key == 127)
            pressDel(box);
        else
            QTest::keyClick(&box, Qt::Key(key));
        QCOMPARE(box.entries(), (QStringList{"one", "three"}));
        QCOMPARE(box.pickedIndex(), -1);
        QVERIFY(box.currentText().startsWith(QStringLiteral("tw")));
    }

    // Qt's own Enter would pick the matching entry and report it chosen.
    void enterOnARememberedTextIsNotAPick()
    {
        HistoryComboBox box;
        box.setEntries({"one", "two"});
        QSignalSpy activated(&box, &QComboBox::activated);
        QSignalSpy edited(&box, &QComboBox::editTextChanged);
        box.show();
        QTest::keyClicks(&box, QStringLiteral("two"));
        const int edits = edited.count();
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(activated.count(), 0);
        QCOMPARE(box.pickedIndex(), -1);
        // Remembering does not touch the text either.
        box.remember(QStringLiteral("three"));
        QCOMPARE(edited.count(), edits);
        QCOMPARE(box.currentText(), QStringLiteral("two"));
        // Nor does leaving the box with an entry's text in it pick it.
        QSignalSpy picked(&box, &HistoryComboBox::picked);
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&box, &out);
        QCOMPARE(picked.count(), 0);
        QCOMPARE(box.pickedIndex(), -1);
        QTest::keyClick(&box, Qt::Key_Delete);
        QCOMPARE(box.entries(), (QStringList{"one", "two", "three"}));
    }

    void editingAfterPickingProtectsTheEntries()
    {
        HistoryComboBox box;
        box.setEntries({"one", "two"});
        box.show();
        QTest::keyClick(&box, Qt::Key_Down);
        QTest::keyClicks(&box, QStringLiteral("x"));
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClick(&box, Qt::Key_Delete);
        pressDel(box);
        QCOMPARE(box.entries(), (QStringList{"one", "two"}));
    }

    void typingAloneNeverForgets()
    {
        HistoryComboBox box;
        box.setEntries({"abc"});
        box.show();
        QTest::keyClicks(&box, QStringLiteral("abc"));
        QTest::keyClick(&box, Qt::Key_Backspace);
        QCOMPARE(box.entries(), (QStringList{"abc"}));
        QCOMPARE(box.currentText(), QStringLiteral("ab"));
    }
};

QTEST_MAIN(TestHistoryComboBox)
#include "tst_historycombobox.moc"
