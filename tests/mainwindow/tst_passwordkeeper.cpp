// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/passwordkeeper.h"
#include "scripteddesktop.h"
#include "userdata/settingsstore.h"
#include "widgets/historycombobox.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

// One run of the program as the password box sees it.
struct Run {
    Run(SettingsStore& settings, MemorySecrets& keyring)
        : keeper(settings, keyring, box)
    {
        keeper.restore();
    }
    HistoryComboBox box;
    PasswordKeeper keeper;
};

} // namespace

class TestPasswordKeeper final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    MemorySecrets m_keyring;

    QString stored() const { return m_keyring.values.value(PasswordKeeper::SecretKey.toString()); }

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("settings.ini")));
        m_settings = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("settings.ini")));
        m_keyring = MemorySecrets();
    }

    // A file of an older version: its passwords move to the keyring, and
    // once it holds them the file keeps none; the next run reads them back.
    void withAKeyringTheFileKeepsNoPassword()
    {
        m_settings->set(Keys::Password, QStringLiteral("old"));
        m_settings->set(Keys::PasswordBox, QStringList{"a", "b"});
        {
            Run run(*m_settings, m_keyring);
            QCOMPARE(run.box.currentText(), QStringLiteral("old"));
            QTRY_COMPARE(m_keyring.writes, 1);
            QCOMPARE(PasswordKeeper::decode(stored()), (PasswordKeeper::Kept{"old", {"a", "b"}}));
            QTest::qWait(0);
            run.keeper.writeOnClose();
        }
        QCOMPARE(m_settings->value(Keys::Password), QString());
        QCOMPARE(m_settings->value(Keys::PasswordBox), QStringList());
        QFile file(m_settings->filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("old"));

        Run again(*m_settings, m_keyring);
        QTRY_COMPARE(again.box.currentText(), QStringLiteral("old"));
        QCOMPARE(again.box.entries(), (QStringList{"a", "b"}));
    }

    // What the user types is stored a moment later; typed before the
    // keyring answered, it is not overwritten by the keyring's text.
    void typingWinsAndIsStoredSoon()
    {
        m_keyring.values.insert(PasswordKeeper::SecretKey.toString(), PasswordKeeper::encode({"kept", {"kept"}}));
        Run run(*m_settings, m_keyring);
        run.box.setEditText(QStringLiteral("typed"));
        QTest::qWait(0);
        QCOMPARE(run.box.currentText(), QStringLiteral("typed"));
        QCOMPARE(run.box.entries(), QStringList{"kept"});
        QTRY_COMPARE_WITH_TIMEOUT(PasswordKeeper::decode(stored()).value_or(PasswordKeeper::Kept{}).password,
                                  QStringLiteral("typed"), 3000);
        run.box.remember(QStringLiteral("typed"));
        QTRY_COMPARE_WITH_TIMEOUT(PasswordKeeper::decode(stored()).value_or(PasswordKeeper::Kept{}).remembered,
                                  (QStringList{"kept", "typed"}), 3000);
    }

    // Closed before the keyring confirmed: the file keeps them, so nothing
    // is lost; the next run moves them over and empties the file.
    void aCloseBeforeTheKeyringAnsweredLosesNothing()
    {
        {
            Run run(*m_settings, m_keyring);
            run.box.setEditText(QStringLiteral("late"));
            run.keeper.writeOnClose();
        }
        QCOMPARE(m_settings->value(Keys::Password), QStringLiteral("late"));
        Run again(*m_settings, m_keyring);
        QTRY_COMPARE(PasswordKeeper::decode(stored()).value_or(PasswordKeeper::Kept{}).password,
                     QStringLiteral("late"));
        QTest::qWait(0);
        again.keeper.writeOnClose();
        QCOMPARE(m_settings->value(Keys::Password), QString());
        QCOMPARE(again.box.currentText(), QStringLiteral("late"));
    }

    // No keyring on this desktop, or the user wants the file: the settings
    // file keeps them as it always did, and the keyring is never written.
    void otherwiseTheFileKeepsThem_data()
    {
        QTest::addColumn<bool>("available");
        QTest::addColumn<bool>("wanted");
        QTest::newRow("no keyring") << false << true;
        QTest::newRow("switched off") << true << false;
    }
    void otherwiseTheFileKeepsThem()
    {
        QFETCH(bool, available);
        QFETCH(bool, wanted);
        m_keyring.available = available;
        m_settings->set(Keys::PasswordsInKeyring, wanted);
        {
            Run run(*m_settings, m_keyring);
            QTest::qWait(0);
            run.box.setEditText(QStringLiteral("pw"));
            run.box.remember(QStringLiteral("pw"));
            QTest::qWait(1200);
            run.keeper.writeOnClose();
        }
        QCOMPARE(m_keyring.writes, 0);
        QCOMPARE(m_settings->value(Keys::Password), QStringLiteral("pw"));
        QCOMPARE(m_settings->value(Keys::PasswordBox), QStringList{"pw"});
    }

    // A secret under our name that is not ours (garbage, binary, other
    // types) was overwritten within half a second of the start: it is left
    // alone, and the file keeps the passwords.
    void aSecretNotOursIsLeftAlone_data()
    {
        QTest::addColumn<QString>("secret");
        QTest::newRow("garbage") << "not json";
        QTest::newRow("binary") << QString::fromLatin1(QByteArray("\x00\xff\x10{", 4));
        QTest::newRow("wrong types") << "{\"password\":5,\"remembered\":[\"a\",7]}";
        QTest::newRow("an array") << "[\"pw\"]";
        QTest::newRow("missing list") << "{\"password\":\"pw\"}";
    }
    void aSecretNotOursIsLeftAlone()
    {
        QFETCH(QString, secret);
        QCOMPARE(PasswordKeeper::decode(secret), std::nullopt);
        m_keyring.values.insert(QStringLiteral("passwords"), secret);
        const QHash<QString, QString> before = m_keyring.values;
        {
            Run run(*m_settings, m_keyring);
            QTest::qWait(0);
            run.box.setEditText(QStringLiteral("pw"));
            QTest::qWait(1200);
            run.keeper.writeOnClose();
        }
        QCOMPARE(m_keyring.writes, 0);
        QCOMPARE(m_keyring.values, before);
        QCOMPARE(m_settings->value(Keys::Password), QStringLiteral("pw"));
    }

    void theSecretRoundTrips()
    {
        const PasswordKeeper::Kept odd{QStringLiteral("p\"w\n\u00e9"), {QStringLiteral("\u0001x")}};
        QCOMPARE(PasswordKeeper::decode(PasswordKeeper::encode(odd)), odd);
    }
};

QTEST_MAIN(TestPasswordKeeper)
#include "tst_passwordkeeper.moc"
