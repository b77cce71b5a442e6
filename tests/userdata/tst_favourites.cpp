// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/favourites.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using Favourites::Favourite;

namespace {
QByteArray lines(std::initializer_list<const char*> list)
{
    QByteArray bytes;
    for (const char* line : list)
        bytes += QByteArray(line).replace('|', '\x01') + "\r\n";
    return bytes;
}
} // namespace

class TestFavourites final : public QObject {
    Q_OBJECT

private slots:
    void readsTheFields()
    {
        const auto read = Favourites::parse(lines({"192.0.2.7:27960|pw|My server", "host.example|x|Named"}));
        QVERIFY(read);
        QCOMPARE(read->size(), 2);
        QCOMPARE(read->at(0), (Favourite{"192.0.2.7", 27960, "My server", "pw"}));
        QCOMPARE(read->at(1), (Favourite{"host.example", 27960, "Named", "x"}));
    }

    void missingPortReadsAsTheDefault()
    {
        const auto read = Favourites::parse(lines({"1.2.3.4:28004||A", "host|pw|name", "5.6.7.8:abc||B"}));
        QCOMPARE(read->at(1).port, 27960);
        QCOMPARE(read->at(2).port, 0);
    }

    void emptyAddressOnTheFirstLineHasPortZero()
    {
        const auto read = Favourites::parse(lines({"||first", "||second"}));
        QCOMPARE(read->at(0), (Favourite{"", 0, "first", ""}));
        QCOMPARE(read->at(1), (Favourite{"", 27960, "second", ""}));
    }

    void lastLineWithoutLineEndLosesTwoCharacters()
    {
        const auto read = Favourites::parse(QByteArray("1.2.3.4:1\x01\x01Server\r\n5.6.7.8:2\x01\x01Last"));
        QCOMPARE(read->size(), 2);
        QCOMPARE(read->at(0).name, QStringLiteral("Server"));
        QCOMPARE(read->at(1).name, QStringLiteral("La"));
        QCOMPARE(Favourites::parse(QByteArray("a:1\x01\x01X"))->at(0).name, QString());
    }

    void bareLineFeedsLoseNothing()
    {
        const auto read = Favourites::parse(QByteArray("1.2.3.4:1\x01pw\x01Linux edited\n5.6.7.8:2\x01\x01Two\n"));
        QCOMPARE(read->size(), 2);
        QCOMPARE(read->at(0).name, QStringLiteral("Linux edited"));
        QCOMPARE(read->at(1).name, QStringLiteral("Two"));
    }

    void blankLinesAreSkipped()
    {
        const auto read = Favourites::parse("\r\n" + lines({"1.2.3.4:1||A"}) + "\r\n\n" + lines({"5.6.7.8:2||B"}));
        QCOMPARE(read->size(), 2);
        QCOMPARE(read->at(1).name, QStringLiteral("B"));
    }

    void tooShortOrMissingFilesHaveNoFavourites()
    {
        QVERIFY(!Favourites::parse(QByteArray("a\x01\x01")));
        QVERIFY(!Favourites::parse(QByteArray()));
        QVERIFY(!Favourites::readFile(QStringLiteral("/nonexistent/favourites.dat")));
    }

    void lineWithoutSeparatorsEndsTheReading()
    {
        const auto read = Favourites::parse(lines({"1.2.3.4:1||A", "garbage line", "5.6.7.8:2||B"}));
        QVERIFY(read);
        QVERIFY(read->size() <= 2);
        QCOMPARE(read->at(0).name, QStringLiteral("A"));
        // Pure binary never crashes either.
        QByteArray noise;
        for (int i = 0; i < 3000; ++i)
            noise += char((i * 131) % 256);
        QVERIFY(Favourites::parse(noise).has_value());
    }

    void bytesAreLatin1()
    {
        const auto read = Favourites::parse(QByteArray("1.2.3.4:1\x01\xE9\x01"
                                                       "Caf\xE9\r\n"));
        QCOMPARE(read->at(0).name, QStringLiteral("Caf\u00e9"));
        QCOMPARE(read->at(0).password, QStringLiteral("\u00e9"));
    }

    void writersKeepTheFormat()
    {
        const QList<Favourite> rows{{"1.2.3.4", 28004, "A", "pw"}, {"host", 0, "No port", ""}};
        QCOMPARE(Favourites::toFileBytes(rows), QByteArray("1.2.3.4:28004\x01pw\x01"
                                                           "A\r\nhost\x01\x01No port\r\n"));
        QCOMPARE(Favourites::toFileBytes({}), QByteArray());
        // Written without a port, read back with the default one.
        QCOMPARE(Favourites::parse(Favourites::toFileBytes(rows))->at(1).port, Favourites::DefaultPort);
        QCOMPARE(Favourites::addressText(rows.at(1)), QStringLiteral("host"));
    }

    void appendingEndsAnOpenLastLineFirst()
    {
        const QByteArray line = Favourites::line(QStringLiteral("1.1.1.1:1"), QString(), QStringLiteral("S"));
        QCOMPARE(line, QByteArray("1.1.1.1:1\x01\x01S\r\n"));
        QCOMPARE(Favourites::appendBytes(QByteArray(), line), line);
        QCOMPARE(Favourites::appendBytes("a\x01\x01"
                                         "b\r\n",
                                         line),
                 line);
        QCOMPARE(Favourites::appendBytes("a\x01\x01"
                                         "b",
                                         line),
                 "\r\n" + line);
        QCOMPARE(Favourites::appendBytes("a\x01\x01"
                                         "b\n",
                                         line),
                 "\r\n" + line);

        QTemporaryDir dir;
        const QString path = dir.filePath(Favourites::FileName);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("9.9.9.9:9\x01\x01Old");
        file.close();
        QVERIFY(Favourites::appendToFile(path, QStringLiteral("1.1.1.1:1"), QString(), QStringLiteral("New")));
        QVERIFY(Favourites::appendToFile(path, QStringLiteral("1.1.1.1:1"), QString(), QStringLiteral("New")));
        const auto read = Favourites::readFile(path);
        QCOMPARE(read->size(), 3);
        QCOMPARE(read->at(0).name, QStringLiteral("Old"));
        QCOMPARE(read->at(1), read->at(2)); // duplicates are allowed
        QVERIFY(Favourites::writeFile(path, {}));
        QVERIFY2(!Favourites::readFile(path), "an editor list without rows leaves an empty file");
        QVERIFY(!Favourites::appendToFile(dir.filePath(QStringLiteral("no/such/dir/favourites.dat")), {}, {}, {}));
    }

    void hugeFilesAreReadOnceAndBounded()
    {
        // Lines without a port once made the reader search the rest of the
        // file for each line: 5 MB took half a minute on the window's thread.
        QByteArray portless;
        for (int i = 0; portless.size() < 5 * 1024 * 1024; ++i)
            portless += "host" + QByteArray::number(i) + "\x01\x01n\r\n";
        QElapsedTimer clock;
        clock.start();
        const auto read = Favourites::parse(portless);
        QVERIFY2(clock.elapsed() < 5000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(read->size(), Favourites::MaxFavourites);
        QCOMPARE(read->at(7), (Favourite{"host7", Favourites::DefaultPort, "n", ""}));

        // The file reader says when it did not take the whole file.
        QTemporaryDir dir;
        QFile file(dir.filePath(Favourites::FileName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(portless.left(1000));
        file.flush();
        bool complete = false;
        QVERIFY(Favourites::readFile(file.fileName(), &complete));
        QVERIFY(complete);
        file.write(portless);
        file.flush();
        QVERIFY(Favourites::readFile(file.fileName(), &complete));
        QVERIFY(!complete);
        file.resize(Favourites::MaxFileBytes + 1);
        QVERIFY(Favourites::readFile(file.fileName(), &complete));
        QVERIFY(!complete);
    }

    void networkTextNeverBecomesFileStructure()
    {
        // A server may send line breaks or the separator in its name.
        const QByteArray line =
            Favourites::line(QStringLiteral("1.2.3.4:1"), QStringLiteral("p\x01w"), QStringLiteral("Evil\r\nname\n"));
        QCOMPARE(line, QByteArray("1.2.3.4:1\x01p w\x01"
                                  "Evil  name \r\n"));
        const auto read = Favourites::parse(line + line);
        QCOMPARE(read->size(), 2);
        QCOMPARE(read->at(1).name, QStringLiteral("Evil  name "));
    }

    void asAddressTable()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath(Favourites::FileName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(lines({"127.0.0.1:27961|secret|Local", "127.0.0.1:27962||Other"}));
        file.close();
        const AddressTable table = Favourites::toAddressTable(*Favourites::readFile(file.fileName()));
        QCOMPARE(table.count(), 2);
        QCOMPARE(table.at(0), (AddressEntry{"127.0.0.1", 27961, "Local", "secret"}));
    }
};

QTEST_APPLESS_MAIN(TestFavourites)
#include "tst_favourites.moc"
