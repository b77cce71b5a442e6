// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/contrast.h"
#include "presentation/multicolorlabel.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>

class TestMulticolorLabel final : public QObject {
    Q_OBJECT

private slots:
    void captionAndColours()
    {
        MulticolorLabel label;
        QSignalSpy changes(&label, &MulticolorLabel::propertyChanged);
        label.setCaption(QStringLiteral("abc"));
        QCOMPARE(label.property("Caption").toString(), QStringLiteral("abc"));
        label.setColor(2, Qt::red);
        QCOMPARE(label.color(2), QColor(Qt::red));
        QVERIFY(!label.color(0).isValid());
        QVERIFY(!label.color(4).isValid());
        label.setColor(9, Qt::blue); // out of range: ignored
        // A longer caption keeps the colours it had.
        label.setCaption(QStringLiteral("abcd"));
        QCOMPARE(label.color(2), QColor(Qt::red));
        QCOMPARE(label.color(4), QColor(Qt::black));
        label.setCaption(QStringLiteral("a"));
        QVERIFY(!label.color(2).isValid());
        QCOMPARE(changes.count(), 4);
        QCOMPARE(changes.at(1).at(0).toString(), QStringLiteral("Color"));
        label.setBackColor(Qt::darkGray);
        QCOMPARE(changes.last().at(0).toString(), QStringLiteral("BackColor"));
        QCOMPARE(label.backColor(), QColor(Qt::darkGray));
    }

    void drawsEachCharacterInItsColour()
    {
        MulticolorLabel label;
        label.setBackColor(Qt::black);
        QFont big = label.font();
        big.setPixelSize(24);
        label.setFont(big);
        label.setColouredText(ColourCodes::ShowServerName(u"^1WW^2WW"));
        QCOMPARE(label.caption(), QStringLiteral("WWWW"));
        QCOMPARE(label.color(1), QColor(Qt::red));
        QCOMPARE(label.color(4), QColor(Qt::green));
        label.resize(label.sizeHint());
        const QImage image = label.grab().toImage();
        bool red = false;
        bool green = false;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                red = red || (pixel.red() > 200 && pixel.green() < 60 && x < image.width() / 2);
                green = green || (pixel.green() > 200 && pixel.red() < 60 && x >= image.width() / 2);
            }
        }
        QVERIFY2(red && green, "red on the left, green on the right");
    }

    void contrastFollowsTheWcagFormula()
    {
        QCOMPARE(qRound(Contrast::ratio(Qt::black, Qt::white)), 21);
        QCOMPARE(Contrast::ratio(Qt::red, Qt::red), 1.0);
        // The window grey and white: far below legible.
        QVERIFY(Contrast::ratio(QColor(239, 239, 239), Qt::white) < 1.2);
        QVERIFY(Contrast::ratio(QColor(118, 118, 118), Qt::white) >= 4.5); // the web's lightest legible grey
        QCOMPARE(Contrast::outlineFor(Qt::white), QColor(Qt::black));
        QCOMPARE(Contrast::outlineFor(Qt::darkBlue), QColor(Qt::white));
    }

    void lightCharactersOnALightBackgroundGetAnOutline()
    {
        // "^7" white on the window's light grey: the white stays, and dark
        // pixels around it make it readable. Red on the same grey needs none.
        const auto darkPixels = [](const QString& coded) {
            MulticolorLabel label;
            label.setBackColor(QColor(239, 239, 239));
            QFont big = label.font();
            big.setPixelSize(24);
            label.setFont(big);
            label.setColouredText(ColourCodes::ShowPlayerName(coded));
            label.resize(label.sizeHint());
            const QImage image = label.grab().toImage();
            int dark = 0;
            int white = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    dark += pixel.lightness() < 80;
                    white += pixel.red() > 250 && pixel.green() > 250 && pixel.blue() > 250;
                }
            }
            return std::pair{dark, white};
        };
        const auto [outlined, white] = darkPixels(QStringLiteral("^7WW"));
        QVERIFY2(outlined > 20, qPrintable(QString::number(outlined)));
        QVERIFY(white > 0);
        QCOMPARE(darkPixels(QStringLiteral("^1WW")).first, 0);
    }
};

QTEST_MAIN(TestMulticolorLabel)
#include "tst_multicolorlabel.moc"
