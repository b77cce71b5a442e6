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
        // name, coded, pairwise, counted, server text and colours, player text and colours
        const auto row = [](const char* name, const char* coded, const char* pairwise, const char* counted,
                            const char* serverText, const char* serverColours, const char* playerText,
                            const char* playerColours) {
            QTest::newRow(name) << QString::fromUtf8(coded) << QString::fromUtf8(pairwise) << QString::fromUtf8(counted)
                                << QString::fromUtf8(serverText) << serverColours << QString::fromUtf8(playerText)
                                << playerColours;
        };
        row("empty", "", "", "", "", "", "", "");
        row("lone caret", "^", "^", "^^", "^^", "WW", "^", "W");
        row("two carets", "^^", "^^", "^^^", "^^^", "WWW", "^^", "WW");
        row("three then code", "^^^1ab", "^^ab", "^b", "^b", "WR", "^^ab", "WWRR");
        row("two then two", "^^12ab", "^2ab", "ab", "ab", "RR", "^2ab", "WRRR");
        row("letter code", "^aX", "X", "X", "X", "R", "X", "R");
        row("white", "^7Hello", "Hello", "Hello", "Hello", "WWWWW", "Hello", "WWWWW");
        row("zero alone", "^0X", "X", "X", "X", "K", "X", "W");
        row("zero after caret", "^^0X", "^X", "", "", "", "^X", "WK");
        row("high character", "^1aé", "aé", "aé", "aé", "RK", "aé", "RW");
        row("SOH", "^2a\u0001b", "a\u0001b", "ab", "a\u0001b", "GGG", "a\u0001b", "GGG");
        row("trailing caret", "^4ab^", "ab^", "ab^^", "ab^^", "BBBB", "ab^", "BBB");
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
