// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/joincommand.h"
#include "platform/desktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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
        QVERIFY(desktop.startDetached(command.program, command.arguments, command.workingFolder));
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
};

QTEST_MAIN(TestJoinCommand)
#include "tst_joincommand.moc"
