// SPDX-License-Identifier: GPL-2.0-or-later
#include "fakemachine.h"
#include "game/gameinstalls.h"
#include "game/installfinder.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

QStringList described(const QList<GameInstall>& installs)
{
    QStringList lines;
    for (const GameInstall& install : installs)
        lines << install.settingText() + QStringLiteral(" by ") + QFileInfo(install.program).fileName() +
                     (install.prefix.isEmpty() ? QString() : QStringLiteral(" in ") + install.prefix);
    return lines;
}

} // namespace

class TestInstallFinder final : public QObject {
    Q_OBJECT

private slots:
    // Every Steam root, reached directly or through ~/.steam/steam's link,
    // each library once, in both formats of libraryfolders.vdf.
    void steamRootsAndLibraries()
    {
        FakeMachine m;
        m.program(QStringLiteral("bin/steam"));
        const QString root = QStringLiteral("home/.local/share/Steam");
        m.link(m.path(root), QStringLiteral("home/.steam/steam"));
        m.write(root + QStringLiteral("/steamapps/libraryfolders.vdf"),
                QStringLiteral("\"libraryfolders\" { \"0\" { \"path\" \"%1\" } \"1\" { \"path\" \"%2\" } "
                               "\"2\" { \"path\" \"%3\" } \"3\" { \"path\" \"%4\" } }")
                    .arg(m.path(root), m.path(QStringLiteral("disk1")), m.home(QStringLiteral(".steam/steam")),
                         m.path(QStringLiteral("gone")))
                    .toUtf8());
        m.steamGame(QStringLiteral("disk1"));
        // An old client's root, with the old format and a second copy.
        const QString old = QStringLiteral("home/.steam/debian-installation");
        m.write(old + QStringLiteral("/steamapps/libraryfolders.vdf"),
                QStringLiteral("\"LibraryFolders\" { \"TimeNextStatsReport\" \"1\" \"1\" \"%1\" }")
                    .arg(m.path(QStringLiteral("disk 2")))
                    .toUtf8());
        m.steamGame(QStringLiteral("disk 2"));

        const QString steam = QStringLiteral(" by steam");
        QCOMPARE(described(InstallFinder::find(m.places())),
                 (QStringList{
                     QStringLiteral("steam:") + m.real(QStringLiteral("disk1/steamapps/common/Quake 4")) + steam,
                     QStringLiteral("steam:") + m.real(QStringLiteral("disk 2/steamapps/common/Quake 4")) + steam}));

        // Without steam on PATH, Valve's own script starts the client.
        QFile::remove(m.path(QStringLiteral("bin/steam")));
        m.program(root + QStringLiteral("/steam.sh"));
        const QList<GameInstall> found = InstallFinder::find(m.places());
        QCOMPARE(found.size(), 1);
        QCOMPARE(QFileInfo(found.first().program).fileName(), QStringLiteral("steam.sh"));
    }

    void flatpakSteamNeedsFlatpak()
    {
        FakeMachine m;
        const QString root = QStringLiteral("home/.var/app/com.valvesoftware.Steam/.local/share/Steam");
        m.steamGame(root);
        QCOMPARE(InstallFinder::find(m.places()).size(), 0);
        m.program(QStringLiteral("bin/flatpak"));
        QCOMPARE(described(InstallFinder::find(m.places())),
                 QStringList{QStringLiteral("flatpak-steam:") +
                             m.real(root + QStringLiteral("/steamapps/common/Quake 4")) +
                             QStringLiteral(" by flatpak")});
    }

    // Steam's files are the user's: a manifest that climbs out, a FIFO,
    // a library file of 2 MiB cost nothing and hang nothing.
    void hostileSteamFiles()
    {
        FakeMachine m;
        m.program(QStringLiteral("bin/steam"));
        const QString root = QStringLiteral("home/.local/share/Steam");
        m.write(root + QStringLiteral("/steamapps/appmanifest_2210.acf"),
                "\"AppState\" { \"installdir\" \"../../../..\" }");
        m.write(root + QStringLiteral("/steamapps/libraryfolders.vdf"),
                "\"libraryfolders\" { \"0\" \"" + QByteArray(2 * 1024 * 1024, 'a') + "\" }");
        const QString fifoLibrary = QStringLiteral("home/.steam/debian-installation");
        QDir().mkpath(m.path(fifoLibrary + QStringLiteral("/steamapps")));
        QCOMPARE(QProcess::execute(QStringLiteral("mkfifo"),
                                   {m.path(fifoLibrary + QStringLiteral("/steamapps/appmanifest_2210.acf"))}),
                 0);
        QCOMPARE(InstallFinder::find(m.places()).size(), 0);
    }

    // The launcher first: it sets up the libraries the binary needs.
    void linuxReleaseLayouts()
    {
        FakeMachine m;
        for (const char* name : {"quake4", "quake4.x86", "quake4smp.x86"})
            m.program(QStringLiteral("root/usr/local/games/quake4/") + QLatin1String(name));
        m.program(QStringLiteral("root/opt/quake4/quake4smp.x86"));
        m.program(QStringLiteral("root/usr/lib/quake4/quake4.x86"));
        // Not executable: no program.
        m.write(QStringLiteral("home/.local/share/quake4/quake4"), "#!/bin/sh\n");
        m.program(QStringLiteral("home/.local/share/quake4/quake4.x86"));
        // id's installer links its launcher onto PATH: the same install.
        m.link(m.path(QStringLiteral("root/usr/local/games/quake4/quake4")), QStringLiteral("bin/quake4"));

        const QString home = m.home(QStringLiteral(".quake4"));
        const QList<GameInstall> found = InstallFinder::find(m.places());
        QCOMPARE(described(found),
                 (QStringList{QStringLiteral("linux:") + m.real(QStringLiteral("root/usr/local/games/quake4")) +
                                  QStringLiteral(" by quake4"),
                              QStringLiteral("linux:") + m.real(QStringLiteral("root/opt/quake4")) +
                                  QStringLiteral(" by quake4smp.x86"),
                              QStringLiteral("linux:") + m.real(QStringLiteral("root/usr/lib/quake4")) +
                                  QStringLiteral(" by quake4.x86"),
                              QStringLiteral("linux:") + m.real(QStringLiteral("home/.local/share/quake4")) +
                                  QStringLiteral(" by quake4.x86")}));
        QCOMPARE(found.first().gameFolders(), (QStringList{found.first().folder, home}));

        // A launcher on PATH of its own (a wrapper script) is one more.
        FakeMachine other;
        other.program(QStringLiteral("bin/quake4"));
        QCOMPARE(
            described(InstallFinder::find(other.places())),
            QStringList{QStringLiteral("linux:") + other.real(QStringLiteral("bin")) + QStringLiteral(" by quake4")});
    }

    void wineInEveryPrefix()
    {
        FakeMachine m;
        m.write(QStringLiteral("home/.wine/drive_c/Program Files/id Software/Quake 4/quake4.exe"), "MZ");
        m.write(QStringLiteral("games/drive_c/Program Files (x86)/id Software/Quake 4/quake4.exe"), "MZ");
        GamePlaces places = m.places();
        places.winePrefixes << m.path(QStringLiteral("games")) << m.home(QStringLiteral(".wine"));
        QCOMPARE(InstallFinder::find(places).size(), 0);
        m.program(QStringLiteral("bin/wine"));
        QCOMPARE(described(InstallFinder::find(places)),
                 (QStringList{QStringLiteral("wine:") +
                                  m.real(QStringLiteral("home/.wine/drive_c/Program Files/id Software/Quake 4")) +
                                  QStringLiteral("/quake4.exe by wine in ") + m.home(QStringLiteral(".wine")),
                              QStringLiteral("wine:") +
                                  m.real(QStringLiteral("games/drive_c/Program Files (x86)/id Software/Quake 4")) +
                                  QStringLiteral("/quake4.exe by wine in ") + m.path(QStringLiteral("games"))}));
    }

    // What the settings name: an install found, a Path kept from before, a
    // Windows build run by Wine wherever it lies; a gone one is none.
    void theChoiceInTheSettings()
    {
        FakeMachine m;
        m.program(QStringLiteral("bin/steam"));
        m.program(QStringLiteral("bin/wine"));
        m.steamGame(QStringLiteral("home/.local/share/Steam"));
        m.write(QStringLiteral("elsewhere/quake4.exe"), "MZ");
        const GamePlaces places = m.places();
        const QList<GameInstall> found = InstallFinder::find(places);
        QCOMPARE(found.size(), 1);

        QCOMPARE(InstallFinder::chosen(found.first().settingText(), {}, found, places), found.first());
        QCOMPARE(InstallFinder::chosen(QStringLiteral("steam:/gone"), {}, found, places), std::nullopt);
        QCOMPARE(InstallFinder::chosen({}, {}, found, places), std::nullopt);
        const auto kept = InstallFinder::chosen({}, QStringLiteral("/opt/q4/quake4.x86"), found, places);
        QVERIFY(kept);
        QCOMPARE(kept->kind, GameInstall::Kind::Program);
        QCOMPARE(kept->gameFolders(), (QStringList{"/opt/q4", m.home(QStringLiteral(".quake4"))}));
        QCOMPARE(InstallFinder::chosen(GameInstall::PickedSetting, {}, found, places), std::nullopt);

        const QString exe = m.path(QStringLiteral("elsewhere/quake4.exe"));
        const auto wine = InstallFinder::chosen(QStringLiteral("wine:") + exe, {}, found, places);
        QVERIFY(wine);
        QCOMPARE(wine->folder, m.path(QStringLiteral("elsewhere")));
        QCOMPARE(wine->prefix, QString());
        QCOMPARE(wine->settingText(), QStringLiteral("wine:") + exe);
        QVERIFY(GameInstall::picked(exe, {}).isWindowsBuild());
    }

    // Looked for off the window's thread; asked again while looking, the
    // disk as it is then counts.
    void lookingRunsOnceAndAgainOnRequest()
    {
        FakeMachine m;
        m.program(QStringLiteral("bin/steam"));
        GameInstalls installs(m.places());
        QSignalSpy looked(&installs, &GameInstalls::looked);
        installs.look();
        installs.look();
        m.steamGame(QStringLiteral("home/.local/share/Steam"));
        installs.lookAgain();
        QVERIFY(looked.wait(5000));
        QCOMPARE(installs.found().size(), 1);
        QTest::qWait(50);
        QCOMPARE(looked.size(), 1);
        installs.look();
        QCOMPARE(looked.size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestInstallFinder)
#include "tst_installfinder.moc"
