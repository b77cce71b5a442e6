// SPDX-License-Identifier: GPL-2.0-or-later
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// The program itself, started as a user would start it.
class TestProgram final : public QObject {
    Q_OBJECT

    // Without any display: no X server, no offscreen platform.
    static QProcess* startHeadless(const QStringList& arguments)
    {
        auto* process = new QProcess;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        process->setProcessEnvironment(environment);
        process->start(QStringLiteral(PROGRAM), arguments);
        return process;
    }

private slots:
    void helpAndVersionNeedNoDisplay()
    {
        std::unique_ptr<QProcess> version(startHeadless({"--version"}));
        QVERIFY(version->waitForFinished(10000));
        QCOMPARE(version->exitStatus(), QProcess::NormalExit);
        QCOMPARE(version->exitCode(), 0);
        QCOMPARE(version->readAllStandardOutput().trimmed(), QByteArray("Quake 4 Vantage " Q4V_VERSION));

        std::unique_ptr<QProcess> help(startHeadless({"--help"}));
        QVERIFY(help->waitForFinished(10000));
        QCOMPARE(help->exitCode(), 0);
        const QByteArray text = help->readAllStandardOutput();
        QVERIFY2(text.contains("Usage:") && text.contains("--version"), text.constData());

        // An option nobody knows is refused with the usage, display or not.
        std::unique_ptr<QProcess> bogus(startHeadless({"--bogus"}));
        QVERIFY(bogus->waitForFinished(10000));
        QCOMPARE(bogus->exitCode(), 2);
        const QByteArray refusal = bogus->readAllStandardError();
        QVERIFY2(refusal.contains("Unknown option 'bogus'") && refusal.contains("Usage:"), refusal.constData());
    }

    // A second start while the program runs brings the running window to
    // the front and ends; after a crash the next start runs as usual.
    void aSecondStartUsesTheRunningWindow()
    {
        QTemporaryDir home;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        const auto start = [&environment] {
            auto process = std::make_unique<QProcess>();
            process->setProcessEnvironment(environment);
            process->start(QStringLiteral(PROGRAM), QStringList{});
            return process;
        };
        std::unique_ptr<QProcess> first = start();
        QVERIFY(first->waitForStarted(10000));
        QTest::qWait(1500);
        QCOMPARE(first->state(), QProcess::Running);

        std::unique_ptr<QProcess> second = start();
        QVERIFY(second->waitForFinished(10000));
        QCOMPARE(second->exitCode(), 0);
        QVERIFY(second->readAllStandardOutput().contains("already running"));
        QCOMPARE(first->state(), QProcess::Running);

        // Killed: its socket is left behind, and the next start takes over.
        first->kill();
        QVERIFY(first->waitForFinished(10000));
        std::unique_ptr<QProcess> third = start();
        QVERIFY(third->waitForStarted(10000));
        QVERIFY(!third->waitForFinished(2500));
        QCOMPARE(third->state(), QProcess::Running);
        third->terminate();
        QVERIFY(third->waitForFinished(10000));
    }
};

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_q4vantage.moc"
