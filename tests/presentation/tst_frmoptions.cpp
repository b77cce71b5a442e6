// SPDX-License-Identifier: GPL-2.0-or-later
#include "fakemachine.h"
#include "optionsdialog.h"

// The options dialog's settings, ports, executable and server sources.
class TestFrmOptions final : public OptionsDialogTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void startPortRule_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("speed");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        // clang-format off
        QTest::newRow("default") << "9000" << 5 << "9000" << "9022";
        QTest::newRow("dial up") << "9000" << 0 << "9000" << "9004";
        QTest::newRow("each speed's step") << "9000" << 3 << "9000" << "9014";
        QTest::newRow("letter typed last") << "9a" << 5 << "9" << "31";
        QTest::newRow("letter inside stays") << "12x4" << 5 << "12x4" << "34";
        QTest::newRow("above the cap") << "70000" << 5 << "65512" << "65534";
        QTest::newRow("empty") << "" << 5 << "" << "";
        QTest::newRow("only a letter") << "x" << 5 << "" << "";
        // clang-format on
    }
    void startPortRule()
    {
        QFETCH(QString, typed);
        QFETCH(int, speed);
        QFETCH(QString, start);
        QFETCH(QString, end);
        const StartPortRule::Range range = StartPortRule::apply(typed, speed);
        QCOMPARE(range.start, start);
        QCOMPARE(range.end, end);
    }

    void opensWithTheStoredSettingsAndTheirDefaults()
    {
        m_settings->save(Keys::Speed.key, QStringLiteral("0"));
        m_settings->save(Keys::StartPort.key, QStringLiteral("12000"));
        m_settings->save(Keys::Proxy.key, QStringLiteral("1"));
        m_settings->save(Keys::ProxyAddress.key, QStringLiteral("proxy:3128"));
        m_settings->save(Keys::RefreshServers.key, QStringLiteral("0"));
        open();
        QCOMPARE(find<QComboBox>("cmbLanguage")->currentIndex(), 0);
        QCOMPARE(find<QComboBox>("cmbLanguage")->itemText(2), QStringLiteral("Deustch"));
        QCOMPARE(find<QComboBox>("cmbSpeed")->currentText(), QStringLiteral("Dial Up (56k)"));
        QCOMPARE(find<QLineEdit>("txtEndPort")->text(), QStringLiteral("12004"));
        QVERIFY(find<QCheckBox>("chkAutoUpdate")->isChecked());
        QVERIFY(find<QCheckBox>("chkCloseAfterJoin")->isChecked());
        QVERIFY(!find<QCheckBox>("chkRefresh")->isChecked());
        QVERIFY(find<QLineEdit>("txtProxy")->isEnabled());
        QCOMPARE(find<QLineEdit>("txtProxy")->text(), QStringLiteral("proxy:3128"));
        QCOMPARE(find<QLabel>("lblPortDesc")->text(),
                 QStringLiteral("Note: Port Range is dependant on the query speed."));

        // Typing in the start port follows the rule key by key.
        type("txtStartPort", QStringLiteral("9a"));
        QCOMPARE(find<QLineEdit>("txtStartPort")->text(), QStringLiteral("9"));
        choose("cmbSpeed", 5);
        QCOMPARE(find<QLineEdit>("txtEndPort")->text(), QStringLiteral("31"));
        click("chkProxy");
        QVERIFY(!find<QLineEdit>("txtProxy")->isEnabled());

        // Passwords go to the keyring unless the user wants the file.
        QVERIFY(find<QCheckBox>("chkKeyring")->isChecked());
        click("chkKeyring");
        type("txtStartPort", QStringLiteral("12000"));
        click("cmdOK");
        QCOMPARE(m_settings->value(Keys::PasswordsInKeyring), false);
    }

    void saveRefusesAStartPortBelow1023()
    {
        open();
        m_desktop->messageAnswers << QMessageBox::Ok << QMessageBox::Ok;
        type("txtStartPort", QStringLiteral("1022"));
        click("cmdOK");
        QVERIFY2(m_form->isVisible(), "a refused port keeps the dialog open");
        QCOMPARE(m_desktop->messages.size(), 1);
        QCOMPARE(m_desktop->messages.last().text,
                 QStringLiteral("You must type a port number between 1024 and 65512! (Default: 9000)"));
        QVERIFY(!m_settings->contains(Keys::StartPort.key));

        type("txtStartPort", QString());
        click("cmdApply");
        QCOMPARE(m_desktop->messages.size(), 2);

        // 1023 passes although the message names 1024.
        type("txtStartPort", QStringLiteral("1023"));
        click("cmdOK");
        QVERIFY(!m_form->isVisible());
        QCOMPARE(m_settings->get(Keys::StartPort.key), QStringLiteral("1023"));
        QCOMPARE(m_settings->get(Keys::Speed.key), QStringLiteral("5"));
        QCOMPARE(m_settings->get(Keys::AutoUpdate.key), QStringLiteral("1"));
        QCOMPARE(m_settings->get(Keys::Proxy.key), QStringLiteral("0"));
    }

    void defaultsDependOnTheTabAndTheAnswer()
    {
        m_settings->save(Keys::RefreshServers.key, QStringLiteral("0"));
        m_settings->save(Keys::Path.key, QStringLiteral("/games/quake4"));
        open();
        choose("cmbSpeed", 2);
        type("txtStartPort", QStringLiteral("12000"));
        m_desktop->messageAnswers << QMessageBox::No << QMessageBox::Yes;
        click("cmdDefaults");
        QCOMPARE(find<QComboBox>("cmbSpeed")->currentIndex(), 2);
        click("cmdDefaults");
        QCOMPARE(m_desktop->messages.last().text,
                 QStringLiteral("Are you sure you want to reset all settings to their default values?"));
        QCOMPARE(find<QComboBox>("cmbSpeed")->currentIndex(), 5);
        QCOMPARE(find<QLineEdit>("txtStartPort")->text(), QStringLiteral("9000"));
        QCOMPARE(find<QLineEdit>("txtPath")->text(), QString());
        QVERIFY2(!find<QCheckBox>("chkRefresh")->isChecked(), "Refresh is left as it is");
        QCOMPARE(m_settings->get(Keys::Path.key), QStringLiteral("/games/quake4")); // nothing saved yet

        // On the Theme tab the colours go back even on No.
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::ThemeTab);
        m_desktop->colourAnswers << QColor(10, 20, 30);
        click("lstBackColour");
        QCOMPARE(listBase(), QColor(10, 20, 30));
        m_desktop->messageAnswers << QMessageBox::No;
        click("cmdDefaults");
        QCOMPARE(find<ColourSwatch>("lstBackColour")->value(), ThemeFile::WindowBackground);
        QCOMPARE(listBase(), m_themes->toColor(ThemeFile::WindowBackground));
    }

    void browsePutsTheChosenExecutableInTheBox()
    {
        open();
        m_desktop->fileAnswers << QStringLiteral("/opt/quake4/quake4.x86");
        click("cmdBrowse");
        QCOMPARE(m_desktop->fileRequests.last().title, QStringLiteral("Select your Quake 4 Executable"));
        QCOMPARE(m_desktop->fileRequests.last().filter,
                 QStringLiteral("Quake 4 Executable (%1)").arg(Desktop::executablePattern()));
        QCOMPARE(find<QLineEdit>("txtPath")->text(), QStringLiteral("/opt/quake4/quake4.x86"));
        m_desktop->fileAnswers << QString();
        click("cmdBrowse");
        QCOMPARE(find<QLineEdit>("txtPath")->text(), QStringLiteral("/opt/quake4/quake4.x86"));
        click("cmdApply");
        QVERIFY(m_form->isVisible());
        QCOMPARE(m_settings->get(Keys::Path.key), QStringLiteral("/opt/quake4/quake4.x86"));
    }

    // The installs found are offered with the command a join runs; Look
    // Again finds one installed meanwhile; an .exe browsed to is offered to
    // Wine; the choice is saved by OK and shown again.
    void theGameIsChosenFromTheInstallsFound()
    {
        FakeMachine machine;
        machine.program(QStringLiteral("bin/steam"));
        machine.steamGame(QStringLiteral("home/.local/share/Steam"));
        machine.program(QStringLiteral("root/opt/quake4/quake4"));
        m_desktop->places = machine.places();
        m_settings->save(Keys::PlayerName.key, QStringLiteral("Me"));
        open();
        auto* games = find<QComboBox>("cmbGame");
        QTRY_VERIFY(games->isEnabled());
        const QString steamGame = machine.real(QStringLiteral("home/.local/share/Steam/steamapps/common/Quake 4"));
        const QString linux = machine.real(QStringLiteral("root/opt/quake4"));
        auto items = [games] {
            QStringList texts;
            for (int i = 0; i < games->count(); ++i)
                texts << games->itemText(i);
            return texts;
        };
        QCOMPARE(items(), (QStringList{"Ask at the first join", "Steam: " + steamGame, "Linux release: " + linux,
                                       "Other program..."}));
        QCOMPARE(games->currentIndex(), 0);
        QCOMPARE(find<QLineEdit>("txtGameCommand")->text(), QString());

        choose("cmbGame", 1);
        QCOMPARE(find<QLineEdit>("txtGameCommand")->text(),
                 machine.path(QStringLiteral("bin/steam")) +
                     QStringLiteral(" -applaunch 2210 +set ui_name \"Me\" +connect 192.0.2.1:28004"));
        QVERIFY(find<QLineEdit>("txtGameCommand")->isReadOnly());
        QVERIFY2(!find<QLineEdit>("txtPath")->isEnabled(), "Path is the other program's");
        choose("cmbGame", 2);
        QCOMPARE(find<QLineEdit>("txtGameCommand")->text(),
                 linux + QStringLiteral("/quake4 +set ui_name \"Me\" +connect 192.0.2.1:28004"));

        machine.program(QStringLiteral("bin/wine"));
        machine.write(QStringLiteral("home/.wine/drive_c/Program Files/id Software/Quake 4/quake4.exe"), "MZ");
        click("cmdLookAgain");
        QTRY_COMPARE(games->count(), 5);
        QCOMPARE(games->currentText(), "Linux release: " + linux);

        const QString exe = machine.path(QStringLiteral("games/quake4.exe"));
        machine.write(QStringLiteral("games/quake4.exe"), "MZ");
        m_desktop->fileAnswers << exe;
        m_desktop->messageAnswers << QMessageBox::No; // "Through Wine"
        click("cmdBrowse");
        QCOMPARE(m_desktop->fileRequests.last().folder, linux);
        QCOMPARE(games->currentText(), "Wine: " + exe);
        QCOMPARE(find<QLineEdit>("txtPath")->text(), exe);
        QCOMPARE(find<QLineEdit>("txtGameCommand")->text(),
                 machine.path(QStringLiteral("bin/wine")) +
                     QStringLiteral(" quake4.exe +set ui_name \"Me\" +connect 192.0.2.1:28004"));
        click("cmdOK");
        QCOMPARE(m_settings->get(Keys::Game.key), QStringLiteral("wine:") + exe);
        QCOMPARE(m_settings->get(Keys::Path.key), exe);

        open();
        QTRY_VERIFY(find<QComboBox>("cmbGame")->isEnabled());
        QCOMPARE(find<QComboBox>("cmbGame")->currentText(), "Wine: " + exe);
        m_desktop->messageAnswers << QMessageBox::Yes;
        click("cmdDefaults");
        QCOMPARE(find<QComboBox>("cmbGame")->currentIndex(), 0);
        QCOMPARE(find<QLineEdit>("txtPath")->text(), QString());
    }

    void theServersTabEditsEverySource()
    {
        open();
        auto* tabs = find<QTabWidget>("tabOptions");
        tabs->setCurrentIndex(FrmOptions::SourcesTab);
        auto* masters = find<QListWidget>("lstMasters");
        auto* lists = find<QListWidget>("lstServerLists");
        // Untouched, the stored text stays as it was: empty is the default masters.
        QCOMPARE(masters->count(), 2);
        QCOMPARE(masters->item(0)->text(), QStringLiteral("q4master.idsoftware.com"));
        QCOMPARE(masters->item(1)->text(), QStringLiteral("master.quakehub.net"));
        QCOMPARE(lists->count(), 1);
        click("cmdApply");
        QVERIFY(!m_settings->contains(Keys::MasterServer.key));
        QVERIFY(!m_settings->contains(Keys::ServerListUrls.key));

        // Nothing chosen, nothing to edit or remove, even once the list has
        // the focus and with it a current row.
        QApplication::setActiveWindow(masters->window());
        masters->setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(masters->hasFocus());
        QVERIFY(!find<QPushButton>("cmdMastersEdit")->isEnabled());
        QVERIFY(!find<QPushButton>("cmdMastersRemove")->isEnabled());
        masters->setCurrentRow(1);
        QVERIFY(find<QPushButton>("cmdMastersRemove")->isEnabled());
        click("cmdMastersRemove");
        QCOMPARE(masters->count(), 1);

        // A refused entry is said, and offered again for correction.
        m_desktop->inputAnswers.enqueue(QStringLiteral("master.example:99999"));
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        m_desktop->inputAnswers.enqueue(QStringLiteral(" master.example:27900 "));
        click("cmdMastersAdd");
        QCOMPARE(m_desktop->messages.size(), 1);
        QVERIFY(m_desktop->messages.first().text.startsWith(
            QStringLiteral("\"master.example:99999\" is not a master server address.")));
        QCOMPARE(m_desktop->inputs.at(1).initialText, QStringLiteral("master.example:99999"));
        QCOMPARE(masters->count(), 2);
        QCOMPARE(masters->item(1)->text(), QStringLiteral("master.example:27900"));

        // Edit the first by a double click, remove nothing else; the list
        // address is replaced through Edit.
        m_desktop->inputAnswers.enqueue(QStringLiteral("[::1]:27650"));
        const QPoint first = masters->visualItemRect(masters->item(0)).center();
        QTest::mouseClick(masters->viewport(), Qt::LeftButton, {}, first);
        QTest::mouseDClick(masters->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(masters->item(0)->text(), QStringLiteral("::1"));
        lists->setCurrentRow(0);
        m_desktop->inputAnswers.enqueue(QStringLiteral("ftp://lists.example/q4"));
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        m_desktop->inputAnswers.enqueue(std::nullopt); // gives up: the entry stays as it was
        click("cmdServerListsEdit");
        QCOMPARE(lists->item(0)->text(), QStringLiteral("https://quakehub.net/api/v1/servers/q4"));
        m_desktop->inputAnswers.enqueue(QStringLiteral("http://lists.example/q4.txt"));
        click("cmdServerListsAdd");
        lists->setCurrentRow(0);
        click("cmdServerListsRemove");
        find<QCheckBox>("chkQueryKnown")->click();
        click("cmdOK");
        QCOMPARE(m_settings->value(Keys::MasterServer), QStringLiteral("::1, master.example:27900"));
        QCOMPARE(m_settings->value(Keys::ServerListUrls), QStringLiteral("http://lists.example/q4.txt"));
        QVERIFY(!m_settings->value(Keys::QueryKnownServers));
        QCOMPARE(parseMasterList(m_settings->value(Keys::MasterServer)).masters.size(), 2);
    }

    void aFullSourceListSaysSoBeforeAnythingIsTyped()
    {
        QStringList many;
        for (int i = 0; i < 40; ++i)
            many.append(QStringLiteral("m%1.example").arg(i % 20));
        m_settings->save(Keys::MasterServer.key, many.join(QStringLiteral(", ")));
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::SourcesTab);
        auto* masters = find<QListWidget>("lstMasters");
        QCOMPARE(masters->count(), MasterList::Max);
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        click("cmdMastersAdd");
        QCOMPARE(m_desktop->inputs.size(), 0);
        QCOMPARE(m_desktop->messages.size(), 1);
        QCOMPARE(m_desktop->messages.first().text,
                 QStringLiteral("At most 16 master servers are asked. Remove one before adding another."));
        // One removed, one may be added.
        masters->setCurrentRow(0);
        click("cmdMastersRemove");
        m_desktop->inputAnswers.enqueue(QStringLiteral("new.example"));
        click("cmdMastersAdd");
        QCOMPARE(masters->count(), MasterList::Max);
        QCOMPARE(masters->item(MasterList::Max - 1)->text(), QStringLiteral("new.example"));
    }

    void theFriendsTabKeepsFriendsRefreshAndNotifications()
    {
        m_settings->set(Keys::Friends, QStringList{"Bob*"});
        m_settings->save(Keys::AutoRefreshMinutes.key, QStringLiteral("7")); // typed into the file by hand
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::FriendsTabIndex);
        auto* friends = find<QListWidget>("lstFriends");
        auto* interval = find<QComboBox>("cmbAutoRefresh");
        QCOMPARE(friends->count(), 1);
        // A value the list does not offer is kept, not turned into another.
        QCOMPARE(interval->currentText(), QStringLiteral("Every 7 minutes"));
        QCOMPARE(interval->itemText(interval->findData(1)), QStringLiteral("Every minute"));
        QVERIFY(find<QCheckBox>("chkNotifyFriends")->isEnabled());

        // A control character is refused and offered again; a real one goes in.
        m_desktop->inputAnswers.enqueue(QStringLiteral("Bob\x01"));
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        m_desktop->inputAnswers.enqueue(QStringLiteral(" [UFO]* "));
        click("cmdFriendsAdd");
        QCOMPARE(m_desktop->messages.size(), 1);
        QCOMPARE(friends->count(), 2);
        QCOMPARE(friends->item(1)->text(), QStringLiteral("[UFO]*"));

        // "Never" turns the notifications off with it.
        choose("cmbAutoRefresh", 0);
        QVERIFY(!find<QCheckBox>("chkNotifyFriends")->isEnabled());
        QVERIFY(!find<QCheckBox>("chkNotifyPlayers")->isEnabled());
        choose("cmbAutoRefresh", 3); // every 5 minutes
        find<QCheckBox>("chkNotifyPlayers")->click();
        QVERIFY(find<QSpinBox>("spnNotifyPlayers")->isEnabled());
        auto* players = find<QSpinBox>("spnNotifyPlayers");
        players->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(players, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(players, QStringLiteral("12"));
        find<QCheckBox>("chkOfferWait")->click();
        click("cmdOK");
        QCOMPARE(m_settings->value(Keys::Friends), (QStringList{"Bob*", "[UFO]*"}));
        QCOMPARE(m_settings->value(Keys::AutoRefreshMinutes), 5);
        QCOMPARE(m_settings->value(Keys::NotifyPlayerCount), 12);
        QVERIFY(!m_settings->value(Keys::OfferSlotWait));

        // Defaults on this tab: the settings go back, the friends stay.
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::FriendsTabIndex);
        m_desktop->messageAnswers.enqueue(QMessageBox::Yes);
        click("cmdDefaults");
        click("cmdOK");
        QCOMPARE(m_settings->value(Keys::AutoRefreshMinutes), 0);
        QCOMPARE(m_settings->value(Keys::NotifyPlayerCount), 0);
        QVERIFY(m_settings->value(Keys::OfferSlotWait));
        QCOMPARE(m_settings->value(Keys::Friends).size(), 2);
    }

    void knownServersAreForgottenOnlyWhenConfirmed()
    {
        const QString path = KnownServers::filePath(m_dir->path());
        QVERIFY(KnownServers::writeFile(path, {KnownServers::Server{"1.2.3.4", 28004, {}, 1, 0},
                                               KnownServers::Server{"1.2.3.5", 28004, {}, 1, 0}}));
        open();
        find<QTabWidget>("tabOptions")->setCurrentIndex(FrmOptions::SourcesTab);
        QCOMPARE(find<QLabel>("lblKnown")->text(), QStringLiteral("2 servers known."));
        m_desktop->messageAnswers.enqueue(QMessageBox::No);
        click("cmdForgetKnown");
        QVERIFY(QFile::exists(path));
        m_desktop->messageAnswers.enqueue(QMessageBox::Yes);
        click("cmdForgetKnown");
        QVERIFY(m_desktop->messages.last().text.startsWith(QStringLiteral("Forget the 2 servers")));
        QVERIFY(!QFile::exists(path));
        QCOMPARE(find<QLabel>("lblKnown")->text(), QStringLiteral("No servers known yet."));
        QVERIFY(!find<QPushButton>("cmdForgetKnown")->isEnabled());
    }
};

QTEST_MAIN(TestFrmOptions)
#include "tst_frmoptions.moc"
