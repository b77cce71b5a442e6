// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/themefile.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace ThemeFile;

namespace {

Theme blue()
{
    Theme theme = systemTheme(QStringLiteral("Blue"));
    theme.formBack = rgbColour(0, 0, 128);
    theme.listText = rgbColour(255, 255, 0);
    theme.progressType = Smooth;
    theme.tabStyle = LargeTabs;
    return theme;
}

} // namespace

class TestThemeFile final : public QObject {
    Q_OBJECT

private slots:
    void writesTheDocumentedBytes()
    {
        Themes themes;
        saveTheme(themes, systemTheme());
        saveTheme(themes, blue());
        QCOMPARE(themes.current, QStringLiteral("Blue"));
        QCOMPARE(toBytes(themes), QByteArray("CurrentTheme=Blue\r\n"
                                             "[Default]\r\n"
                                             "frmBack:-2147483633\r\nlstBack:-2147483643\r\nlstFore:-2147483640\r\n"
                                             "txtBack:-2147483643\r\ntxtFore:-2147483640\r\ncmbScrl:1\r\n"
                                             "prbBack:-2147483633\r\nprbFore:-2147483640\r\ncmbTabS:0\r\n"
                                             "[Blue]\r\n"
                                             "frmBack:8388608\r\nlstBack:-2147483643\r\nlstFore:65535\r\n"
                                             "txtBack:-2147483643\r\ntxtFore:-2147483640\r\ncmbScrl:2\r\n"
                                             "prbBack:-2147483633\r\nprbFore:-2147483640\r\ncmbTabS:1\r\n"));
        QCOMPARE(parse(toBytes(themes)), themes);
    }

    void savingANameAgainReplacesIt()
    {
        Themes themes;
        saveTheme(themes, blue());
        saveTheme(themes, systemTheme());
        Theme changed = blue();
        changed.listBack = rgbColour(1, 2, 3);
        saveTheme(themes, changed);
        QCOMPARE(themes.list.size(), 2);
        QCOMPARE(themes.list.first(), changed);
        QCOMPARE(currentTheme(themes), changed);
    }

    void readerEdgeCases()
    {
        // Only a current name: no theme to apply.
        const Themes lonely = parse("CurrentTheme=Blue");
        QCOMPARE(lonely.current, QStringLiteral("Blue"));
        QVERIFY(lonely.list.isEmpty());
        QVERIFY(!currentTheme(lonely));

        // Two of one name: the first wins. Keys before any section, unknown
        // keys and short lines are ignored; numbers are read leniently; bare
        // line feeds work as well.
        const Themes two = parse("lstBack:5\r\nCurrentTheme=Twin\r\n[Twin]\r\nfrmBack:12abc\r\nnoise\r\n"
                                 "lstBack: 7\n[Twin]\nfrmBack:99\ncmbTabS:99999\n");
        QCOMPARE(two.list.size(), 2);
        QCOMPARE(currentTheme(two)->formBack, 12);
        QCOMPARE(currentTheme(two)->listBack, 7);
        QCOMPARE(two.list.at(1).tabStyle, qint16(32767));
        // No current line: "Default".
        QCOMPARE(parse("[Default]\r\n").current, DefaultName);
        QVERIFY(currentTheme(parse("[Default]\r\n")));
    }

    void emptyNamesStayInMemoryButAreNotWritten()
    {
        const Themes themes = parse("CurrentTheme=\r\n[]\r\nfrmBack:1\r\n[Kept]\r\nfrmBack:2\r\n");
        QCOMPARE(themes.list.size(), 2);
        QCOMPARE(currentTheme(themes)->formBack, 1);
        const QByteArray written = toBytes(themes);
        QVERIFY(written.startsWith("CurrentTheme=\r\n[Kept]\r\n"));
        // A name with a line break cannot split the file.
        Themes odd;
        saveTheme(odd, systemTheme(QStringLiteral("Two\r\nLines")));
        QCOMPARE(parse(toBytes(odd)).list.size(), 1);
    }

    void missingUnreadableAndUnwritableFiles()
    {
        QTemporaryDir dir;
        const QString path = filePath(dir.path());
        QVERIFY(!readFile(path));
        Themes themes;
        saveTheme(themes, blue());
        QVERIFY(writeFile(path, themes));
        QCOMPARE(readFile(path), themes);
        // A folder where the file should be: reading and writing fail cleanly.
        const QString blocked = filePath(dir.filePath(QStringLiteral("sub")));
        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("sub/") + FileName));
        QVERIFY(!readFile(blocked));
        QVERIFY(!writeFile(blocked, themes));
    }
};

QTEST_APPLESS_MAIN(TestThemeFile)
#include "tst_themefile.moc"
