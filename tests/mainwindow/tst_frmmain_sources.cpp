// SPDX-License-Identifier: GPL-2.0-or-later
#include "fleet.h"
#include "httpresponder.h"
#include "mainwindow/querycontroller.h"
#include "presentation/frmoptions.h"
#include "query/hostlookup.h"
#include "query/lanquery.h"
#include "query/masteraddress.h"
#include "query/serverlistreader.h"
#include "simreplies.h"
#include "testports.h"
#include "testwindow.h"
#include "update/updateflow.h"
#include "userdata/knownservers.h"
#include "widgets/mnemonics.h"
#include "widgets/statusline.h"

#include <QDateTime>
#include <QDir>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

namespace {

const quint16 StartPort = TestPorts::at(2000);

QString masters(quint16 first, quint16 second)
{
    return QStringLiteral("127.0.0.1:%1, 127.0.0.1:%2").arg(first).arg(second);
}

int listedRows(const TestWindow& w)
{
    return w.visible("lstServerList")->rowCount();
}

} // namespace

class TestFrmMainSources final : public QObject {
    Q_OBJECT

private slots:
    void aDeadMasterASecondOneAndKnownServersMakeOneList()
    {
        SimFleet dead(fleetOf(4, TestPorts::at(1)));
        SimFleet alive(fleetOf(6, TestPorts::at(101)));
        QVERIFY(!dead.start());
        QVERIFY(!alive.start());
        dead.setMasterSilent(true);
        TestWindow w(TestPorts::at(1), StartPort, [](SettingsStore& settings) {
            settings.save(Keys::MasterServer.key, masters(TestPorts::at(1), TestPorts::at(101)));
        });
        // Known from an earlier day: one of the dead master's servers, and
        // one the live master lists too.
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        const QString known = w.dataFile(QStringLiteral("servers.dat"));
        QVERIFY(KnownServers::writeFile(
            known, {KnownServers::Server{"127.0.0.1", dead.servers().at(2).port, {}, now - 100, 0},
                    KnownServers::Server{"127.0.0.1", alive.servers().at(0).port, {}, now - 100, 0}}));

        QSignalSpy statuses(&w.window->queries(), &QueryController::status);
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        // The known servers need no source: they are asked at once.
        QCOMPARE(w.status(), QStringLiteral("Querying 2 Servers...\nWaiting for %1, %2")
                                 .arg(TestPorts::local(1), TestPorts::local(101)));
        QTRY_COMPARE_WITH_TIMEOUT(w.status(), QStringLiteral("Done"), 5000);
        QStringList shown;
        for (const auto& arguments : statuses)
            shown.append(arguments.at(0).toString());
        QVERIFY(shown.contains(QStringLiteral("Querying 7 Servers...\nWaiting for %1").arg(TestPorts::local(1))));
        QVERIFY(shown.contains(QStringLiteral("Querying 7 Servers...\nNo list from %1").arg(TestPorts::local(1))));
        QCOMPARE(listedRows(w), 7);
        QCOMPARE(alive.infoRequests(), 6);
        QCOMPARE(w.desktop.messages.size(), 0);
        const QString summary = w.find<QLabel>("lblStatus")->toolTip();
        QCOMPARE(summary, QStringLiteral("%1: did not answer\n%2: 6 servers\nknown servers: 2 servers")
                              .arg(TestPorts::local(1), TestPorts::local(101)));

        // Every server that answered is known now, seen just now.
        const KnownServers::List remembered = KnownServers::readFile(known);
        QCOMPARE(remembered.size(), 7);
        for (const KnownServers::Server& server : remembered) {
            QVERIFY(server.lastSeen >= now);
            QCOMPARE(server.misses, 0);
            QVERIFY(!server.name.isEmpty());
        }
    }

    void theSameMasterReplyGivesTheSameRowsWhetherOrNotItsServersAreKnown()
    {
        SimFleet fleet(fleetOf(11, TestPorts::at(1351)));
        QVERIFY(!fleet.start());
        // The master lists its first server twice: the documented two rows.
        QList<QPair<quint32, quint16>> listed;
        for (const auto& server : fleet.servers())
            listed.append({0x7F000001u, server.port});
        listed.append({0x7F000001u, fleet.servers().at(0).port});
        fleet.setMasterDatagrams(SimReplies::serverList(listed));
        TestWindow w(TestPorts::at(1351), StartPort + 400);
        QVERIFY(w.queryMasters(6000));
        QCOMPARE(listedRows(w), 12);
        // Now every server is known from servers.dat, and asked before the
        // master answers.
        QCOMPARE(KnownServers::readFile(w.dataFile(QStringLiteral("servers.dat"))).size(), 11);
        QVERIFY(w.queryMasters(6000));
        QCOMPARE(listedRows(w), 12);
        w.settings().save(Keys::QueryKnownServers.key, QStringLiteral("0"));
        QVERIFY(w.queryMasters(6000));
        QCOMPARE(listedRows(w), 12);
    }

    void serversThatCannotBeRememberedAreSaid()
    {
        SimFleet fleet(fleetOf(2, TestPorts::at(1301)));
        QVERIFY(!fleet.start());
        TestWindow w(TestPorts::at(1301), StartPort + 350);
        // A folder where the file should be: no write can replace it.
        QVERIFY(QDir().mkpath(w.dataFile(QStringLiteral("servers.dat"))));
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(w.status().startsWith(QStringLiteral("The servers that answered could not be")), 5000);
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Failed));
        QCOMPARE(listedRows(w), 2);
    }

    void withEveryMasterDownTheKnownServersAreStillListed()
    {
        SimFleet a(fleetOf(3, TestPorts::at(201)));
        SimFleet b(fleetOf(3, TestPorts::at(251)));
        QVERIFY(!a.start());
        QVERIFY(!b.start());
        TestWindow w(TestPorts::at(201), StartPort + 100, [](SettingsStore& settings) {
            settings.save(Keys::MasterServer.key, masters(TestPorts::at(201), TestPorts::at(251)));
        });
        QVERIFY(w.queryMasters(6000));
        QCOMPARE(listedRows(w), 6);

        a.setMasterSilent(true);
        b.setMasterSilent(true);
        QVERIFY(w.queryMasters(8000));
        QCOMPARE(listedRows(w), 6);
        QCOMPARE(w.desktop.messages.size(), 0);

        // Not wanted: the documented time-out with its Retry box; the status
        // line says at once why each master gave nothing, and where to turn.
        w.settings().save(Keys::QueryKnownServers.key, QStringLiteral("0"));
        w.settings().save(Keys::MasterServer.key, QStringLiteral("master.invalid,") + TestPorts::local(251));
        HostLookup::setResolver([](const QString&) { return HostLookup::Result{{}, "Unknown host"}; });
        w.desktop.messageAnswers.enqueue(QMessageBox::Cancel);
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(w.desktop.messages.size(), 1, 6000);
        HostLookup::setResolver({});
        QVERIFY(w.desktop.messages.first().text.startsWith(
            QStringLiteral("Master Servers Timed Out\n\nmaster.invalid: Master server master.invalid not found")));
        QCOMPARE(w.status(), QStringLiteral("Master Servers Timed Out\nmaster.invalid not found; %1 did not answer "
                                            "\u2013 Options, \"Servers\" tab, adds sources")
                                 .arg(TestPorts::local(251)));
        QCOMPARE(w.find<StatusLine>("lblStatus")->shownLines().size(), 2);
        QCOMPARE(listedRows(w), 0);
    }

    void thousandsOfSourcesAreAskedOnceUpToTheCapAndTheBoxFitsTheScreen()
    {
        // A settings file edited by hand (or by a script gone wrong): 10,000
        // masters, 10,000 copies of one, and 10,000 lists. Each master is
        // refused by the name service, each list by a closed port.
        QString masters;
        QString lists;
        for (int i = 0; i < 10000; ++i) {
            masters += QStringLiteral("master%1.invalid, again.invalid, ").arg(i);
            lists += QStringLiteral("http://127.0.0.1:1/list%1 ").arg(i);
        }
        TestWindow w(TestPorts::at(301), StartPort + 150, [&](SettingsStore& settings) {
            settings.save(Keys::MasterServer.key, masters);
            settings.save(Keys::ServerListUrls.key, lists);
            settings.save(Keys::QueryKnownServers.key, QStringLiteral("0"));
        });
        int lookups = 0;
        HostLookup::setResolver([&lookups](const QString&) {
            ++lookups;
            return HostLookup::Result{{}, "Unknown host"};
        });
        w.desktop.messageAnswers.enqueue(QMessageBox::Open);
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(w.desktop.messages.size(), 1, 10000);
        HostLookup::setResolver({});
        QCOMPARE(lookups, MasterList::Max);
        // Beside Retry and Cancel, the way to sources that work.
        const ScriptedDesktop::Message& asked = w.desktop.messages.first();
        QCOMPARE(asked.buttons, QMessageBox::Retry | QMessageBox::Cancel | QMessageBox::Open);
        QCOMPARE(asked.buttonTexts.value(QMessageBox::Open), QStringLiteral("Options..."));
        QTRY_VERIFY(w.window->findChild<FrmOptions*>());
        QCOMPARE(w.window->findChild<FrmOptions*>()->findChild<QTabWidget*>("tabOptions")->currentIndex(),
                 int(FrmOptions::SourcesTab));
        QCOMPARE(w.window->findChild<FrmOptions*>()->findChild<QListWidget*>("lstMasters")->count(), MasterList::Max);

        // The box says what the first sources gave and counts the rest.
        const QStringList box = w.desktop.messages.first().text.split(QLatin1Char('\n'));
        QCOMPARE(box.at(2), QStringLiteral("9985 more master servers left out: at most 16 are asked."));
        QCOMPARE(box.at(3), QStringLiteral("9984 more server lists left out: at most 16 are fetched."));
        QCOMPARE(box.at(13), QStringLiteral("... and 23 more (the status line's tooltip lists them all)"));
        QCOMPARE(box.size(), 16);
        // The tooltip has every source asked, and the status line the first three.
        const QStringList tooltip = w.find<QLabel>("lblStatus")->toolTip().split(QLatin1Char('\n'));
        QCOMPARE(tooltip.size(), 2 + MasterList::Max + ServerListReader::UrlList::Max);
        QCOMPARE(tooltip.at(2),
                 QStringLiteral("master0.invalid: Master server master0.invalid not found (Unknown host)."));
        QCOMPARE(tooltip.at(3), QStringLiteral("again.invalid: Master server again.invalid not found (Unknown host)."));
        QCOMPARE(w.status(), QStringLiteral("Master Servers Timed Out\nmaster0.invalid not found; again.invalid not "
                                            "found; master1.invalid not found and 14 more \u2013 Options, "
                                            "\"Servers\" tab, adds sources"));
        QCOMPARE(listedRows(w), 0);
    }

    void queryLanListsTheLocalServers()
    {
        SimFleet lan(fleetOf(2, LanQuery::FirstGamePort - 1));
        if (const auto error = lan.start())
            QSKIP(qPrintable(QStringLiteral("the game ports are taken here: %1").arg(*error)));
        TestWindow w(TestPorts::at(301), StartPort + 200, [](SettingsStore& settings) {
            settings.save(Keys::LanBroadcast.key, QStringLiteral("127.0.0.1"));
        });
        QPushButton* lanButton = w.button("cmdLan");
        QVERIFY(lanButton->isVisible());
        QCOMPARE(Mnemonics::plain(lanButton->text()), QStringLiteral("Query LAN"));
        QTest::mouseClick(lanButton, Qt::LeftButton);
        QCOMPARE(w.status(), QStringLiteral("Searching the local network..."));
        // Cancel takes the LAN button's place while the search runs.
        QVERIFY(!lanButton->isVisible());
        QVERIFY(w.button("cmdCancel")->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(w.status(), QStringLiteral("Done"), LanQuery::WaitMs + 2000);
        QCOMPARE(listedRows(w), 2);
        QVERIFY(lanButton->isVisible());
        QCOMPARE(KnownServers::readFile(w.dataFile(QStringLiteral("servers.dat"))).size(), 2);
    }

    void aLanSearchThatFindsNothingKeepsTheList()
    {
        SimFleet fleet(fleetOf(3, TestPorts::at(1351)));
        QVERIFY(!fleet.start());
        // Nothing answers on the game ports of this address.
        TestWindow w(TestPorts::at(1351), StartPort + 250, [](SettingsStore& settings) {
            settings.save(Keys::LanBroadcast.key, QStringLiteral("127.0.0.9"));
        });
        QVERIFY(w.queryMasters());
        QCOMPARE(listedRows(w), 3);
        QTest::mouseClick(w.button("cmdLan"), Qt::LeftButton);
        QCOMPARE(listedRows(w), 3);
        QTRY_VERIFY_WITH_TIMEOUT(!w.window->queries().isRunning(), LanQuery::WaitMs + 2000);
        QCOMPARE(w.status(), QStringLiteral("No server answered on the local network; the list is as it was."));
        QCOMPARE(listedRows(w), 3);
        QCOMPARE(w.find<QLabel>("lblServers")->text(), QStringLiteral("3 servers found"));
    }

    void theUpdateSiteIsAskedAtStartOnlyWhenWanted()
    {
        HttpResponder site;
        site.set(QStringLiteral("/downloads/vantageupdate.txt"), {200, "0.0.1", "text/plain", 0});
        const auto aimed = [&site](bool wanted) {
            return [&site, wanted](SettingsStore& settings) {
                settings.save(Keys::UpdateSite.key, site.url(QString()).toString());
                settings.save(Keys::AutoUpdate.key, QLatin1String(wanted ? "1" : "0"));
            };
        };
        {
            TestWindow w(TestPorts::at(351), StartPort + 300, aimed(true));
            QTRY_COMPARE_WITH_TIMEOUT(site.requests(), 1, 5000);
            QTRY_VERIFY(!w.window->updates().isChecking());
            QVERIFY(w.window->isVisible()); // an older version changes nothing
        }
        TestWindow w(TestPorts::at(351), StartPort + 300, aimed(false));
        QTest::qWait(200);
        QCOMPARE(site.requests(), 1);
    }
};

QTEST_MAIN(TestFrmMainSources)
#include "tst_frmmain_sources.moc"
