// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/gamefiles.h"
#include "zipfiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestGameFiles final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

    QString file(const QString& name) const { return m_dir.filePath(name); }

private slots:
    void mapNamesAndModFolders()
    {
        QCOMPARE(GameFiles::mapEntries(QStringLiteral("mp/Q4DM1")),
                 (QStringList{"maps/mp/q4dm1.map", "maps/mp/q4dm1.proc", "maps/mp/q4dm1.cm"}));
        for (const char* hostile : {"", "../../etc/passwd", "/mp/q4dm1", "mp\\q4dm1", "c:mp"})
            QCOMPARE(GameFiles::mapEntries(QLatin1String(hostile)), QStringList());

        QCOMPARE(GameFiles::modFolders(QString()), QStringList{"q4base"});
        QCOMPARE(GameFiles::modFolders(QStringLiteral("baseQUAKE4")), QStringList{"q4base"});
        QCOMPARE(GameFiles::modFolders(QStringLiteral("q4max")), (QStringList{"q4base", "q4max"}));
        QCOMPARE(GameFiles::modFolder(QStringLiteral(" Q4BASE ")), QString());
        for (const char* hostile : {"..", ".", "../q4max", "a/b", "a\\b", "c:"})
            QCOMPARE(GameFiles::modFolders(QLatin1String(hostile)), QStringList());
    }

    // The names of an archive, never its contents; names climbing out of
    // it are left out.
    void archivesAreReadByTheirNames()
    {
        QVERIFY(writeZip(file(QStringLiteral("a.pk4")),
                         {"maps/mp/Q4DM1.map", "maps/mp/q4dm1.proc", "../evil.map", "/abs.map", "textures/x.tga"}));
        QSet<QString> names;
        QVERIFY(GameFiles::archiveEntries(file(QStringLiteral("a.pk4")), names));
        // Only what a map check asks for is kept.
        QCOMPARE(names, (QSet<QString>{"maps/mp/q4dm1.map", "maps/mp/q4dm1.proc"}));
        QFile whole(file(QStringLiteral("a.pk4")));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QByteArray bytes = whole.readAll();
        QSet<QString> fromBytes;
        QVERIFY(GameFiles::archiveEntries(bytes, fromBytes));
        QCOMPARE(fromBytes, names);

        // Cut short, garbage, empty: no zip file, said so, nothing read.
        for (const QByteArray& broken : {bytes.left(bytes.size() - 10), QByteArray(1000, 'x'), QByteArray()}) {
            QSet<QString> none;
            QVERIFY(!GameFiles::archiveEntries(broken, none));
            QVERIFY(none.isEmpty());
        }
    }

    // 100,000 names of 8 KB kept 2,361 MB for the session; a sparse
    // archive claiming a 4 GiB directory cost a 1.5 GB peak. Names are
    // bounded by count and size, and such a directory is never opened.
    void aHugeDirectoryIsCut()
    {
        QStringList names;
        for (int i = 0; i < GameFiles::MaxEntries + 500; ++i)
            names.append(QStringLiteral("maps/%1.map").arg(i));
        QVERIFY(writeZip(file(QStringLiteral("huge.pk4")), names));
        QSet<QString> read;
        QVERIFY(GameFiles::archiveEntries(file(QStringLiteral("huge.pk4")), read));
        QCOMPARE(read.size(), GameFiles::MaxKept);

        const QString longName = QStringLiteral("maps/") + QString(8000, QLatin1Char('x')) + QStringLiteral(".map");
        QVERIFY(writeZip(file(QStringLiteral("long.pk4")), {longName, "maps/mp/q4dm1.map"}));
        QSet<QString> shortOnly;
        QVERIFY(GameFiles::archiveEntries(file(QStringLiteral("long.pk4")), shortOnly));
        QCOMPARE(shortOnly, QSet<QString>{"maps/mp/q4dm1.map"});

        // The end record claims a directory of 3 GiB.
        QFile small(file(QStringLiteral("long.pk4")));
        QVERIFY(small.open(QIODevice::ReadOnly));
        QByteArray bytes = small.readAll();
        const qsizetype end = bytes.lastIndexOf(QByteArray("PK\x05\x06", 4));
        QVERIFY(end > 0);
        bytes.replace(end + 12, 4, QByteArray("\x00\x00\x00\xC0", 4));
        QFile claiming(file(QStringLiteral("claiming.pk4")));
        QVERIFY(claiming.open(QIODevice::WriteOnly));
        claiming.write(bytes);
        claiming.close();
        QSet<QString> none;
        QVERIFY(!GameFiles::archiveEntries(file(QStringLiteral("claiming.pk4")), none));
        QVERIFY(none.isEmpty());
    }

    // A game folder: its archives in name order, the broken ones named,
    // and loose maps beside them.
    void aFolderIsIndexedWhole()
    {
        QDir folder(file(QStringLiteral("game/q4base")));
        QVERIFY(folder.mkpath(QStringLiteral("maps/mp")));
        QVERIFY(writeZip(folder.filePath(QStringLiteral("pak001.pk4")), {"maps/mp/q4dm1.map"}));
        QVERIFY(writeZip(folder.filePath(QStringLiteral("pak002.PK4")), {"maps/mp/q4ctf1.map"}));
        QFile broken(folder.filePath(QStringLiteral("zz_broken.pk4")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("PK\x03\x04 not really");
        broken.close();
        QFile loose(folder.filePath(QStringLiteral("maps/mp/Custom.proc")));
        QVERIFY(loose.open(QIODevice::WriteOnly));
        loose.close();
        const GameFiles::Index index = GameFiles::indexFolder(folder.path());
        QVERIFY(index.exists);
        QCOMPARE(index.entries, (QSet<QString>{"maps/mp/q4dm1.map", "maps/mp/q4ctf1.map", "maps/mp/custom.proc"}));
        QCOMPARE(index.unreadable, QStringList{"zz_broken.pk4"});
        QVERIFY(!GameFiles::indexFolder(file(QStringLiteral("game/q4max"))).exists);
    }
};

QTEST_GUILESS_MAIN(TestGameFiles)
#include "tst_gamefiles.moc"
