// SPDX-License-Identifier: GPL-2.0-or-later
#include "fakemachine.h"
#include "fleet.h"
#include "mainwindow/serverlistmodel.h"
#include "testports.h"
#include "testwindow.h"
#include "zipfiles.h"

#include <QTest>

namespace {

const quint16 StartPort = TestPorts::at(2000);
const quint16 MasterPort = TestPorts::at(1);
const QString SteamGame = QStringLiteral("home/.local/share/Steam/steamapps/common/Quake 4");

// A player's machine (nothing installed until the test lays it out) and a
// window that has queried a small fleet: a stock map, a map no install
// has, and a mod's server on a stock map.
struct Machine : FakeMachine, RunningFleet, TestWindow {
    explicit Machine(const std::function<void(Machine&)>& layOut = {})
        : RunningFleet(fleetOf(3, MasterPort))
        , TestWindow(MasterPort, StartPort, [this, layOut](SettingsStore& settings) {
            settings.save(Keys::RefreshServers.key, QStringLiteral("0"));
            settings.save(Keys::CloseAfterJoin.key, QStringLiteral("0"));
            desktop.places = places();
            if (layOut)
                layOut(*this);
        })
    {
        fleet.setServer(0, {{"si_name", "Stock"}, {"si_map", "mp/q4dm1"}, {"si_maxplayers", "8"}}, {});
        fleet.setServer(1, {{"si_name", "Custom"}, {"si_map", "mp/q4dm9"}, {"si_maxplayers", "8"}}, {});
        fleet.setServer(2, {{"si_name", "Modded"}, {"si_map", "mp/q4dm1"}, {"fs_game", "q4max"}}, {});
        if (!queryMasters())
            qFatal("the query did not finish");
    }
    // The game in Steam's default library, its q4base holding the stock maps.
    void steam()
    {
        program(QStringLiteral("bin/steam"));
        steamGame(QStringLiteral("home/.local/share/Steam"));
        if (!writeZip(path(SteamGame + QStringLiteral("/q4base/pak001.pk4")), {"maps/mp/q4dm1.map"}))
            qFatal("no archive");
    }
    QString address(int server) const { return QStringLiteral("127.0.0.1:%1").arg(MasterPort + 1 + server); }
    void join(int server) const
    {
        ReportView* servers = list("lstServerList");
        for (int row = 0; row < servers->model()->rowCount(); ++row) {
            if (servers->model()->index(row, ServerListModel::Address).data().toString() != address(server))
                continue;
            const QPoint at = servers->visualRect(servers->model()->index(row, 0)).center();
            QTest::mouseClick(servers->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(servers->viewport(), Qt::LeftButton, {}, at);
            return;
        }
        qFatal("server not listed");
    }
    QStringList connect(int server) const { return {"+connect", address(server)}; }
};

} // namespace

class TestFrmMainGame final : public QObject {
    Q_OBJECT

private slots:
    // The one install found is taken and said; the map check reads its
    // q4base on the very first join and asks only when the map or the
    // mod is really missing.
    void oneInstallIsTakenSaidAndMapChecked()
    {
        Machine m([](Machine& machine) { machine.steam(); });
        m.join(0);
        QTRY_COMPARE(m.desktop.starts.size(), 1);
        QVERIFY(m.desktop.messages.isEmpty());
        QVERIFY(m.desktop.fileRequests.isEmpty());
        const auto& start = m.desktop.starts.first();
        QCOMPARE(start.program, m.path(QStringLiteral("bin/steam")));
        QCOMPARE(start.arguments, QStringList({"-applaunch", "2210"}) + m.connect(0));
        QCOMPARE(start.workingFolder, m.real(SteamGame));
        QCOMPARE(m.status(), QStringLiteral("Connecting to %1\nUsing the game found on this machine: Steam: %2. "
                                            "Options can choose another.")
                                 .arg(m.address(0), m.real(SteamGame)));
        QCOMPARE(m.settings().get(Keys::Game.key), QStringLiteral("steam:") + m.real(SteamGame));

        m.desktop.messageAnswers.enqueue(QMessageBox::No);
        m.join(1);
        QTRY_COMPARE(m.desktop.messages.size(), 1);
        QCOMPARE(m.desktop.messages.last().text, QStringLiteral("mp/q4dm9 is not installed. Join anyway?"));
        QCOMPARE(m.desktop.starts.size(), 1);
        // The map is in q4base, but the server's mod is not there.
        m.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        m.join(2);
        QCOMPARE(m.desktop.messages.size(), 2);
        QCOMPARE(m.desktop.messages.last().text, QStringLiteral("mp/q4dm1 is not installed (mod q4max). Join anyway?"));
        QCOMPARE(m.desktop.starts.size(), 2);

        // A start that fails keeps the window open, whatever the setting.
        m.settings().save(Keys::CloseAfterJoin.key, QStringLiteral("1"));
        m.desktop.startSucceeds = false;
        m.join(0);
        QCOMPARE(m.desktop.starts.size(), 3);
        QVERIFY(m.window->isVisible());
        QCOMPARE(m.status(),
                 QStringLiteral("The game could not be started: %1.").arg(m.path(QStringLiteral("bin/steam"))));
        QCOMPARE(m.desktop.unexpectedCalls, 0);
    }

    // Several installs: the player picks one in a list, once.
    void severalInstallsArePickedOnce()
    {
        Machine m([](Machine& machine) {
            machine.steam();
            machine.program(QStringLiteral("bin/flatpak"));
            machine.steamGame(QStringLiteral("home/.var/app/com.valvesoftware.Steam/.local/share/Steam"));
            writeZip(machine.path(QStringLiteral("home/.var/app/com.valvesoftware.Steam/.local/share/Steam/steamapps/"
                                                 "common/Quake 4/q4base/pak001.pk4")),
                     {"maps/mp/q4dm1.map"});
            machine.program(QStringLiteral("root/usr/local/games/quake4/quake4"));
            machine.program(QStringLiteral("root/usr/local/games/quake4/quake4.x86"));
            machine.program(QStringLiteral("bin/wine"));
            machine.write(QStringLiteral("home/.wine/drive_c/Program Files/id Software/Quake 4/quake4.exe"), "MZ");
        });
        m.desktop.choiceAnswers.enqueue(2);
        m.join(0);
        QTRY_COMPARE(m.desktop.starts.size(), 1);
        QCOMPARE(m.desktop.choices.size(), 1);
        const QString linux = m.real(QStringLiteral("root/usr/local/games/quake4"));
        const QString wine = m.real(QStringLiteral("home/.wine/drive_c/Program Files/id Software/Quake 4"));
        QCOMPARE(m.desktop.choices.first().items,
                 (QStringList{QStringLiteral("Steam: ") + m.real(SteamGame),
                              QStringLiteral("Steam (Flatpak): ") +
                                  m.real(QStringLiteral("home/.var/app/com.valvesoftware.Steam/.local/share/Steam/"
                                                        "steamapps/common/Quake 4")),
                              QStringLiteral("Linux release: ") + linux,
                              QStringLiteral("Wine: ") + wine + QStringLiteral("/quake4.exe")}));
        QCOMPARE(m.desktop.starts.first().program, linux + QStringLiteral("/quake4"));
        QCOMPARE(m.desktop.starts.first().workingFolder, linux);
        QCOMPARE(m.desktop.starts.first().arguments, m.connect(0));

        m.join(0);
        QCOMPARE(m.desktop.starts.size(), 2);
        QCOMPARE(m.desktop.choices.size(), 1);

        // Flatpak Steam and Wine, chosen, start as they work.
        m.settings().save(Keys::Game.key, QStringLiteral("flatpak-steam:") +
                                              m.real(QStringLiteral("home/.var/app/com.valvesoftware.Steam/.local/"
                                                                    "share/Steam/steamapps/common/Quake 4")));
        m.join(0); // its q4base is read first
        QTRY_COMPARE(m.desktop.starts.size(), 3);
        QCOMPARE(m.desktop.starts.last().program, m.path(QStringLiteral("bin/flatpak")));
        QCOMPARE(m.desktop.starts.last().arguments,
                 QStringList({"run", "com.valvesoftware.Steam", "-applaunch", "2210"}) + m.connect(0));
        m.settings().save(Keys::Game.key, QStringLiteral("wine:") + wine + QStringLiteral("/quake4.exe"));
        m.join(0);
        QTRY_COMPARE(m.desktop.starts.size(), 4);
        QCOMPARE(m.desktop.starts.last().program, m.path(QStringLiteral("bin/wine")));
        QCOMPARE(m.desktop.starts.last().arguments, QStringList{"quake4.exe"} + m.connect(0));
        QCOMPARE(m.desktop.starts.last().workingFolder, wine);
        QCOMPARE(m.desktop.starts.last().environment, QStringList{"WINEPREFIX=" + m.home(QStringLiteral(".wine"))});
        QCOMPARE(m.desktop.unexpectedCalls, 0);
    }

    // An .exe picked (or kept from before) is never started by itself: it
    // is offered to Wine or Steam, or the box says what would run it.
    void aWindowsBuildIsOfferedToWine()
    {
        Machine m([](Machine& machine) {
            machine.program(QStringLiteral("bin/wine"));
            machine.write(QStringLiteral("games/q4/quake4.exe"), "MZ");
        });
        const QString exe = m.path(QStringLiteral("games/q4/quake4.exe"));
        m.desktop.fileAnswers.enqueue(exe);
        m.desktop.messageAnswers.enqueue(QMessageBox::No); // "Through Wine"
        m.join(0);
        QTRY_COMPARE(m.desktop.starts.size(), 1);
        QCOMPARE(m.desktop.messages.first().text,
                 exe + QStringLiteral(" is the game's Windows build, which this system cannot start by itself. Start "
                                      "it through Wine?"));
        QCOMPARE(m.desktop.messages.first().buttonTexts.value(QMessageBox::No), QStringLiteral("Through Wine"));
        QCOMPARE(m.desktop.starts.first().program, m.path(QStringLiteral("bin/wine")));
        QCOMPARE(m.desktop.starts.first().arguments, QStringList{"quake4.exe"} + m.connect(0));
        QCOMPARE(m.desktop.starts.first().environment, QStringList{});
        QCOMPARE(m.settings().get(Keys::Game.key), QStringLiteral("wine:") + exe);
        QCOMPARE(m.settings().get(Keys::Path.key), exe);
        m.join(0);
        QCOMPARE(m.desktop.starts.size(), 2);
        QCOMPARE(m.desktop.messages.size(), 1);
        QCOMPARE(m.desktop.unexpectedCalls, 0);
    }

    // An .exe kept from before, with neither Steam nor Wine here: the box
    // says why and what would run it; nothing starts.
    void aWindowsBuildWithNothingToRunIt()
    {
        Machine m;
        m.settings().save(Keys::Path.key, QStringLiteral("/games/q4/quake4.exe"));
        m.desktop.messageAnswers.enqueue(QMessageBox::Ok);
        m.join(0);
        QTRY_COMPARE(m.desktop.messages.size(), 1);
        QCOMPARE(m.desktop.messages.first().icon, Desktop::Icon::Warning);
        QVERIFY(m.desktop.messages.first().text.contains(QStringLiteral("neither Steam with the game nor Wine")));
        QVERIFY(m.desktop.starts.isEmpty());
        QVERIFY(m.window->isVisible());
    }

    // The same, with Steam having the game: Steam runs it.
    void aWindowsBuildIsOfferedToSteam()
    {
        Machine m([](Machine& machine) { machine.steam(); });
        m.settings().save(Keys::Path.key, m.path(SteamGame + QStringLiteral("/quake4.exe")));
        m.desktop.messageAnswers.enqueue(QMessageBox::Yes); // "Through Steam"
        m.join(0);
        QTRY_COMPARE(m.desktop.starts.size(), 1);
        QCOMPARE(m.desktop.messages.first().buttonTexts.value(QMessageBox::Yes), QStringLiteral("Through Steam"));
        QCOMPARE(m.desktop.starts.first().program, m.path(QStringLiteral("bin/steam")));
        QCOMPARE(m.settings().get(Keys::Game.key), QStringLiteral("steam:") + m.real(SteamGame));
    }

    // Enter pressed three times while the installs and the archives are
    // still read is one join, the last.
    void oneJoinWaitsAtATime()
    {
        Machine m([](Machine& machine) { machine.steam(); });
        m.join(2);
        m.join(0);
        m.join(0);
        QTRY_COMPARE(m.desktop.starts.size(), 1);
        QTest::qWait(200);
        QCOMPARE(m.desktop.starts.size(), 1);
        QCOMPARE(m.desktop.starts.first().arguments.last(), m.address(0));
        QVERIFY(m.desktop.messages.isEmpty());
    }
};

QTEST_MAIN(TestFrmMainGame)
#include "tst_frmmain_game.moc"
