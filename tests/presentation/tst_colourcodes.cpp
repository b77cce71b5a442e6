#include "colourcodes.h"

#include <QTest>

using namespace ColourCodes;

namespace {

// One letter per character: blacK, Red, Green, Yellow, Blue, Cyan, Magenta, White.
QString letters(const ColouredText& coloured)
{
    static const char names[] = "KRGYBCMW";
    QString out;
    for (Rgb colour : coloured.colours) {
        for (int code = 0; code < 8; ++code) {
            if (codeColour(QChar(u'0' + code)) == colour)
                out += QLatin1Char(names[code]);
        }
    }
    return out;
}

} // namespace

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

    // Every branch of both grammars, through all four operations.
    void allFourOperations_data()
    {
        QTest::addColumn<QString>("coded");
        QTest::addColumn<QString>("pairwise");
        QTest::addColumn<QString>("counted");
        QTest::addColumn<QString>("serverText");
        QTest::addColumn<QString>("serverColours");
        QTest::addColumn<QString>("playerText");
        QTest::addColumn<QString>("playerColours");
        QTest::newRow("empty") << ""
                               << ""
                               << ""
                               << ""
                               << ""
                               << ""
                               << "";
        QTest::newRow("lone caret") << "^"
                                    << "^"
                                    << "^^"
                                    << "^^"
                                    << "WW"
                                    << "^"
                                    << "W";
        QTest::newRow("two carets") << "^^"
                                    << "^^"
                                    << "^^^"
                                    << "^^^"
                                    << "WWW"
                                    << "^^"
                                    << "WW";
        QTest::newRow("three then code") << "^^^1ab"
                                         << "^^ab"
                                         << "^b"
                                         << "^b"
                                         << "WR"
                                         << "^^ab"
                                         << "WWRR";
        QTest::newRow("two then two") << "^^12ab"
                                      << "^2ab"
                                      << "ab"
                                      << "ab"
                                      << "RR"
                                      << "^2ab"
                                      << "WRRR";
        QTest::newRow("letter code") << "^aX"
                                     << "X"
                                     << "X"
                                     << "X"
                                     << "R"
                                     << "X"
                                     << "R";
        QTest::newRow("white") << "^7Hello"
                               << "Hello"
                               << "Hello"
                               << "Hello"
                               << "WWWWW"
                               << "Hello"
                               << "WWWWW";
        QTest::newRow("zero alone") << "^0X"
                                    << "X"
                                    << "X"
                                    << "X"
                                    << "K"
                                    << "X"
                                    << "W";
        QTest::newRow("zero after caret") << "^^0X"
                                          << "^X"
                                          << ""
                                          << ""
                                          << ""
                                          << "^X"
                                          << "WK";
        QTest::newRow("high character") << QStringLiteral("^1aé") << QStringLiteral("aé") << QStringLiteral("aé")
                                        << QStringLiteral("aé") << "RK" << QStringLiteral("aé") << "RW";
        QTest::newRow("SOH") << "^2a\x01"
                                "b"
                             << "a\x01"
                                "b"
                             << "ab"
                             << "a\x01"
                                "b"
                             << "GGG"
                             << "a\x01"
                                "b"
                             << "GGG";
        QTest::newRow("trailing caret") << "^4ab^"
                                        << "ab^"
                                        << "ab^^"
                                        << "ab^^"
                                        << "BBBB"
                                        << "ab^"
                                        << "BBB";
    }
    void allFourOperations()
    {
        QFETCH(QString, coded);
        QFETCH(QString, pairwise);
        QFETCH(QString, counted);
        QFETCH(QString, serverText);
        QFETCH(QString, serverColours);
        QFETCH(QString, playerText);
        QFETCH(QString, playerColours);
        QCOMPARE(StripColourCodes(coded), pairwise);
        QCOMPARE(StripColourCodesCounted(coded), counted);
        const ColouredText server = ShowServerName(coded);
        QCOMPARE(server.text, serverText);
        QCOMPARE(letters(server), serverColours);
        const ColouredText player = ShowPlayerName(coded);
        QCOMPARE(player.text, playerText);
        QCOMPARE(letters(player), playerColours);
        // Each label shows exactly what its stripping twin gives, but for
        // the SOH the counted stripper drops.
        QCOMPARE(StripColourCodes(coded), player.text);
        QCOMPARE(StripColourCodesCounted(coded), QString(server.text).remove(QChar(1)));
    }
};

QTEST_APPLESS_MAIN(TestColourCodes)
#include "tst_colourcodes.moc"
