// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/filters.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Filters;

namespace {

ServerRecord server(int players, int maxPlayers, int zeroPing, const char* mark)
{
    ServerRecord record;
    record.playerCount = qint16(players);
    record.maxPlayers = qint16(maxPlayers);
    record.zeroPingCount = zeroPing;
    record.passwordMark = QString::fromLatin1(mark);
    record.tokens = {"si_map", "mp/q4dm1"};
    return record;
}

} // namespace

class TestFilters final : public QObject {
    Q_OBJECT

private slots:
    void patterns_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("matches");
        // clang-format off
        QTest::newRow("literal") << "q4dm5" << "q4dm5" << true;
        QTest::newRow("whole text only") << "q4dm55" << "q4dm5" << false;
        QTest::newRow("star at end") << "mp/q4dm7" << "mp/q4dm*" << true;
        QTest::newRow("star matches none") << "mp/q4dm" << "mp/q4dm*" << true;
        QTest::newRow("star inside") << "si_maxplayers" << "si_*players" << true;
        QTest::newRow("star backtracks") << "abcbcd" << "a*bcd" << true;
        QTest::newRow("two stars") << "xaybz" << "*a*b*" << true;
        QTest::newRow("question mark") << "q4dm1" << "q4dm?" << true;
        QTest::newRow("question mark needs one") << "q4dm" << "q4dm?" << false;
        QTest::newRow("hash is a digit") << "q4dm7" << "q4dm#" << true;
        QTest::newRow("hash not a letter") << "q4dmx" << "q4dm#" << false;
        QTest::newRow("set") << "b" << "[abc]" << true;
        QTest::newRow("not in set") << "d" << "[abc]" << false;
        QTest::newRow("range") << "q4dm3" << "q4dm[1-4]" << true;
        QTest::newRow("out of range") << "q4dm5" << "q4dm[1-4]" << false;
        QTest::newRow("negated set") << "d" << "[!abc]" << true;
        QTest::newRow("negated set excludes") << "a" << "[!abc]" << false;
        QTest::newRow("negated range") << "5" << "[!0-4]" << true;
        QTest::newRow("set then star") << "ctf2" << "[ct]*" << true;
        QTest::newRow("unclosed bracket is literal") << "[ab" << "[ab" << true;
        QTest::newRow("empty pattern, empty text") << "" << "" << true;
        QTest::newRow("empty pattern") << "x" << "" << false;
        QTest::newRow("star alone, empty text") << "" << "*" << true;
        // clang-format on
    }
    void patterns()
    {
        QFETCH(QString, text);
        QFETCH(QString, pattern);
        QFETCH(bool, matches);
        QCOMPARE(matchesPattern(text, pattern), matches);
    }

    void serverTest()
    {
        const QStringList tokens{"si_name", "Arena", "si_map", "MP/Q4DM5", "si_usepass", "0", "si_maxplayers", "16"};
        QVERIFY(passesServerTest(tokens, {}));
        QVERIFY(passesServerTest(tokens, {{"si_map", "mp/q4dm5"}}));
        QVERIFY(passesServerTest(tokens, {{"SI_MAP", "mp/q4dm*"}}));
        QVERIFY(!passesServerTest(tokens, {{"si_map", "mp/q4ctf*"}}));
        // The first key matching the variable decides: si_* finds si_name.
        QVERIFY(passesServerTest(tokens, {{"si_*", "arena"}}));
        QVERIFY(!passesServerTest(tokens, {{"si_*", "16"}}));
        // Every filter must hold.
        QVERIFY(!passesServerTest(tokens, {{"si_map", "mp/q4dm5"}, {"si_usepass", "1"}}));
        // A variable nobody reports hides the server...
        QVERIFY(!passesServerTest(tokens, {{"fs_game", "*"}}));
        // ...but sv_punkbuster "0" passes a server that does not report it.
        QVERIFY(passesServerTest(tokens, {{"sv_punkbuster", "0"}}));
        QVERIFY(passesServerTest(tokens, {{"SV_PunkBuster", "0"}}));
        QVERIFY(!passesServerTest(tokens, {{"sv_punkbuster", "1"}}));
        QVERIFY(!passesServerTest(tokens + QStringList{"sv_punkbuster", "1"}, {{"sv_punkbuster", "0"}}));
        // Placeholder rows never hide anything.
        QVERIFY(passesServerTest(tokens, {{NewFilter, "whatever"}}));
        QVERIFY(!passesServerTest(tokens, {{"<new filter>", QString()}}));
    }

    void builtInFlagsInTheirOrder()
    {
        const BuiltIn all;
        const BuiltIn noEmpty{false, true, true};
        const BuiltIn noFull{true, false, true};
        const BuiltIn noPassworded{true, true, false};
        QVERIFY(isVisible(server(0, 16, 0, " "), {}, all));
        QVERIFY(!isVisible(server(0, 16, 0, " "), {}, noEmpty));
        QVERIFY2(!isVisible(server(3, 16, 3, " "), {}, noEmpty), "only zero-ping players: empty");
        QVERIFY(isVisible(server(3, 16, 2, " "), {}, noEmpty));
        QVERIFY(!isVisible(server(16, 16, 0, " "), {}, noFull));
        QVERIFY(isVisible(server(15, 16, 0, " "), {}, noFull));
        QVERIFY(!isVisible(server(1, 16, 0, "*"), {}, noPassworded));
        QVERIFY(isVisible(server(1, 16, 0, " "), {}, noPassworded));
        QVERIFY(!isVisible(server(1, 16, 0, " "), {{"si_map", "mp/q4dm2"}}, all));
    }

    void aliasesAndNormalisation()
    {
        QCOMPARE(storedVariable(QStringLiteral("Map")), QStringLiteral("si_map"));
        QCOMPARE(storedVariable(QStringLiteral("SERVER")), QStringLiteral("si_name"));
        QCOMPARE(storedVariable(QStringLiteral("name")), QStringLiteral("si_name"));
        QCOMPARE(storedVariable(QStringLiteral("password")), QStringLiteral("si_usepass"));
        QCOMPARE(storedVariable(QStringLiteral("game")), QStringLiteral("gamename"));
        QCOMPARE(storedVariable(QStringLiteral("Type")), QStringLiteral("si_gametype"));
        QCOMPARE(storedVariable(QStringLiteral("gametype")), QStringLiteral("si_gametype"));
        QCOMPARE(storedVariable(QStringLiteral("fs_game")), QStringLiteral("fs_game"));
        QCOMPARE(storedVariable(QStringLiteral("maps")), QStringLiteral("maps"));

        QCOMPARE(storedValue(QStringLiteral("si_usepass"), QStringLiteral("no")), QStringLiteral("0"));
        QCOMPARE(storedValue(QStringLiteral("si_usepass"), QStringLiteral("No way")), QStringLiteral("0"));
        QCOMPARE(storedValue(QStringLiteral("si_usepass"), QString()), QStringLiteral("0"));
        QCOMPARE(storedValue(QStringLiteral("si_usepass"), QStringLiteral("0")), QStringLiteral("0"));
        QCOMPARE(storedValue(QStringLiteral("si_usepass"), QStringLiteral("yes")), QStringLiteral("1"));
        QCOMPARE(storedValue(QStringLiteral("sv_punkbuster"), QStringLiteral("00")), QStringLiteral("1"));
        QCOMPARE(storedValue(QStringLiteral("SI_USEPASS"), QStringLiteral("no")), QStringLiteral("no"));
        QCOMPARE(storedValue(QStringLiteral("si_map"), QStringLiteral("No")), QStringLiteral("No"));
    }

    void fileKeepsEveryLineButTheLoaderReadsTheFirst()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(FileName);
        const QList<VariableFilter> filters{{"si_map", "mp/q4dm5"}, {"sv_punkbuster", "1"}, {NewFilter, ""}};
        QVERIFY(writeFile(path, filters));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("si_map\x01mp/q4dm5\r\nsv_punkbuster\x01"
                                            "1\r\n<New Filter>\x01\r\n"));
        QCOMPARE(readFirstFromFile(path), (VariableFilter{"si_map", "mp/q4dm5"}));
        QVERIFY(writeFile(path, {}));
        QVERIFY(!readFirstFromFile(path));
    }

    void badFilesGiveNoFilter()
    {
        QVERIFY(!readFirstFromFile(QStringLiteral("/nonexistent/filters.dat")));
        QVERIFY(!firstFromFileBytes(QByteArray("no separator here\r\nsi_map\x01x\r\n")));
        QByteArray noise;
        for (int i = 0; i < 5000; ++i)
            noise += char((i * 7) % 256);
        firstFromFileBytes(noise); // must simply not crash
        QCOMPARE(firstFromFileBytes(QByteArray("a\x01\xE9")), (VariableFilter{"a", QStringLiteral("\u00e9")}));
        QVERIFY(!writeFile(QStringLiteral("/nonexistent/dir/filters.dat"), {{"a", "b"}}));
        // A typed value never adds a line or a column to the file.
        QCOMPARE(toFileBytes({{"si_map\r\n", "a\x01"
                                             "b\nc"}}),
                 QByteArray("si_map  \x01"
                            "a b c\r\n"));
    }
};

QTEST_APPLESS_MAIN(TestFilters)
#include "tst_filters.moc"
