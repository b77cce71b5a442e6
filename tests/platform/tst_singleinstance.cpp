// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/singleinstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

namespace {

const QString Key = QStringLiteral("/home/player/.config/Quake 4 Vantage/Quake 4 Vantage.ini");

} // namespace

class TestSingleInstance final : public QObject {
    Q_OBJECT

private slots:
    void aSecondStartShowsTheFirstWindow()
    {
        QTemporaryDir folder;
        SingleInstance first(Key, folder.path());
        QVERIFY(first.claim());
        QVERIFY(first.socketPath().startsWith(folder.path()));
        QSignalSpy shown(&first, &SingleInstance::activationRequested);
        SingleInstance second(Key, folder.path());
        QVERIFY(!second.claim());
        QVERIFY(shown.wait(2000));
        // Other settings, another program.
        SingleInstance other(QStringLiteral("/elsewhere.ini"), folder.path());
        QVERIFY(other.claim());
    }

    // Of starts at the same moment, exactly one is the first; what lies at
    // the socket's place (a stranger listening, a file, a FIFO, a link)
    // never ends a start nor lets two share the files.
    void oneFirstWhateverLiesInTheWay_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::newRow("nothing") << QString();
        QTest::newRow("a listener") << "listener";
        QTest::newRow("a file") << "file";
        QTest::newRow("a FIFO") << "fifo";
        QTest::newRow("a link") << "link";
    }
    void oneFirstWhateverLiesInTheWay()
    {
        QFETCH(QString, obstacle);
        QTemporaryDir folder;
        const QString path = SingleInstance(Key, folder.path()).socketPath();
        QLocalServer stranger;
        if (obstacle == QLatin1String("listener"))
            QVERIFY(stranger.listen(path));
        if (obstacle == QLatin1String("file")) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        if (obstacle == QLatin1String("fifo"))
            QCOMPARE(QProcess::execute(QStringLiteral("mkfifo"), {path}), 0);
        if (obstacle == QLatin1String("link"))
            QVERIFY(QFile::link(folder.filePath(QStringLiteral("elsewhere")), path));
        std::vector<std::unique_ptr<SingleInstance>> starts;
        int firsts = 0;
        for (int i = 0; i < 5; ++i) {
            starts.push_back(std::make_unique<SingleInstance>(Key, folder.path()));
            firsts += starts.back()->claim() ? 1 : 0;
        }
        QCOMPARE(firsts, 1);
        QSignalSpy shown(starts.front().get(), &SingleInstance::activationRequested);
        QTRY_VERIFY(shown.size() >= 1);
    }

    // Held connections and endless bytes cost their peer alone: a real
    // second start still gets through, and garbage shows nothing.
    void floodsCostOnlyThePeer()
    {
        QTemporaryDir folder;
        SingleInstance first(Key, folder.path());
        QVERIFY(first.claim());
        QSignalSpy shown(&first, &SingleInstance::activationRequested);
        std::vector<std::unique_ptr<QLocalSocket>> held;
        for (int i = 0; i < 200; ++i) {
            held.push_back(std::make_unique<QLocalSocket>());
            held.back()->connectToServer(first.socketPath());
        }
        // Each held connection is closed after its time; those beyond the
        // cap at once.
        QTest::qWait(SingleInstance::AnswerMs + 300);
        for (const auto& socket : held)
            QVERIFY(socket->state() != QLocalSocket::ConnectedState);
        auto streamer = std::make_unique<QLocalSocket>();
        streamer->connectToServer(first.socketPath());
        QTRY_VERIFY(streamer->state() == QLocalSocket::ConnectedState);
        qint64 sent = 0;
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 1500 && streamer->state() == QLocalSocket::ConnectedState) {
            sent += streamer->write(QByteArray(64 * 1024, 'x'));
            QTest::qWait(5);
        }
        QVERIFY2(streamer->state() != QLocalSocket::ConnectedState, "an endless peer is cut off");
        QVERIFY2(sent < 64 * 1024 * 1024, qPrintable(QString::number(sent)));
        QCOMPARE(shown.size(), 0);
        SingleInstance second(Key, folder.path());
        QVERIFY(!second.claim());
        QVERIFY(shown.wait(2000));
    }
};

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
