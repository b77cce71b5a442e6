#include "colourcodes.h"

#include <QTest>

using namespace ColourCodes;

class TestColourCodes final : public QObject {
    Q_OBJECT

private slots:
    void pairwise_data()
    {
        QTest::addColumn<QString>("coded");
        QTest::addColumn<QString>("plain");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("code") << "^1Name"
                              << "Name";
        QTest::newRow("letter code") << "^aX"
                                     << "X";
        QTest::newRow("caret alone") << "^"
                                     << "^";
        QTest::newRow("two carets") << "^^"
                                    << "^^";
        QTest::newRow("double caret then code") << "^^1ab"
                                                << "^ab";
        QTest::newRow("trailing caret") << "ab^"
                                        << "ab^";
        QTest::newRow("codes everywhere") << "^1R^2G^3Y"
                                          << "RGY";
        QTest::newRow("SOH kept") << "a\x01"
                                     "b"
                                  << "a\x01"
                                     "b";
    }
    void pairwise()
    {
        QFETCH(QString, coded);
        QFETCH(QString, plain);
        QCOMPARE(StripColourCodes(coded), plain);
    }

    void counted_data()
    {
        QTest::addColumn<QString>("coded");
        QTest::addColumn<QString>("plain");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("code") << "^1Name"
                              << "Name";
        QTest::newRow("caret alone gives two") << "^"
                                               << "^^";
        QTest::newRow("two carets give three") << "^^"
                                               << "^^^";
        QTest::newRow("two pending swallow two") << "^^12ab"
                                                 << "ab";
        QTest::newRow("three pending give one back") << "^^^1ab"
                                                     << "^b";
        QTest::newRow("five pending") << "^^^^^xyzw"
                                      << "^^^zw";
        QTest::newRow("trailing caret") << "ab^"
                                        << "ab^^";
        QTest::newRow("SOH dropped, not counted") << "^\x01"
                                                     "1a\x01"
                                                     "b"
                                                  << "ab";
        QTest::newRow("high characters kept") << QStringLiteral("\u00e9^7\u00ff") << QStringLiteral("\u00e9\u00ff");
    }
    void counted()
    {
        QFETCH(QString, coded);
        QFETCH(QString, plain);
        QCOMPARE(StripColourCodesCounted(coded), plain);
    }
};

QTEST_APPLESS_MAIN(TestColourCodes)
#include "tst_colourcodes.moc"
