#include "infoprotocol.h"

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

// Header, version byte, key/value pairs, the closing empty pair, players,
// and the three trailing bytes.
QByteArray reply(const QByteArray& pairs, const QByteArray& players = {})
{
    return replyHeader() + QByteArray(1, '\0') + pairs + QByteArray(2, '\0') + players + QByteArray("\x20\0\0", 3);
}

const QByteArray StandardPairs = keyValues({"si_name", "^1Red ^7Server", "si_map", "q4dm1", "si_maxplayers", "16",
                                            "si_gametype", "Tourney", "gamename", "q4max", "si_usepass", "1"});

} // namespace

class TestInfoProtocol final : public QObject {
    Q_OBJECT

private slots:
    void requestAndHeaderBytes()
    {
        QCOMPARE(getInfoRequest(), QByteArray("\xFF\xFFgetInfo\0\x04\0\0\0", 14));
        QCOMPARE(replyHeader().size(), 22);
        QVERIFY(replyHeader().startsWith("\xFF\xFFinfoResponse"));
        QVERIFY(replyHeader().endsWith(QByteArray("\x04\0\0\0\x3E\0\x02", 7)));
    }

    void readsTheListedKeys()
    {
        const ServerRecord server = parseReply(reply(StandardPairs));
        QCOMPARE(server.name, QStringLiteral("^1Red ^7Server"));
        QCOMPARE(server.map, QStringLiteral("q4dm1"));
        QCOMPARE(server.maxPlayers, 16);
        QCOMPARE(server.gameType, QStringLiteral("Tourney"));
        QCOMPARE(server.gameName, QStringLiteral("q4max"));
        QCOMPARE(server.passwordMark, QStringLiteral("*"));
        QCOMPARE(server.tokens.size(), 12);
        QCOMPARE(server.tokens.first(), QStringLiteral("si_name"));
        QCOMPARE(server.tokens.last(), QStringLiteral("1"));
        QCOMPARE(server.playerCount, 0);
    }

    void keysMatchInAnyCaseAndKeepTheirSpelling()
    {
        const ServerRecord server = parseReply(reply(keyValues({"SI_Map", "q4ctf1", "GameName", "baseQ4"})));
        QCOMPARE(server.map, QStringLiteral("q4ctf1"));
        QCOMPARE(server.gameName, QStringLiteral("baseQ4"));
        QCOMPARE(server.tokens.first(), QStringLiteral("SI_Map"));
    }

    void missingKeysKeepTheListingDefaults()
    {
        const ServerRecord server = parseReply(reply(keyValues({"fs_game", "x"})));
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
        QCOMPARE(parseReply(reply(keyValues({"si_usepass", value.constData()}))).passwordMark, mark);
    }

    void maxPlayersIsALeadingSigned16BitNumber()
    {
        QCOMPARE(parseReply(reply(keyValues({"si_maxplayers", "12abc"}))).maxPlayers, 12);
        QCOMPARE(parseReply(reply(keyValues({"si_maxplayers", "lots"}))).maxPlayers, 0);
        QCOMPARE(parseReply(reply(keyValues({"si_maxplayers", "40000"}))).maxPlayers, 0);
    }

    void readsPlayersWithEmptyClans()
    {
        const QByteArray players = player(3, 45, 25000, "^1Fragger", "") + player(12, 0, 90000, "Bot", "[CLAN]");
        const ServerRecord server = parseReply(reply(StandardPairs, players));
        QCOMPARE(server.playerCount, 2);
        QCOMPARE(server.players.size(), 2);
        QCOMPARE(server.players[0], (PlayerRecord{QString(), QStringLiteral("^1Fragger"), 3, 25000, 45}));
        // The rate keeps its low 16 bits only: 90000 & 0xFFFF.
        QCOMPARE(server.players[1], (PlayerRecord{QStringLiteral("[CLAN]"), QStringLiteral("Bot"), 12, 24464, 0}));
        QCOMPARE(server.zeroPingCount, 1);
    }

    void overflowingPingOrRateStaysZero()
    {
        const ServerRecord server = parseReply(reply(StandardPairs, player(1, 40000, 0x9000, "x", "")));
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
        const ServerRecord server = parseReply(reply(keyValues({"si_name", "small", "si_maxplayers", "2"}), players));
        QCOMPARE(server.playerCount, 5);
        QCOMPARE(server.players.size(), 3); // indexes 0 to 2
        QCOMPARE(server.players.last().name, QStringLiteral("p2"));
    }

    void shortKeyValueSectionReadsNoPlayers()
    {
        const QByteArray players = player(1, 50, 1000, "p", "");
        QCOMPARE(parseReply(reply(keyValues({"a", "b"}), players)).playerCount, 0);   // "a\0b" is 3 bytes
        QCOMPARE(parseReply(reply(keyValues({"abc", "d"}), players)).playerCount, 0); // "abc\0d": 5 bytes
        QCOMPARE(parseReply(reply(keyValues({"abcd", "e"}), players)).playerCount, 1);
    }

    void playerSectionThatIsASmallNumberIsSkipped()
    {
        QCOMPARE(parseReply(reply(StandardPairs, "5")).playerCount, 0);
        QCOMPARE(parseReply(reply(StandardPairs, " 3 ")).playerCount, 0);
        // Binary data never converts to a number: players are read.
        QCOMPARE(parseReply(reply(StandardPairs, player(0, 0, 0, "", ""))).playerCount, 1);
        QCOMPARE(parseReply(reply(StandardPairs)).playerCount, 0);
    }

    void otherProtocolVersionKeepsItsHeader()
    {
        QByteArray other = reply(keyValues({"si_name", "x", "si_map", "m"}));
        other[20] = '\x03'; // version 0x0003003E
        const ServerRecord server = parseReply(other);
        QVERIFY(server.tokens.first().startsWith(QStringLiteral("\u00FF\u00FFinfoResponse")));
        QCOMPARE(server.name, QStringLiteral("noname"));
    }

    void theFirstTokenIsNeverEmpty()
    {
        const ServerRecord server = parseReply(reply(StandardPairs));
        QCOMPARE(server.tokens.first(), QStringLiteral("si_name"));
        QCOMPARE(server.tokens.size() % 2, 0);
    }

    void sectionsAreCutAtTheFirstRunOfThreeZeros()
    {
        const Sections sections = splitSections(reply(keyValues({"k", "v"}), QByteArray("PLAYERS")));
        QCOMPARE(sections.keyValues, QByteArray("k\0v", 3));
        QCOMPARE(sections.players, QByteArray("PLAYERS"));
        // No run of three zeros: the whole rest is key/value section.
        const Sections open = splitSections(replyHeader() + QByteArray("\0k\0v", 4));
        QCOMPARE(open.keyValues, QByteArray("k\0v", 3));
        QVERIFY(open.players.isEmpty());
    }

    void truncatedAndGarbageRepliesNeverFail_data()
    {
        QTest::addColumn<QByteArray>("datagram");
        const QByteArray full = reply(StandardPairs, player(1, 50, 1000, "name", "clan"));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("header only") << replyHeader();
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
        const ServerRecord server = parseReply(datagram);
        QVERIFY(server.players.size() <= std::max(0, server.maxPlayers + 1));
        QVERIFY(server.playerCount >= server.players.size());
    }
};

QTEST_APPLESS_MAIN(TestInfoProtocol)
#include "tst_infoprotocol.moc"
