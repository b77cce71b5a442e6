// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/colourcodes.h"

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
