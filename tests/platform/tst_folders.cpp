// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/folders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestFolders final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void writableProgramFolderIsUsed()
    {
        const QString program = m_dir.filePath(QStringLiteral("portable"));
        QVERIFY(QDir().mkpath(program));
        const QString user = m_dir.filePath(QStringLiteral("user"));
        QCOMPARE(Folders::chooseDataFolder(program, user), program);
        QVERIFY2(!QDir(user).exists(), "the user folder is made only when needed");
        QCOMPARE(QDir(program).entryList(QDir::Files | QDir::Hidden).size(), 0); // probe removed
    }

    void unwritableProgramFolderFallsBackToTheUserFolder()
    {
        // A path below a plain file can never hold files, whatever the
        // permissions of the user running the test (root included).
        const QString file = m_dir.filePath(QStringLiteral("plain-file"));
        QFile blocker(file);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const QString user = m_dir.filePath(QStringLiteral("user/deeper"));
        QCOMPARE(Folders::chooseDataFolder(file + QStringLiteral("/bin"), user), user);
        QVERIFY(QDir(user).exists());
        QCOMPARE(Folders::chooseDataFolder(QString(), user), user);
    }

    void anInstalledProgramKeepsItsDataWithTheUser()
    {
        // A prefix as the install leaves it: bin/ and the metadata in share/,
        // writable here as /usr/bin is for root.
        const QString prefix = m_dir.filePath(QStringLiteral("usr"));
        QVERIFY(QDir().mkpath(prefix + QStringLiteral("/bin")));
        QVERIFY(QDir().mkpath(prefix + QStringLiteral("/share/metainfo")));
        const QString user = m_dir.filePath(QStringLiteral("home-data"));
        QCOMPARE(Folders::chooseDataFolder(prefix + QStringLiteral("/bin"), user), prefix + QStringLiteral("/bin"));
        QFile metadata(prefix + QStringLiteral("/share/metainfo/org.q4vantage.Q4Vantage.metainfo.xml"));
        QVERIFY(metadata.open(QIODevice::WriteOnly));
        metadata.close();
        QVERIFY(Folders::isInstalled(prefix + QStringLiteral("/bin")));
        QCOMPARE(Folders::chooseDataFolder(prefix + QStringLiteral("/bin"), user), user);
    }

    void canCreateFilesIn()
    {
        QVERIFY(Folders::canCreateFilesIn(m_dir.path()));
        QVERIFY(!Folders::canCreateFilesIn(m_dir.filePath(QStringLiteral("missing"))));
    }
};

QTEST_GUILESS_MAIN(TestFolders)
#include "tst_folders.moc"
