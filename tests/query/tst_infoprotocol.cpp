// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/infoprotocol.h"

#include <QFile>
#include <QTest>

using namespace InfoProtocol;

namespace {

QByteArray keyValues(std::initializer_list<const char*> tokens)
{
    QByteArray bytes;
    for (const char* token : tokens) {
        bytes += token;
        bytes += '\0';
    }
    return bytes;
}

// client number, ping, rate (four bytes, the high two ignored), name, clan
QByteArray player(int number, int ping, int rate, const QByteArray& name, const QByteArray& clan)
{
    QByteArray bytes;
    bytes += char(number);
    bytes += char(ping & 0xFF);
    bytes += char((ping >> 8) & 0xFF);
    for (int shift : {0, 8, 16, 24})
        bytes += char((rate >> shift) & 0xFF);
    return bytes + name + '\0' + clan + '\0';
}

// The header of a reply with this challenge and protocol version.
QByteArray header(quint32 version = 0x0002003E, quint32 challenge = 4)
{
    QByteArray bytes = replyPrefix();
    for (quint32 value : {challenge, version})
        for (int shift : {0, 8, 16, 24})
            bytes += char((value >> shift) & 0xFF);
    return bytes;
}

// Header, key/value pairs, the closing empty pair, players, and the three
// trailing bytes the first release documents.
QByteArray reply(const QByteArray& pairs, const QByteArray& players = {})
{
    return header() + pairs + QByteArray(2, '\0') + players + QByteArray("\x20\0\0", 3);
}

ServerRecord parsed(const QByteArray& datagram)
{
    const std::optional<ServerRecord> server = parseReply(datagram);
    if (!server)
        qFatal("not read as an infoResponse");
    return *server;
}

QByteArray fixture(const char* name)
{
    QFile file(QFINDTESTDATA(QStringLiteral("fixtures/%1").arg(QLatin1String(name))));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("fixture %s is missing", name);
    return file.readAll();
}

const QByteArray StandardPairs = keyValues({"si_name", "^1Red ^7Server", "si_map", "mp/q4dm1", "si_maxplayers", "16",
                                            "si_gametype", "Tourney", "gamename", "q4max", "si_usepass", "1"});

} // namespace

class TestInfoProtocol final : public QObject {
    Q_OBJECT

private slots:
    void requestAndHeaderBytes()
    {
        QCOMPARE(getInfoRequest(), QByteArray("\xFF\xFFgetInfo\0\x04\0\0\0", 14));
        QCOMPARE(replyPrefix(), QByteArray("\xFF\xFFinfoResponse\0", 15));
        QCOMPARE(header().size(), HeaderLength);
    }

    void readsTheListedKeys()
    {
        const ServerRecord server = parsed(reply(StandardPairs));
        QCOMPARE(server.name, QStringLiteral("^1Red ^7Server"));
        QCOMPARE(server.map, QStringLiteral("mp/q4dm1"));
        QCOMPARE(server.maxPlayers, 16);
        QCOMPARE(server.gameType, QStringLiteral("Tourney"));
        QCOMPARE(server.gameName, QStringLiteral("q4max"));
        QCOMPARE(server.passwordMark, QStringLiteral("*"));
        // The protocol version comes first, then the reply's own pairs.
        QCOMPARE(server.tokens.size(), 14);
        QCOMPARE(server.tokens.mid(0, 3), (QStringList{"protocol", "2.62", "si_name"}));
        QCOMPARE(server.tokens.last(), QStringLiteral("1"));
        QCOMPARE(server.playerCount, 0);
    }

    void keysMatchInAnyCaseAndKeepTheirSpelling()
    {
        const ServerRecord server = parsed(reply(keyValues({"SI_Map", "mp/q4ctf1", "GameName", "baseQ4"})));
        QCOMPARE(server.map, QStringLiteral("mp/q4ctf1"));
        QCOMPARE(server.gameName, QStringLiteral("baseQ4"));
        QCOMPARE(server.tokens.at(2), QStringLiteral("SI_Map"));
    }

    void missingKeysKeepTheListingDefaults()
    {
        const ServerRecord server = parsed(reply(keyValues({"fs_game", "x"})));
        QCOMPARE(server.name, QStringLiteral("noname"));
        QCOMPARE(server.map, QStringLiteral("nomap"));
        QCOMPARE(server.gameType, QStringLiteral("DM"));
        QCOMPARE(server.gameName, QStringLiteral("baseQUAKE4-1"));
        QCOMPARE(server.passwordMark, QStringLiteral(" "));
        QCOMPARE(server.maxPlayers, 0);
    }

    void passwordMark_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("mark");
        QTest::newRow("1") << QByteArray("1") << "*";
        QTest::newRow("0") << QByteArray("0") << "";
        QTest::newRow("1 with text") << QByteArray("1abc") << "*";
        QTest::newRow("2") << QByteArray("2") << "";
        QTest::newRow("text") << QByteArray("yes") << "";
    }
    void passwordMark()
    {
        QFETCH(QByteArray, value);
        QFETCH(QString, mark);
        QCOMPARE(parsed(reply(keyValues({"si_usepass", value.constData()}))).passwordMark, mark);
    }

    void maxPlayersIsALeadingSigned16BitNumber()
    {
        QCOMPARE(parsed(reply(keyValues({"si_maxplayers", "12abc"}))).maxPlayers, 12);
        QCOMPARE(parsed(reply(keyValues({"si_maxplayers", "lots"}))).maxPlayers, 0);
        QCOMPARE(parsed(reply(keyValues({"si_maxplayers", "40000"}))).maxPlayers, 0);
    }

    void readsPlayersWithEmptyClans()
    {
        const QByteArray players = player(3, 45, 25000, "^1Fragger", "") + player(12, 0, 90000, "Bot", "[CLAN]");
        const ServerRecord server = parsed(reply(StandardPairs, players));
        QCOMPARE(server.playerCount, 2);
        QCOMPARE(server.players.size(), 2);
        QCOMPARE(server.players[0], (PlayerRecord{QString(), "^1Fragger", 3, 25000, 45}));
        // The rate keeps its low 16 bits only: 90000 & 0xFFFF.
        QCOMPARE(server.players[1], (PlayerRecord{"[CLAN]", "Bot", 12, 24464, 0}));
        QCOMPARE(server.zeroPingCount, 1);
    }

    void overflowingPingOrRateStaysZero()
    {
        const ServerRecord server = parsed(reply(StandardPairs, player(1, 40000, 0x9000, "x", "")));
        QCOMPARE(server.playerCount, 1);
        QCOMPARE(server.players[0].ping, 0);
        QCOMPARE(server.players[0].rate, 0);
        QCOMPARE(server.players[0].name, QStringLiteral("x"));
    }

    void playersBeyondTheMaximumCountButAreNotStored()
    {
        QByteArray players;
        for (int i = 0; i < 5; ++i)
            players += player(i, 50, 1000, "p" + QByteArray::number(i), "");
        const ServerRecord server = parsed(reply(keyValues({"si_name", "small", "si_maxplayers", "2"}), players));
        QCOMPARE(server.playerCount, 5);
        QCOMPARE(server.players.size(), 3); // indexes 0 to 2
        QCOMPARE(server.players.last().name, QStringLiteral("p2"));
    }

    void shortKeyValueSectionReadsNoPlayers()
    {
        const QByteArray players = player(1, 50, 1000, "p", "");
        QCOMPARE(parsed(reply(keyValues({"a", "b"}), players)).playerCount, 0);   // "a\0b" is 3 bytes
        QCOMPARE(parsed(reply(keyValues({"abc", "d"}), players)).playerCount, 0); // "abc\0d": 5 bytes
        QCOMPARE(parsed(reply(keyValues({"abcd", "e"}), players)).playerCount, 1);
    }

    void playerSectionThatIsASmallNumberIsSkipped()
    {
        QCOMPARE(parsed(reply(StandardPairs, "5")).playerCount, 0);
        QCOMPARE(parsed(reply(StandardPairs, " 3 ")).playerCount, 0);
        // Binary data never converts to a number: players are read.
        QCOMPARE(parsed(reply(StandardPairs, player(0, 0, 0, "", ""))).playerCount, 1);
        QCOMPARE(parsed(reply(StandardPairs)).playerCount, 0);
    }

    void everyReleaseOfTheGameIsRead_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("protocol");
        // clang-format off
        QTest::newRow("1.0") << "info-2.62.bin" << "2.62";
        QTest::newRow("1.4.1") << "info-2.77.bin" << "2.77";
        QTest::newRow("1.4.2") << "info-2.85.bin" << "2.85";
        QTest::newRow("1.4.2 demo") << "info-2.86.bin" << "2.86";
        QTest::newRow("foreign challenge") << "info-2.85-foreign-challenge.bin" << "2.85";
        // clang-format on
    }
    // Replies as the releases send them: the header with the challenge and
    // the version, and after the last player the client number 32 and a
    // 32-bit mask of the server's operating systems.
    void everyReleaseOfTheGameIsRead()
    {
        QFETCH(QString, file);
        QFETCH(QString, protocol);
        const ServerRecord server = parsed(fixture(qPrintable(file)));
        QCOMPARE(server.name, QStringLiteral("^1Strogg^7 Arena ^3#1"));
        QCOMPARE(server.map, QStringLiteral("mp/q4dm7"));
        QCOMPARE(server.maxPlayers, 8);
        QCOMPARE(server.gameType, QStringLiteral("Tourney"));
        QCOMPARE(server.gameName, QStringLiteral("q4max"));
        QCOMPARE(server.passwordMark, QString());
        QCOMPARE(server.protocol, protocol);
        QCOMPARE(server.tokens.mid(0, 4), (QStringList{"protocol", protocol, "fs_game", "q4max"}));
        QCOMPARE(server.tokens.size(), 2 + 2 * 18);
        QCOMPARE(server.playerCount, 3);
        QCOMPARE(server.players, (QList<PlayerRecord>{{"[UFO]", "^4Rail^7Gun", 0, 25000, 48},
                                                      {QString(), "Grim", 3, 16000, 112},
                                                      {"=LoL=", "^1Bot", 5, 0, 0}}));
        QCOMPARE(server.zeroPingCount, 1);
    }

    void versionTextIsMajorDotMinor()
    {
        QCOMPARE(versionText(0x0002003E), QStringLiteral("2.62"));
        QCOMPARE(versionText(0x00020055), QStringLiteral("2.85"));
        QCOMPARE(versionText(0x00020005), QStringLiteral("2.5"));
    }

    void whatIsNotAnInfoResponseOfTheGameIsDropped_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        const QByteArray full = fixture("info-2.85.bin");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("the request itself") << getInfoRequest();
        QTest::newRow("header cut short") << full.left(HeaderLength - 1);
        QTest::newRow("another command") << QByteArray("\xFF\xFFinfoRequest\0", 15).append(full.mid(15));
        QTest::newRow("no connectionless mark") << full.mid(2);
        QByteArray doom = full;
        doom[21] = '\x01'; // protocol 1.85: another game of the engine
        QTest::newRow("another game") << doom;
        QByteArray future = full;
        future[21] = '\x03';
        QTest::newRow("protocol 3") << future;
    }
    void whatIsNotAnInfoResponseOfTheGameIsDropped()
    {
        QFETCH(QByteArray, datagram);
        QVERIFY(!parseReply(datagram));
        QVERIFY(!readHeader(datagram));
    }

    void aBareHeaderIsAServerWithNothingToSay()
    {
        const ServerRecord server = parsed(header(0x00020055));
        QCOMPARE(server.name, QStringLiteral("noname"));
        QCOMPARE(server.tokens, (QStringList{"protocol", "2.85"}));
        QCOMPARE(server.playerCount, 0);
    }

    void theFirstTokenIsNeverEmpty()
    {
        const ServerRecord server = parsed(reply(StandardPairs));
        QCOMPARE(server.tokens.at(2), QStringLiteral("si_name"));
        QCOMPARE(server.tokens.size() % 2, 0);
    }

    void sectionsAreCutAtTheFirstRunOfThreeZeros()
    {
        const Sections sections = splitSections(reply(keyValues({"k", "v"}), QByteArray("PLAYERS")));
        QCOMPARE(sections.keyValues, QByteArray("k\0v", 3));
        QCOMPARE(sections.players, QByteArray("PLAYERS"));
        // No run of three zeros: the whole rest is key/value section.
        const Sections open = splitSections(header() + QByteArray("k\0v", 3));
        QCOMPARE(open.keyValues, QByteArray("k\0v", 3));
        QVERIFY(open.players.isEmpty());
    }

    void truncatedAndGarbageRepliesNeverFail_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        const QByteArray full = reply(StandardPairs, player(1, 50, 1000, "name", "clan"));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("header only") << header();
        for (int cut : {23, 40, 100, int(full.size()) - 20, int(full.size()) - 4, int(full.size()) - 1})
            QTest::newRow(qPrintable(QStringLiteral("cut at %1").arg(cut))) << full.left(cut);
        QByteArray noise;
        for (int i = 0; i < 1400; ++i)
            noise += char((i * 37 + 11) % 256);
        QTest::newRow("noise") << noise;
        QTest::newRow("zeros") << QByteArray(1400, '\0');
        QTest::newRow("oversized") << reply(StandardPairs, QByteArray(65000, '\x7F'));
    }
    void truncatedAndGarbageRepliesNeverFail()
    {
        QFETCH(QByteArray, datagram);
        const ServerRecord server = parseReply(datagram).value_or(ServerRecord());
        QVERIFY(server.players.size() <= std::max(0, server.maxPlayers + 1));
        QVERIFY(server.playerCount >= server.players.size());
    }
};

QTEST_APPLESS_MAIN(TestInfoProtocol)
#include "tst_infoprotocol.moc"
