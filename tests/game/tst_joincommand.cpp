// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/joincommand.h"
#include "platform/desktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

Q_DECLARE_METATYPE(GameInstall)

class TestJoinCommand final : public QObject {
    Q_OBJECT

private slots:
    void documentedExample()
    {
        const JoinCommand command = JoinCommand::make(QStringLiteral("/games/q4/quake4"), QStringLiteral("Player"),
                                                      QStringLiteral("10.0.0.5:28004"), QStringLiteral("pw1"));
        QCOMPARE(
            command.commandLine,
            QStringLiteral("/games/q4/quake4 +set ui_name \"Player\" +connect 10.0.0.5:28004 +set password \"pw1\""));
        QCOMPARE(command.arguments,
                 (QStringList{"+set", "ui_name", "Player", "+connect", "10.0.0.5:28004", "+set", "password", "pw1"}));
        QCOMPARE(command.workingFolder, QStringLiteral("/games/q4"));
        QCOMPARE(command.program, QStringLiteral("/games/q4/quake4"));
    }

    void emptyNameAndPasswordAreLeftOut()
    {
        const JoinCommand command =
            JoinCommand::make(QStringLiteral("/q4/quake4"), QString(), QStringLiteral("1.2.3.4:1"), QString());
        QCOMPARE(command.commandLine, QStringLiteral("/q4/quake4 +connect 1.2.3.4:1"));
        QCOMPARE(command.arguments, (QStringList{"+connect", "1.2.3.4:1"}));
    }

    void quotesInTheNameArePassedAsTheyAre()
    {
        const JoinCommand command = JoinCommand::make(QStringLiteral("/q4/quake4"), QStringLiteral("a\"b c"),
                                                      QStringLiteral("1.2.3.4:1"), QStringLiteral("p w;rm"));
        QCOMPARE(command.arguments.at(2), QStringLiteral("a\"b c"));
        QCOMPARE(command.arguments.last(), QStringLiteral("p w;rm"));
        QVERIFY(command.commandLine.contains(QStringLiteral("ui_name \"a\"b c\"")));
    }

    void theGameGetsItsArgumentsAndFolder()
    {
        // No shell in between: whatever a name or password holds arrives
        // as one argument each, exactly.
        QTemporaryDir dir;
        const QString record = dir.filePath(QStringLiteral("args.txt"));
        qputenv("Q4V_RECORD_TO", record.toUtf8());
        const JoinCommand command = JoinCommand::make(
            QStringLiteral(RECORD_ARGS), QStringLiteral("Name \"x\" 'y'; $(touch gotcha) `id`\nsecond line"),
            QStringLiteral("127.0.0.1:28004"), QStringLiteral("$HOME pw;|&>out\r\n"));
        QtDesktop desktop;
        QVERIFY(desktop.startDetached(command.program, command.arguments, command.workingFolder, {}));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(record) && QFile(record).size() > 0, 5000);
        QTest::qWait(100);
        QFile file(record);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QList<QByteArray> fields = file.readAll().split('\0');
        QVERIFY(fields.size() >= 2 && fields.last().isEmpty());
        fields.removeLast();
        QCOMPARE(QDir(QString::fromUtf8(fields.first())).canonicalPath(), QDir(command.workingFolder).canonicalPath());
        QStringList arguments;
        for (const QByteArray& field : fields.mid(1))
            arguments.append(QString::fromUtf8(field));
        QCOMPARE(arguments, command.arguments);
        QVERIFY(!QFile::exists(QDir(command.workingFolder).filePath(QStringLiteral("gotcha"))));
        QVERIFY(!QFile::exists(QStringLiteral("gotcha")));
    }

    // Each install as it is started: Steam and Flatpak Steam by the game's
    // number, the Linux release by its launcher, Wine with its prefix; the
    // game's own arguments in the documented order after them.
    void eachInstallItsCommand_data()
    {
        QTest::addColumn<GameInstall>("install");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QStringList>("environment");
        const QString steamGame = QStringLiteral("/home/p/.local/share/Steam/steamapps/common/Quake 4");
        QTest::newRow("steam") << GameInstall{GameInstall::Kind::Steam, steamGame, "/usr/games/steam", {}, {}, {}}
                               << QStringLiteral("/usr/games/steam -applaunch 2210")
                               << QStringList{"-applaunch", "2210"} << steamGame << QStringList{};
        QTest::newRow("flatpak")
            << GameInstall{GameInstall::Kind::FlatpakSteam, steamGame, "/usr/bin/flatpak", {}, {}, {}}
            << QStringLiteral("/usr/bin/flatpak run com.valvesoftware.Steam -applaunch 2210")
            << QStringList{"run", "com.valvesoftware.Steam", "-applaunch", "2210"} << steamGame << QStringList{};
        QTest::newRow("linux") << GameInstall{GameInstall::Kind::LinuxRelease,
                                              "/usr/local/games/quake4",
                                              "/usr/local/games/quake4/quake4",
                                              {},
                                              {},
                                              "/home/p/.quake4"}
                               << QStringLiteral("/usr/local/games/quake4/quake4") << QStringList{}
                               << QStringLiteral("/usr/local/games/quake4") << QStringList{};
        const QString wineGame = QStringLiteral("/home/p/.wine/drive_c/Program Files/id Software/Quake 4");
        QTest::newRow("wine") << GameInstall{GameInstall::Kind::Wine, wineGame,     "/usr/bin/wine",
                                             "/home/p/.wine",         "quake4.exe", {}}
                              << QStringLiteral("WINEPREFIX=/home/p/.wine /usr/bin/wine quake4.exe")
                              << QStringList{"quake4.exe"} << wineGame << QStringList{"WINEPREFIX=/home/p/.wine"};
        QTest::newRow("wine, default prefix")
            << GameInstall::throughWine(QStringLiteral("/games/q4/quake4.exe"), QStringLiteral("/usr/bin/wine"))
            << QStringLiteral("/usr/bin/wine quake4.exe") << QStringList{"quake4.exe"} << QStringLiteral("/games/q4")
            << QStringList{};
    }
    void eachInstallItsCommand()
    {
        QFETCH(GameInstall, install);
        QFETCH(QString, line);
        QFETCH(QStringList, before);
        QFETCH(QString, folder);
        QFETCH(QStringList, environment);
        const JoinCommand command = JoinCommand::make(install, QStringLiteral("Me \"x\""),
                                                      QStringLiteral("10.0.0.5:28004"), QStringLiteral("pw"));
        QCOMPARE(command.program, install.program);
        const QStringList game{"+set", "ui_name", "Me \"x\"", "+connect", "10.0.0.5:28004", "+set", "password", "pw"};
        QCOMPARE(command.arguments, before + game);
        QCOMPARE(command.commandLine,
                 line + QStringLiteral(" +set ui_name \"Me \"x\"\" +connect 10.0.0.5:28004 +set password \"pw\""));
        QCOMPARE(command.workingFolder, folder);
        QCOMPARE(command.environment, environment);
    }

    // Stand-in programs record what they were started with: the folder,
    // the prefix Wine is told and each argument.
    void standInsGetTheirArgumentsFolderAndPrefix()
    {
        QTemporaryDir dir;
        const QString record = dir.filePath(QStringLiteral("record"));
        const QString wine = dir.filePath(QStringLiteral("wine"));
        QFile script(wine);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nprintf '%s\\0' \"$PWD\" \"$WINEPREFIX\" \"$@\" > \"$0.tmp\" && mv \"$0.tmp\" \"" +
                     record.toUtf8() + "\"\n");
        script.close();
        script.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        const QString game = dir.filePath(QStringLiteral("prefix/drive_c/Program Files/id Software/Quake 4"));
        QVERIFY(QDir().mkpath(game));
        const JoinCommand command =
            JoinCommand::make(GameInstall::throughWine(game + QStringLiteral("/quake4.exe"), wine),
                              QStringLiteral("Me"), QStringLiteral("127.0.0.1:28004"), QString());
        QtDesktop desktop;
        QVERIFY(desktop.startDetached(command.program, command.arguments, command.workingFolder, command.environment));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(record), 5000);
        QFile file(record);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QList<QByteArray> fields = file.readAll().split('\0');
        fields.removeLast();
        QCOMPARE(QDir(QString::fromUtf8(fields.at(0))).canonicalPath(), QDir(game).canonicalPath());
        QCOMPARE(QString::fromUtf8(fields.at(1)), dir.filePath(QStringLiteral("prefix")));
        QStringList arguments;
        for (const QByteArray& field : fields.mid(2))
            arguments << QString::fromUtf8(field);
        QCOMPARE(arguments, (QStringList{"quake4.exe", "+set", "ui_name", "Me", "+connect", "127.0.0.1:28004"}));
    }
};

QTEST_MAIN(TestJoinCommand)
#include "tst_joincommand.moc"
