// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/mnemonics.h"

#include <QTest>

class TestMnemonics final : public QObject {
    Q_OBJECT

private slots:
    void eachCaptionTakesAFreeLetter_data()
    {
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QStringList>("marked");
        QTest::newRow("word starts first")
            << QStringList{"Query Masters", "Query Favourites", "Query LAN", "Filters"}
            << QStringList{"&Query Masters", "Query &Favourites", "Query &LAN", "F&ilters"};
        QTest::newRow("then any letter, digits too")
            << QStringList{"Aa", "Ab", "A", "1x"} << QStringList{"&Aa", "A&b", "A", "&1x"};
        QTest::newRow("case and accents")
            << QStringList{"\u00e9t\u00e9", "\u00c9T\u00c9"} << QStringList{"&\u00e9t\u00e9", "\u00c9&T\u00c9"};
        QTest::newRow("a literal ampersand stays one")
            << QStringList{"Q && A", "&Old mark", "R&&D"} << QStringList{"&Q && A", "&Old mark", "&R&&D"};
        QTest::newRow("nothing to mark") << QStringList{"-", "", "..."} << QStringList{"-", "", "..."};
    }
    void eachCaptionTakesAFreeLetter()
    {
        QFETCH(QStringList, captions);
        QFETCH(QStringList, marked);
        QSet<QChar> taken;
        for (qsizetype i = 0; i < captions.size(); ++i) {
            const QString result = Mnemonics::mark(captions.at(i), taken);
            QCOMPARE(result, marked.at(i));
            // Marked again (a retranslation), the plain caption comes back.
            QCOMPARE(Mnemonics::plain(result), Mnemonics::plain(captions.at(i)));
        }
    }
};

QTEST_GUILESS_MAIN(TestMnemonics)
#include "tst_mnemonics.moc"
