// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/installfinder.h"
#include "game/keyvalues.h"

#include <QTest>

namespace {

// Steam's libraryfolders.vdf as clients since 2021 write it.
const QByteArray CurrentLibraries = "\"libraryfolders\"\n"
                                    "{\n"
                                    "\t\"0\"\n"
                                    "\t{\n"
                                    "\t\t\"path\"\t\t\"/home/player/.local/share/Steam\"\n"
                                    "\t\t\"label\"\t\t\"\"\n"
                                    "\t\t\"contentid\"\t\t\"4021358712365120935\"\n"
                                    "\t\t\"totalsize\"\t\t\"0\"\n"
                                    "\t\t\"apps\"\n"
                                    "\t\t{\n"
                                    "\t\t\t\"228980\"\t\t\"412367111\"\n"
                                    "\t\t\t\"2210\"\t\t\"2317318016\"\n"
                                    "\t\t}\n"
                                    "\t}\n"
                                    "\t\"1\"\n"
                                    "\t{\n"
                                    "\t\t\"path\"\t\t\"/mnt/games/SteamLibrary\"\n"
                                    "\t\t\"label\"\t\t\"games\"\n"
                                    "\t\t\"apps\"\n"
                                    "\t\t{\n"
                                    "\t\t}\n"
                                    "\t}\n"
                                    "}\n"
                                    "";

// The same file as older clients wrote it.
const QByteArray OldLibraries = "\"LibraryFolders\"\n"
                                "{\n"
                                "\t\"TimeNextStatsReport\"\t\t\"1612345678\"\n"
                                "\t\"ContentStatsID\"\t\t\"-4234923742391\"\n"
                                "\t\"1\"\t\t\"/mnt/games/SteamLibrary\"\n"
                                "\t\"2\"\t\t\"/media/player/Big Disk/Steam\"\n"
                                "}\n"
                                "";

const QByteArray Manifest = "\"AppState\"\n"
                            "{\n"
                            "\t\"appid\"\t\t\"2210\"\n"
                            "\t\"Universe\"\t\t\"1\"\n"
                            "\t\"name\"\t\t\"Quake 4\"\n"
                            "\t\"StateFlags\"\t\t\"4\"\n"
                            "\t\"installdir\"\t\t\"Quake 4\"\n"
                            "\t\"InstalledDepots\"\n"
                            "\t{\n"
                            "\t\t\"2211\"\n"
                            "\t\t{\n"
                            "\t\t\t\"manifest\"\t\t\"6409213513221411413\"\n"
                            "\t\t\t\"size\"\t\t\"2317318016\"\n"
                            "\t\t}\n"
                            "\t}\n"
                            "}\n"
                            "";

QList<KeyValues::Pair> parsed(const QByteArray& text)
{
    const auto pairs = KeyValues::parse(text);
    if (!pairs)
        qFatal("not parsed: %s", text.constData());
    return *pairs;
}

} // namespace

class TestKeyValues final : public QObject {
    Q_OBJECT

private slots:
    void librariesInBothFormats_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("libraries");
        QTest::newRow("current") << CurrentLibraries
                                 << QStringList{"/home/player/.local/share/Steam", "/mnt/games/SteamLibrary"};
        QTest::newRow("old") << OldLibraries << QStringList{"/mnt/games/SteamLibrary", "/media/player/Big Disk/Steam"};
        // Relative paths and other keys are no libraries.
        QTest::newRow("relative") << QByteArray("\"libraryfolders\" { \"0\" { \"path\" \"games\" } \"x\" \"/y\" }")
                                  << QStringList{};
        QTest::newRow("escaped, commented, bare") << QByteArray("// written by hand\n"
                                                                "libraryfolders { 0 \"/a\\\\b \\\"c\\\"\" // why\n"
                                                                "1 { path /d [$LINUX] } }")
                                                  << QStringList{"/a\\b \"c\"", "/d"};
        QTest::newRow("other file") << Manifest << QStringList{};
    }
    void librariesInBothFormats()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, libraries);
        QCOMPARE(InstallFinder::steamLibraries(parsed(file)), libraries);
    }

    void theManifestNamesAPlainFolder_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("folder");
        QTest::newRow("retail") << Manifest << QStringLiteral("Quake 4");
        QTest::newRow("lower case keys") << QByteArray("\"appstate\" { \"INSTALLDIR\" \"Q4\" }")
                                         << QStringLiteral("Q4");
        QTest::newRow("climbs out") << QByteArray("\"AppState\" { \"installdir\" \"../../../etc\" }") << QString();
        QTest::newRow("a path") << QByteArray("\"AppState\" { \"installdir\" \"/etc\" }") << QString();
        QTest::newRow("dot dot") << QByteArray("\"AppState\" { \"installdir\" \"..\" }") << QString();
        QTest::newRow("a block") << QByteArray("\"AppState\" { \"installdir\" { } }") << QString();
        QTest::newRow("none") << QByteArray("\"AppState\" { \"name\" \"Quake 4\" }") << QString();
    }
    void theManifestNamesAPlainFolder()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, folder);
        QCOMPARE(InstallFinder::installDir(parsed(file)), folder);
    }

    void brokenFilesAreRefusedWhole_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("open quote") << QByteArray("\"AppState\" { \"installdir\" \"Quake 4");
        QTest::newRow("open block") << QByteArray("\"AppState\" { \"installdir\" \"Quake 4\"");
        QTest::newRow("stray close") << QByteArray("\"a\" \"b\" }");
        QTest::newRow("key without value") << QByteArray("\"AppState\" { \"installdir\" }");
        QTest::newRow("open condition") << QByteArray("\"a\" \"b\" [$WIN32");
        QByteArray deep;
        for (int i = 0; i < KeyValues::MaxDepth; ++i)
            deep += "\"k\" { ";
        for (int i = 0; i < KeyValues::MaxDepth; ++i)
            deep += "} ";
        QTest::newRow("too deep") << deep;
        QTest::newRow("over 1 MiB") << QByteArray("\"a\" \"") + QByteArray(KeyValues::MaxBytes, 'x') + "\"";
        QTest::newRow("a million braces") << QByteArray(1000000, '{');
    }
    void brokenFilesAreRefusedWhole()
    {
        QFETCH(QByteArray, file);
        QVERIFY(!KeyValues::parse(file));
    }

    void nestingUpToTheLimitAndEmptyFilesAreRead()
    {
        QByteArray deep;
        for (int i = 0; i < KeyValues::MaxDepth - 1; ++i)
            deep += "\"k\" { ";
        deep += "\"leaf\" \"v\" ";
        for (int i = 0; i < KeyValues::MaxDepth - 1; ++i)
            deep += "} ";
        const auto pairs = parsed(deep);
        const KeyValues::Pair* at = &pairs.first();
        for (int i = 0; i < KeyValues::MaxDepth - 2; ++i)
            at = at->find(u"k");
        QCOMPARE(at->text(u"leaf"), QStringLiteral("v"));
        QVERIFY(parsed(QByteArray()).isEmpty());
        QVERIFY(parsed("// only a comment").isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestKeyValues)
#include "tst_keyvalues.moc"
