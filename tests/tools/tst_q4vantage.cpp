#include <QProcess>
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
        std::unique_ptr<QProcess> version(startHeadless({QStringLiteral("--version")}));
        QVERIFY(version->waitForFinished(10000));
        QCOMPARE(version->exitStatus(), QProcess::NormalExit);
        QCOMPARE(version->exitCode(), 0);
        QCOMPARE(version->readAllStandardOutput().trimmed(), QByteArray("Quake 4 Vantage " Q4V_VERSION));

        std::unique_ptr<QProcess> help(startHeadless({QStringLiteral("--help")}));
        QVERIFY(help->waitForFinished(10000));
        QCOMPARE(help->exitCode(), 0);
        const QByteArray text = help->readAllStandardOutput();
        QVERIFY2(text.contains("Usage:") && text.contains("--version"), text.constData());
    }
};

QTEST_GUILESS_MAIN(TestProgram)
#include "tst_q4vantage.moc"
