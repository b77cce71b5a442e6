// SPDX-License-Identifier: GPL-2.0-or-later
#include "savecontents.h"

#include <QDir>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

// A program killed while it saves leaves the old file or the new one,
// never a mix: every data file is written beside itself and renamed.
class TestCrashSafety final : public QObject {
    Q_OBJECT

private slots:
    void killedWhileSavingLeavesAWholeFile_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("favourites.dat") << QStringLiteral("favourites");
        QTest::newRow("filters.dat") << QStringLiteral("filters");
        QTest::newRow("Settings.ini") << QStringLiteral("settings");
        QTest::newRow("Themes.ini") << QStringLiteral("themes");
    }

    void killedWhileSavingLeavesAWholeFile()
    {
        QFETCH(QString, kind);
        const auto which = SaveContents::kindNamed(kind);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("data"));
        QVERIFY(SaveContents::save(*which, dir.filePath(QStringLiteral("first")), false));
        QVERIFY(SaveContents::save(*which, dir.filePath(QStringLiteral("second")), true));
        const QByteArray first = SaveContents::bytesOf(dir.filePath(QStringLiteral("first")));
        const QByteArray second = SaveContents::bytesOf(dir.filePath(QStringLiteral("second")));
        QVERIFY(!first.isEmpty() && first != second);
        QVERIFY(SaveContents::save(*which, path, false));

        QRandomGenerator random(20261122);
        int changed = 0;
        QByteArray before = first;
        for (int kill = 0; kill < 80; ++kill) {
            // A lock left empty by the last kill is the hardest case; the
            // next saver must get past it.
            QProcess saver;
            saver.start(QStringLiteral(SAVE_STRESS), {kind, path});
            QVERIFY(saver.waitForReadyRead(10000));
            QThread::usleep(random.bounded(0, 20000));
            saver.kill();
            QVERIFY(saver.waitForFinished());
            const QByteArray now = SaveContents::bytesOf(path);
            QVERIFY2(now == first || now == second,
                     qPrintable(QStringLiteral("kill %1 left %2 bytes").arg(kill).arg(now.size())));
            changed += now != before;
            before = now;
        }
        // The kills came while it was saving, not before it began.
        QVERIFY2(changed > 10, qPrintable(QString::number(changed)));
    }
};

QTEST_GUILESS_MAIN(TestCrashSafety)
#include "tst_crashsafety.moc"
