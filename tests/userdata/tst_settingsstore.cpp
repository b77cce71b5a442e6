#include "settingskeys.h"
#include "settingsstore.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestSettingsStore final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString path(const char* name) const { return m_dir.filePath(QString::fromLatin1(name)); }

private slots:
    void firstStartGivesTheDocumentedDefaults()
    {
        const SettingsStore store(path("empty.ini"));
        using namespace Keys;
        QCOMPARE(store.getNumber(Tab, Defaults::Tab), 1);
        QCOMPARE(store.getNumber(Language, Defaults::Language), 0);
        QCOMPARE(store.getNumber(Speed, Defaults::Speed), 5);
        QCOMPARE(store.getNumber(StartPort, Defaults::StartPort), 9000);
        QVERIFY(store.getFlag(CloseAfterJoin, Defaults::CloseAfterJoin));
        QVERIFY(store.getFlag(AutoUpdate, Defaults::AutoUpdate));
        QVERIFY(store.getFlag(RefreshServers, Defaults::RefreshServers));
        QVERIFY(store.getFlag(IncludeEmpty, Defaults::IncludeFilterFlag));
        QVERIFY(store.getFlag(IncludeFull, Defaults::IncludeFilterFlag));
        QVERIFY(store.getFlag(IncludePassworded, Defaults::IncludeFilterFlag));
        QVERIFY(!store.getFlag(Proxy, Defaults::Proxy));
        QVERIFY(!store.getTruth(Maximized, false));
        QCOMPARE(store.get(PlayerName), QString());
        QCOMPARE(store.getEntries(FindBox), QStringList());
        QVERIFY(!store.contains(PlayerName));
        QVERIFY2(!QFile::exists(store.filePath()), "reading must not create the file");
    }

    void oddValuesRoundTripExactly_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("code 1") << QStringLiteral("a\u0001b\u0001");
        QTest::newRow("non-ASCII") << QStringLiteral("J\u00f6rg \u00c7a\u011f \u65e5\u672c \U0001F600");
        QTest::newRow("quotes") << QStringLiteral("say \"hi\" 'there'");
        QTest::newRow("semicolon and equals") << QStringLiteral("a;b=c ; d");
        QTest::newRow("comma") << QStringLiteral("a,b, c");
        QTest::newRow("backslashes") << QStringLiteral("C:\\Games\\Quake 4\\quake4.exe");
        QTest::newRow("blanks kept") << QStringLiteral("  padded  ");
        QTest::newRow("colour codes") << QStringLiteral("^1Red^7White^^x");
        QTest::newRow("empty") << QString();
        QTest::newRow("line breaks") << QStringLiteral("one\r\ntwo\nthree");
    }
    void oddValuesRoundTripExactly()
    {
        QFETCH(QString, value);
        SettingsStore writer(path("odd.ini"));
        QVERIFY(writer.save(Keys::PlayerName, value));
        const SettingsStore reader(path("odd.ini"));
        QVERIFY(reader.contains(Keys::PlayerName));
        QCOMPARE(reader.get(Keys::PlayerName, QStringLiteral("default")), value);
    }

    void writesAreSeenByEveryOtherStoreAtOnce()
    {
        SettingsStore first(path("shared.ini"));
        const SettingsStore second(path("shared.ini"));
        first.saveNumber(Keys::Speed, 3);
        QCOMPARE(second.getNumber(Keys::Speed, 5), 3);
        first.saveTruth(Keys::Maximized, true);
        QCOMPARE(second.get(Keys::Maximized), QStringLiteral("True"));
        QVERIFY(second.getTruth(Keys::Maximized, false));
        first.saveFlag(Keys::Proxy, true);
        QCOMPARE(second.get(Keys::Proxy), QStringLiteral("1"));
    }

    void batchWritesLandTogether()
    {
        SettingsStore store(path("batch.ini"));
        const SettingsStore other(path("batch.ini"));
        {
            const SettingsStore::Batch batch(store);
            store.saveNumber(Keys::Speed, 2);
            {
                const SettingsStore::Batch inner(store);
                store.save(Keys::PlayerName, QStringLiteral("a\x01"
                                                            "b"));
            }
            QCOMPARE(store.getNumber(Keys::Speed, 5), 2); // the batch reads its own writes
            QFile file(store.filePath());
            QVERIFY(!file.open(QIODevice::ReadOnly) || !file.readAll().contains("Speed")); // not on disk yet
        }
        QCOMPARE(other.getNumber(Keys::Speed, 5), 2);
        QCOMPARE(other.get(Keys::PlayerName), QStringLiteral("a\x01"
                                                             "b"));
    }

    void valuesLiveInTheSettingsGroup()
    {
        SettingsStore store(path("group.ini"));
        store.save(Keys::Path, QStringLiteral("/opt/quake4/quake4"));
        QFile file(store.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY2(text.startsWith("[Settings]"), text.constData());
        QVERIFY(text.contains("Path=/opt/quake4/quake4"));
    }

    void handEditedFilesAreReadAsText()
    {
        QFile file(path("edited.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Settings]\nPlayerName=a,b\nSpeed=12abc\nSColumnWidth0=wide\n");
        file.close();
        const SettingsStore store(file.fileName());
        QCOMPARE(store.get(Keys::PlayerName), QStringLiteral("a,b"));
        QCOMPARE(store.getNumber(Keys::Speed, 5), 12);
        QCOMPARE(store.getNumber(u"SColumnWidth0", 200), 0);
    }

    void garbageFileReadsAsEmpty()
    {
        QFile file(path("garbage.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QByteArray noise;
        for (int i = 0; i < 4096; ++i)
            noise.append(char((i * 7919) % 256));
        file.write(noise);
        file.close();
        const SettingsStore store(file.fileName());
        QCOMPARE(store.getNumber(Keys::Tab, 1), 1);
        QCOMPARE(store.get(Keys::PlayerName, QStringLiteral("x")), QStringLiteral("x"));
    }

    void unwritableLocationIsReported()
    {
        QFile blocker(path("not-a-folder"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        SettingsStore store(path("not-a-folder") + QStringLiteral("/settings.ini"));
        QVERIFY(!store.save(Keys::PlayerName, QStringLiteral("x")));
        QCOMPARE(store.get(Keys::PlayerName), QString());
    }
};

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "tst_settingsstore.moc"
