// SPDX-License-Identifier: GPL-2.0-or-later
// How long looking for the game's installs takes on a machine laid out as
// a player's with three Steam libraries (each holding 300 other games), the
// Linux release and a Wine prefix; and on this machine as it is.
#include "fakemachine.h"
#include "game/installfinder.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

int installs()
{
    FakeMachine machine;
    machine.program(QStringLiteral("bin/steam"));
    machine.program(QStringLiteral("bin/wine"));
    const QString root = QStringLiteral("home/.local/share/Steam");
    QByteArray folders = "\"libraryfolders\"\n{\n";
    const QStringList libraries{root, QStringLiteral("disk1/SteamLibrary"), QStringLiteral("disk2/SteamLibrary")};
    for (int i = 0; i < libraries.size(); ++i) {
        folders += "\t\"" + QByteArray::number(i) + "\"\n\t{\n\t\t\"path\"\t\t\"" +
                   machine.path(libraries.at(i)).toUtf8() + "\"\n\t\t\"apps\"\n\t\t{\n";
        for (int app = 0; app < 300; ++app) {
            const QByteArray id = QByteArray::number(100000 + i * 1000 + app);
            folders += "\t\t\t\"" + id + "\"\t\t\"1000\"\n";
            machine.write(libraries.at(i) +
                              QStringLiteral("/steamapps/appmanifest_%1.acf").arg(QString::fromLatin1(id)),
                          "\"AppState\" { \"appid\" \"" + id + "\" \"installdir\" \"Game " + id + "\" }");
        }
        folders += "\t\t}\n\t}\n";
    }
    folders += "}\n";
    machine.write(root + QStringLiteral("/steamapps/libraryfolders.vdf"), folders);
    machine.steamGame(libraries.last());
    machine.program(QStringLiteral("root/usr/local/games/quake4/quake4"));
    machine.write(QStringLiteral("home/.wine/drive_c/Program Files/id Software/Quake 4/quake4.exe"), "MZ");

    QList<qint64> times;
    qsizetype found = 0;
    for (int run = 0; run < 50; ++run) {
        QElapsedTimer timer;
        timer.start();
        found = InstallFinder::find(machine.places()).size();
        times << timer.nsecsElapsed() / 1000;
    }
    std::sort(times.begin(), times.end());
    std::printf("installs: 3 Steam libraries (900 apps), the Linux release, Wine: %lld found, median %.2f ms, "
                "slowest %.2f ms of 50 looks\n",
                qlonglong(found), times.at(times.size() / 2) / 1000.0, times.last() / 1000.0);

    QElapsedTimer timer;
    timer.start();
    found = InstallFinder::find(GamePlaces::ofThisMachine()).size();
    std::printf("installs: this machine: %lld found in %.2f ms\n", qlonglong(found), timer.nsecsElapsed() / 1e6);
    return 0;
}
