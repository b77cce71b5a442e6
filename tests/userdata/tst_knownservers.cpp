// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/knownservers.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using KnownServers::Server;

namespace {

constexpr qint64 Day = 24 * 60 * 60;
constexpr qint64 Now = 1'800'000'000;

AddressEntry answer(const char* address, int port, const char* name)
{
    return AddressEntry{QLatin1String(address), port, QLatin1String(name), {}};
}

AddressTable asked(std::initializer_list<std::pair<const char*, int>> entries)
{
    AddressTable table;
    for (const auto& [address, port] : entries)
        table.add(QLatin1String(address), port);
    return table;
}

} // namespace

class TestKnownServers final : public QObject {
    Q_OBJECT

private slots:
    void theFileRoundTripsAndSurvivesDamage()
    {
        const KnownServers::List servers{
            Server{"1.2.3.4", 28004, "^1Red\tTab", Now, 0},
            Server{"q4.example.org", 28005, QString(), Now - Day, 3},
            Server{"5.6.7.8", 28006, QStringLiteral("line\r\nbreak\x01soh\xe9"), Now, 1},
        };
        const QByteArray bytes = KnownServers::toBytes(servers);
        QVERIFY(bytes.startsWith('#'));
        QCOMPARE(bytes.count('\n'), 4);
        KnownServers::List expected = servers;
        expected[2].name = QStringLiteral("line  break soh\xe9");
        QCOMPARE(KnownServers::parse(bytes), expected);

        // Damaged lines go; the rest stays, duplicates once.
        const QByteArray damaged = "garbage\n1.2.3.4:28004\t10\t0\tA\r\n1.2.3.4:0\t10\t0\tB\nx:1\tnot\t0\t\n"
                                   "1.2.3.4:28004\t11\t0\tagain\n:28004\t1\t0\t\n2.2.2.2:2\t5\t-1\t\n\xff\xfe\n"
                                   "3.3.3.3:3\t7\t2";
        QCOMPARE(KnownServers::parse(damaged),
                 (KnownServers::List{Server{"1.2.3.4", 28004, "A", 10, 0}, Server{"3.3.3.3", 3, QString(), 7, 2}}));
        QVERIFY(KnownServers::parse(QByteArray(100000, '\x01')).isEmpty());
    }

    void aQueryUpdatesWhatIsKnown()
    {
        const KnownServers::List known{
            Server{"1.1.1.1", 1, "old name", Now - 10 * Day, 2},
            Server{"2.2.2.2", 2, "silent", Now - Day, 4},
            Server{"3.3.3.3", 3, "not asked", Now - Day, 4},
            Server{"4.4.4.4", 4, "ancient", Now - 61 * Day, 0},
        };
        const auto table = asked({{"1.1.1.1", 1}, {"2.2.2.2", 2}, {"2.2.2.2", 2}, {"9.9.9.9", 9}, {"5.5.5.5", 5}});
        const QList<AddressEntry> answers{answer("1.1.1.1", 1, "new name"), answer("5.5.5.5", 5, "fresh")};

        // A finished query: the answers are seen now, the silent one missed
        // its fifth time (once, though asked twice), the unasked one keeps
        // its misses, the one unseen for 61 days goes, an unknown silent
        // server is not added.
        QCOMPARE(KnownServers::update(known, table, answers, Now, true),
                 (KnownServers::List{Server{"1.1.1.1", 1, "new name", Now, 0},
                                     Server{"3.3.3.3", 3, "not asked", Now - Day, 4},
                                     Server{"5.5.5.5", 5, "fresh", Now, 0}}));
        // A cancelled query counts no misses: the silent may not have been asked.
        const auto cancelled = KnownServers::update(known, table, answers, Now, false);
        QCOMPARE(cancelled.size(), 4);
        QCOMPARE(cancelled.at(1).misses, 4);
    }

    void theNewestAreKeptWhenThereAreTooMany()
    {
        QList<AddressEntry> answers;
        for (int i = 0; i < KnownServers::MaxServers + 10; ++i)
            answers.append(AddressEntry{QStringLiteral("10.0.%1.%2").arg(i / 256).arg(i % 256), 28004, {}, {}});
        KnownServers::List old{Server{"1.1.1.1", 1, {}, Now - Day, 0}};
        const auto updated = KnownServers::update(old, {}, answers, Now, true);
        QCOMPARE(updated.size(), KnownServers::MaxServers);
        QVERIFY(std::none_of(updated.cbegin(), updated.cend(),
                             [](const Server& server) { return server.address == QLatin1String("1.1.1.1"); }));
    }

    void filesAreWrittenWholeAndForgotten()
    {
        QTemporaryDir dir;
        const QString path = KnownServers::filePath(dir.path());
        QVERIFY(path.endsWith(QLatin1String("/servers.dat")));
        QVERIFY(KnownServers::readFile(path).isEmpty());
        const KnownServers::List servers{Server{"1.2.3.4", 28004, "x", Now, 0}};
        QVERIFY(KnownServers::writeFile(path, servers));
        QCOMPARE(KnownServers::readFile(path), servers);
        // A corrupt file reads as empty, and the next write replaces it.
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(5000, '\0'));
        }
        QVERIFY(KnownServers::readFile(path).isEmpty());
        QVERIFY(KnownServers::writeFile(path, servers));
        QCOMPARE(KnownServers::readFile(path), servers);
        QVERIFY(!KnownServers::writeFile(dir.filePath(QStringLiteral("no/such/folder/servers.dat")), servers));
        QVERIFY(KnownServers::forget(path));
        QVERIFY(!QFile::exists(path));
        QVERIFY(KnownServers::forget(path));
    }
};

QTEST_GUILESS_MAIN(TestKnownServers)
#include "tst_knownservers.moc"
