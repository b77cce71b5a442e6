// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/settingscodec.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestSettingsStore final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString path(const char* name) const { return m_dir.filePath(QString::fromLatin1(name)); }

private slots:
    // The names in the settings file are those every earlier version of the
    // file used: a rename would lose the user's settings. Tests and tools
    // name keys through Keys::, so this is the one place that spells them.
    void keyNamesAreThoseOfTheFile()
    {
        const std::pair<QStringView, QStringView> keys[] = {
            {Keys::PlayerName.key, u"PlayerName"},
            {Keys::Password.key, u"Password"},
            {Keys::Tab.key, u"Tab"},
            {Keys::Maximized.key, u"Maximized"},
            {Keys::WindowHeight.key, u"WindowHeight"},
            {Keys::WindowWidth.key, u"WindowWidth"},
            {Keys::SplitterPanes.key, u"rzrSPSISize"},
            {Keys::SplitterServerList.key, u"rzrPSISize"},
            {Keys::FindBox.key, u"FindBox"},
            {Keys::PlayerNameBox.key, u"PlayerNameBox"},
            {Keys::PasswordBox.key, u"PasswordBox"},
            {Keys::Language.key, u"Language"},
            {Keys::Speed.key, u"Speed"},
            {Keys::StartPort.key, u"StartPort"},
            {Keys::RefreshServers.key, u"RefreshServers"},
            {Keys::Path.key, u"Path"},
            {Keys::Game.key, u"Game"},
            {Keys::CloseAfterJoin.key, u"CloseAfterJoin"},
            {Keys::IncludeEmpty.key, u"IncludeEmpty"},
            {Keys::IncludeFull.key, u"IncludeFull"},
            {Keys::IncludePassworded.key, u"IncludePassworded"},
            {Keys::AutoUpdate.key, u"AutoUpdate"},
            {Keys::Proxy.key, u"Proxy"},
            {Keys::ProxyAddress.key, u"ProxyAddress"},
            {Keys::UpdateSite.key, u"UpdateSite"},
            {Keys::MasterServer.key, u"MasterServer"},
            {Keys::ServerListUrls.key, u"ServerListUrls"},
            {Keys::QueryKnownServers.key, u"QueryKnownServers"},
            {Keys::LanBroadcast.key, u"LanBroadcast"},
            {Keys::Friends.key, u"Friends"},
            {Keys::AutoRefreshMinutes.key, u"AutoRefreshMinutes"},
            {Keys::NotifyFriends.key, u"NotifyFriends"},
            {Keys::NotifyPlayerCount.key, u"NotifyPlayerCount"},
            {Keys::OfferSlotWait.key, u"OfferSlotWait"},
            {Keys::PasswordsInKeyring.key, u"PasswordsInKeyring"},
            {Keys::CountryDatabase.key, u"CountryDatabase"},
        };
        for (const auto& [key, name] : keys)
            QCOMPARE(key.toString(), name.toString());
        QCOMPARE(SettingsCodec::columnOrderKey(Keys::ServerList.columns, 3), QStringLiteral("SColumnOrder3"));
        QCOMPARE(SettingsCodec::columnWidthKey(Keys::ServerPlayers.columns, 0), QStringLiteral("SPColumnWidth0"));
        QCOMPARE(SettingsCodec::sortKeyKey(Keys::ServerPlayers.sort), QStringLiteral("PLSortKey"));
        QCOMPARE(SettingsCodec::sortOrderKey(Keys::Filters.sort), QStringLiteral("FiSortOrder"));
    }

    void typedReadsFollowTheirRules()
    {
        SettingsStore store(path("typed.ini"));
        QVERIFY(store.value(Keys::CloseAfterJoin));
        QVERIFY2(!QFile::exists(store.filePath()), "reading must not create the file");
        store.save(Keys::CloseAfterJoin.key, QStringLiteral("yes")); // only "1" is on
        QVERIFY(!store.value(Keys::CloseAfterJoin));
        store.save(Keys::Maximized.key, QStringLiteral("junk"));
        QVERIFY(!store.value(Keys::Maximized));
        store.save(Keys::Speed.key, QStringLiteral("3fast"));
        QCOMPARE(store.value(Keys::Speed), 3);
        // Keys whose default is what the window shows take it from the caller.
        QCOMPARE(store.value(Keys::WindowWidth, 640), 640);
        store.save(Keys::FindBox.key, QStringLiteral("a\u0001\u0001b"));
        QCOMPARE(store.value(Keys::FindBox), (QStringList{"a", ""}));
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
        QVERIFY(writer.save(Keys::PlayerName.key, value));
        const SettingsStore reader(path("odd.ini"));
        QVERIFY(reader.contains(Keys::PlayerName.key));
        QCOMPARE(reader.get(Keys::PlayerName.key, QStringLiteral("default")), value);
    }

    void writesAreSeenByEveryOtherStoreAtOnce()
    {
        SettingsStore first(path("shared.ini"));
        const SettingsStore second(path("shared.ini"));
        QSignalSpy changed(&first, &SettingsStore::changed);
        first.set(Keys::Speed, 3);
        QCOMPARE(second.value(Keys::Speed), 3);
        first.set(Keys::Maximized, true);
        QCOMPARE(second.get(Keys::Maximized.key), QStringLiteral("True"));
        QVERIFY(second.value(Keys::Maximized));
        first.set(Keys::RefreshServers, false);
        QCOMPARE(second.get(Keys::RefreshServers.key), QStringLiteral("0"));
        QCOMPARE(changed.size(), 3);
        QCOMPARE(changed.first().first().toString(), QStringLiteral("Speed"));
    }

    void batchWritesLandTogether()
    {
        SettingsStore store(path("batch.ini"));
        const SettingsStore other(path("batch.ini"));
        {
            const SettingsStore::Batch batch(store);
            store.saveNumber(Keys::Speed.key, 2);
            {
                const SettingsStore::Batch inner(store);
                store.save(Keys::PlayerName.key, QStringLiteral("a\x01"
                                                                "b"));
            }
            QCOMPARE(store.getNumber(Keys::Speed.key, 5), 2); // the batch reads its own writes
            QFile file(store.filePath());
            QVERIFY(!file.open(QIODevice::ReadOnly) || !file.readAll().contains("Speed")); // not on disk yet
        }
        QCOMPARE(other.getNumber(Keys::Speed.key, 5), 2);
        QCOMPARE(other.get(Keys::PlayerName.key), QStringLiteral("a\x01"
                                                                 "b"));
    }

    void valuesLiveInTheSettingsGroup()
    {
        SettingsStore store(path("group.ini"));
        store.save(Keys::Path.key, QStringLiteral("/opt/quake4/quake4"));
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
        QCOMPARE(store.get(Keys::PlayerName.key), QStringLiteral("a,b"));
        QCOMPARE(store.getNumber(Keys::Speed.key, 5), 12);
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
        QCOMPARE(store.getNumber(Keys::Tab.key, 1), 1);
        QCOMPARE(store.get(Keys::PlayerName.key, QStringLiteral("x")), QStringLiteral("x"));
    }

    void aLockLeftByACrashDoesNotHoldUpSaving()
    {
        // Killed after creating its lock, before writing into it.
        const QString file = path("crashed.ini");
        QFile lock(file + QStringLiteral(".lock"));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addSecs(-5), QFileDevice::FileModificationTime));
        lock.close();
        SettingsStore store(file);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(store.save(Keys::PlayerName.key, QStringLiteral("x")));
        QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(store.get(Keys::PlayerName.key), QStringLiteral("x"));
        {
            // The same in a batch.
            QVERIFY(lock.open(QIODevice::WriteOnly));
            QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addSecs(-5), QFileDevice::FileModificationTime));
            lock.close();
            const SettingsStore::Batch batch(store);
            store.save(Keys::Password.key, QStringLiteral("y"));
        }
        QCOMPARE(store.get(Keys::Password.key), QStringLiteral("y"));
        QVERIFY(clock.elapsed() < 6000);
    }

    void unwritableLocationIsReported()
    {
        QFile blocker(path("not-a-folder"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        SettingsStore store(path("not-a-folder") + QStringLiteral("/settings.ini"));
        QVERIFY(!store.save(Keys::PlayerName.key, QStringLiteral("x")));
        QCOMPARE(store.get(Keys::PlayerName.key), QString());
    }
};

QTEST_GUILESS_MAIN(TestSettingsStore)
#include "tst_settingsstore.moc"
