// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmfilters.h"
#include "filewrites.h"
#include "fleet.h"
#include "listedwindow.h"
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/querycontroller.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/serverlists.h"
#include "presentation/colourcodes.h"
#include "presentation/frmoptions.h"
#include "presentation/multicolorlabel.h"
#include "presentation/themefile.h"
#include "presentation/themeservice.h"
#include "query/infoprotocol.h"
#include "testports.h"
#include "testwindow.h"
#include "userdata/favourites.h"
#include "userdata/knownservers.h"
#include "widgets/historycombobox.h"
#include "widgets/reportview.h"
#include "widgets/statusline.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QUdpSocket>

namespace {

const quint16 StartPort = TestPorts::at(2000);
} // namespace

class TestFrmMainQuery final : public QObject {
    Q_OBJECT

private slots:
    void queryMastersListsWhatTheServersSent()
    {
        FleetOptions options = fleetOf(120, TestPorts::at(1));
        options.silentFraction = 0.1;
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        TestWindow w(TestPorts::at(1), StartPort);
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QVERIFY(w.status().startsWith(QStringLiteral("Requesting Server List from\n127.0.0.1")));
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Requesting));
        QVERIFY(!w.button("cmdGet")->isEnabled());
        QVERIFY(!w.button("cmdFav")->isEnabled());
        QVERIFY(!w.button("cmdOptions")->isEnabled());
        QVERIFY(!w.button("cmdOrganise")->isEnabled());
        QVERIFY(w.button("cmdCancel")->isVisible());
        QVERIFY(!w.find<QLabel>("lblAbout")->isVisible());

        QTRY_COMPARE_WITH_TIMEOUT(w.status(), QStringLiteral("Done"), 8000);
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Done));
        // Options opened and closed again, or another theme applied, leave
        // the line in its tone.
        QTest::mouseClick(w.button("cmdOptions"), Qt::LeftButton);
        auto* optionsWindow = w.window->findChild<FrmOptions*>();
        QVERIFY(optionsWindow);
        QTest::keyClick(w.focus(optionsWindow), Qt::Key_Escape);
        QTRY_VERIFY(!w.window->findChild<FrmOptions*>());
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Done));
        w.window->themes().apply(ThemeFile::shippedThemes().first());
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Done));
        QVERIFY(w.button("cmdGet")->isEnabled());
        QVERIFY(!w.button("cmdCancel")->isVisible());
        QVERIFY(w.find<QLabel>("lblAbout")->isVisible());
        QCOMPARE(w.find<QProgressBar>("prbProgress")->value(), 0);

        const int answering = fleet.answeringServers();
        QCOMPARE(w.visible("lstServerList")->rowCount(), answering);
        int players = 0;
        for (const auto& server : fleet.servers())
            players += server.silent ? 0 : int(server.players.size());
        QCOMPARE(w.visible("lstPlayerList")->rowCount(), players);
        QCOMPARE(w.find<QLabel>("lblServers")->text(), QStringLiteral("%1 servers found").arg(answering));
        QCOMPARE(w.find<QLabel>("lblPlayers")->text(), QStringLiteral("%1 players found").arg(players));

        // Cells show what the servers (retail 1.4.2, protocol 2.85) sent.
        for (int row = 0; row < answering; ++row) {
            const QString address = w.cell("lstServerList", row, ServerListModel::Address);
            const int port = address.section(QLatin1Char(':'), 1).toInt();
            const auto& sent = fleet.servers().at(port - options.firstServerPort);
            const auto rule = [&sent](const char* key) {
                for (const auto& [name, value] : sent.rules)
                    if (name == key)
                        return QString::fromLatin1(value);
                return QString();
            };
            QVERIFY(!sent.silent);
            QCOMPARE(w.cell("lstServerList", row, ServerListModel::Name),
                     ColourCodes::StripColourCodesCounted(rule("si_name")));
            QCOMPARE(w.cell("lstServerList", row, ServerListModel::Map), rule("si_map"));
            QCOMPARE(w.cell("lstServerList", row, ServerListModel::Players),
                     QStringLiteral("%1/%2").arg(sent.players.size()).arg(rule("si_maxplayers")));
            QCOMPARE(w.cell("lstServerList", row, ServerListModel::Password),
                     rule("si_usepass") == QLatin1String("1") ? QStringLiteral("*") : QString());
            QCOMPARE(w.cell("lstServerList", row, ServerListModel::GameName), rule("gamename"));
        }
        const PlayerListModel& hidden = w.window->lists().players();
        for (int row = 0; row < hidden.rowCount(); ++row) {
            const auto& entry = hidden.row(row);
            const ServerRecord& server = w.window->lists().servers().record(entry.server);
            QCOMPARE(w.cell("lstPlayerList", row, PlayerListModel::Name),
                     ColourCodes::StripColourCodes(server.players.at(entry.player).name));
            QCOMPARE(w.cell("lstPlayerList", row, PlayerListModel::Mod), server.gameName);
            QCOMPARE(w.cell("lstPlayerList", row, PlayerListModel::GameType), server.gameType);
        }
    }

    void cancelStopsTheQuery()
    {
        FleetOptions options = fleetOf(60, TestPorts::at(201));
        options.delayMs = 80;
        SimFleet fleet(options);
        QVERIFY(!fleet.start());
        TestWindow w(TestPorts::at(201), StartPort);
        w.settings().save(Keys::Speed.key, QStringLiteral("0"));
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(w.status().startsWith(QStringLiteral("Querying 60 Servers...")), 4000);
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Querying));
        QTRY_VERIFY_WITH_TIMEOUT(w.find<QProgressBar>("prbProgress")->value() >= 4, 4000);
        QTest::mouseClick(w.button("cmdCancel"), Qt::LeftButton);
        QCOMPARE(w.status(), QStringLiteral("Cancelled"));
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Failed));
        QVERIFY(w.button("cmdGet")->isEnabled());
        const int listed = w.visible("lstServerList")->rowCount();
        QVERIFY(listed > 0 && listed < 60);
        const int requests = fleet.infoRequests();
        QTest::qWait(300);
        QCOMPARE(fleet.infoRequests(), requests);
        QCOMPARE(w.visible("lstServerList")->rowCount(), listed);

        // The same with the keys, wherever the focus is: F5 queries, Esc
        // stops (and does nothing when no query runs), Ctrl+F goes to find.
        QVERIFY(w.show());
        w.focus(w.find<QWidget>("lstServerList"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
        QVERIFY(w.window->queries().isRunning());
        QTRY_VERIFY_WITH_TIMEOUT(w.find<QProgressBar>("prbProgress")->value() >= 2, 4000);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(w.status(), QStringLiteral("Cancelled"));
        QVERIFY(!w.window->queries().isRunning());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(w.status(), QStringLiteral("Cancelled"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), w.find<QWidget>("cmbFind"));
        // The button's own Alt+letter, from the find box.
        const QString caption = w.button("cmdGet")->text();
        const QChar letter = caption.at(caption.indexOf(QLatin1Char('&')) + 1).toUpper();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(letter.unicode()), Qt::AltModifier);
        QTRY_VERIFY(w.window->queries().isRunning()); // a mnemonic clicks as a user sees it: a moment later
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        // Started with Space on the button: the focus waits on Cancel, and
        // comes back to the button when the query ends.
        QTest::keyClick(w.focus(w.button("cmdGet")), Qt::Key_Space);
        QVERIFY(w.window->queries().isRunning());
        QCOMPARE(QApplication::focusWidget(), w.button("cmdCancel"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), w.button("cmdGet"));
    }

    void masterTimeOutOffersRetry()
    {
        SimFleet fleet(fleetOf(3, TestPorts::at(301)));
        QVERIFY(!fleet.start());
        fleet.setMasterSilent(true);
        TestWindow w(TestPorts::at(301), StartPort);
        w.desktop.messageAnswers.enqueue(QMessageBox::Retry);
        w.desktop.messageAnswers.enqueue(QMessageBox::Cancel);
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(w.desktop.messages.size(), 2, 7000);
        const auto& box = w.desktop.messages.first();
        QCOMPARE(box.icon, Desktop::Icon::Critical);
        QCOMPARE(box.buttons, QMessageBox::Retry | QMessageBox::Cancel | QMessageBox::Open);
        QCOMPARE(box.text, QStringLiteral("Master Servers Timed Out\n\n%1: did not answer\n\nCheck the "
                                          "network connection, or add a master server or a server list that works in "
                                          "Options, on the \"Servers\" tab.")
                               .arg(TestPorts::local(301)));
        QCOMPARE(fleet.masterRequests(), 2);
        QCOMPARE(w.status(), QStringLiteral("Master Servers Timed Out\n%1 did not answer \u2013 Options, \"Servers\" "
                                            "tab, adds sources")
                                 .arg(TestPorts::local(301)));
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Failed));
        QCOMPARE(w.find<QLabel>("lblServers")->text(), QStringLiteral("0 servers found"));
        QVERIFY(w.button("cmdGet")->isEnabled());
        QVERIFY(!w.button("cmdCancel")->isVisible());
    }

    void portInUseIsShownAndTheWindowStaysIdle()
    {
        QUdpSocket squatter;
        QVERIFY(squatter.bind(QHostAddress::AnyIPv4, StartPort + 2));
        TestWindow w(TestPorts::at(401), StartPort);
        QVERIFY(w.show());
        auto* line = w.find<QLabel>("lblStatus");
        const QRect lineBefore = line->geometry();
        const QRect barBefore = w.find<QProgressBar>("prbProgress")->geometry();
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QVERIFY(w.status().contains(QString::number(StartPort + 2)));
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Failed));
        // The long message wraps within the line: all of it readable, and
        // nothing beside or above it moves.
        w.window->layout()->activate();
        QVERIFY(line->heightForWidth(line->width()) <= line->height());
        QCOMPARE(line->geometry(), lineBefore);
        QCOMPARE(w.find<QProgressBar>("prbProgress")->geometry(), barBefore);
        QVERIFY(w.button("cmdGet")->isEnabled());
        QVERIFY(!w.window->queries().isRunning());
    }

    void aStartPortWithoutRoomForThePoolIsRefused()
    {
        TestWindow w(TestPorts::at(451), 65530);
        QTest::mouseClick(w.button("cmdGet"), Qt::LeftButton);
        QCOMPARE(w.status(), QStringLiteral("The start port 65530 is not valid. Choose another in the options."));
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Failed));
        QVERIFY(w.button("cmdGet")->isEnabled());
        QVERIFY(!w.window->queries().isRunning());
    }

    void favouritesAreQueriedFromTheDataFolder()
    {
        SimFleet fleet(fleetOf(4, TestPorts::at(501)));
        QVERIFY(!fleet.start());
        TestWindow w(TestPorts::at(501), StartPort);
        QTest::mouseClick(w.button("cmdFav"), Qt::LeftButton);
        QVERIFY2(!w.window->queries().isRunning(), "no favourites file: no query");
        QVERIFY(w.status().startsWith(QStringLiteral("No favourites yet")));
        QVERIFY(w.button("cmdFav")->isEnabled());

        QFile file(w.dataFile(QStringLiteral("favourites.dat")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        // A favourite may name its server by host name: it keeps that name.
        file.write(QStringLiteral("localhost:%1\x01\x01One\r\n%2\x01pw\x01Two\r\n")
                       .arg(QString::number(TestPorts::at(503)), TestPorts::local(505))
                       .toLatin1());
        file.close();
        QTest::mouseClick(w.button("cmdFav"), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(w.status(), QStringLiteral("Done"), 4000);
        QCOMPARE(w.visible("lstServerList")->rowCount(), 2);
        QVERIFY(w.column("lstServerList", ServerListModel::Address)
                    .contains(QStringLiteral("localhost:%1").arg(TestPorts::at(503))));
        QCOMPARE(fleet.masterRequests(), 0);
    }

    void aHugeFavouritesFileDoesNotFreezeTheWindow()
    {
        // 50 MB of favourites: the window reads what it takes at most and
        // is back at once; the servers are loopback ports nobody uses.
        TestWindow w(TestPorts::at(551), StartPort);
        QFile file(w.dataFile(QStringLiteral("favourites.dat")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QByteArray block;
        for (int i = 0; i < 20000; ++i)
            block += "127.0.0.1:" + QByteArray::number(30000 + i % 20000) + "\x01\x01Some server name\r\n";
        while (file.size() < 50 * 1024 * 1024)
            file.write(block);
        file.close();
        QElapsedTimer clock;
        clock.start();
        QTest::mouseClick(w.button("cmdFav"), Qt::LeftButton);
        QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(w.window->queries().isRunning());
        QCOMPARE(w.status(), QStringLiteral("Querying %1 Servers...").arg(Favourites::MaxFavourites));
        QTest::mouseClick(w.button("cmdCancel"), Qt::LeftButton);
        QTRY_VERIFY(!w.window->queries().isRunning());
    }

    void clickingAServerRefreshesItsRowsInPlace()
    {
        Listed w(5, TestPorts::at(601), true);
        SimFleet& fleet = w.fleet;
        const int playersBefore = w.visible("lstPlayerList")->rowCount();

        int row = 0;
        while (w.cell("lstServerList", row, ServerListModel::Address) != TestPorts::local(604))
            ++row;
        const int target = 2;
        const int oldPlayers = int(fleet.servers().at(target).players.size());
        fleet.setServer(target, {{"si_name", "^1Re^7named"}, {"si_map", "mp/q4dm9"}, {"si_maxplayers", "8"}},
                        {{0, 30, 25000, "^2New", ""}, {1, 40, 25000, "Other", "[C]"}});
        const int requests = fleet.servers().at(target).requests;

        ReportView* list = w.find<ReportView>("lstServerList");
        const QRect cell = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTRY_COMPARE(w.cell("lstServerList", row, ServerListModel::Name), QStringLiteral("Renamed"));
        // The selected server's name is drawn in its colours.
        auto* serverName = w.find<MulticolorLabel>("mclSName");
        QCOMPARE(serverName->caption(), QStringLiteral("Renamed"));
        QCOMPARE(serverName->color(1).rgb(), ColourCodes::ShowServerName(u"^1Re^7named").colours.first());
        QCOMPARE(fleet.servers().at(target).requests, requests + 1);
        QCOMPARE(w.cell("lstServerList", row, ServerListModel::Map), QStringLiteral("mp/q4dm9"));
        QCOMPARE(w.cell("lstServerList", row, ServerListModel::Players), QStringLiteral("2/8"));
        QCOMPARE(w.visible("lstServerList")->rowCount(), 5);
        QCOMPARE(w.visible("lstPlayerList")->rowCount(), playersBefore - oldPlayers + 2);
        // The newcomers take the rows of the players who left, beside the
        // server's other rows.
        int other = 0;
        while (other < w.visible("lstPlayerList")->rowCount() &&
               w.cell("lstPlayerList", other, PlayerListModel::Name) != QStringLiteral("Other"))
            ++other;
        QCOMPARE(w.cell("lstPlayerList", other, PlayerListModel::Clan), QStringLiteral("[C]"));
        QCOMPARE(w.cell("lstPlayerList", other, PlayerListModel::ServerName), QStringLiteral("Renamed"));

        // With refreshing off a click only selects.
        w.settings().save(Keys::RefreshServers.key, QStringLiteral("0"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::qWait(200);
        QCOMPARE(fleet.servers().at(target).requests, requests + 1);
    }
    void filtersRebuildTheVisibleLists()
    {
        Listed w(40, TestPorts::at(701), true);
        SimFleet& fleet = w.fleet;
        QCOMPARE(w.visible("lstServerList")->rowCount(), 40);

        const QByteArray map = fleet.servers().at(0).rules.at(1).second;
        int servers = 0;
        int players = 0;
        for (const auto& server : fleet.servers()) {
            if (server.rules.at(1).second == map) {
                ++servers;
                players += int(server.players.size());
            }
        }
        QTest::mouseClick(w.button("cmdFilters"), Qt::LeftButton);
        auto* filters = w.window->findChild<FrmFilters*>(QStringLiteral("frmFilters"));
        QVERIFY(filters->isVisible());
        addFilter(w, QStringLiteral("MAP"), QString::fromLatin1(map).toUpper());

        QCOMPARE(w.visible("lstServerList")->rowCount(), servers);
        QCOMPARE(w.visible("lstPlayerList")->rowCount(), players);
        QCOMPARE(w.find<QLabel>("lblServers")->text(), QStringLiteral("%1 servers found").arg(servers));
        // The window says that filters hide servers, and how many.
        QVERIFY(w.find<QLabel>("lblHidden")->isVisible());
        QCOMPARE(w.find<QLabel>("lblHidden")->text(), QStringLiteral("%1 hidden by filters").arg(40 - servers));
        QCOMPARE(w.column("lstServerList", ServerListModel::Map), QStringList(servers, QString::fromLatin1(map)));
        QFile saved(w.dataFile(QStringLiteral("filters.dat")));
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(saved.readAll(), QByteArray("si_map\x01") + map.toUpper() + "\r\n");

        // Hiding empty servers: no players, or only zero-ping ones.
        filters->findChild<QCheckBox*>(QStringLiteral("chkIncludeEmpty"))->click();
        int busy = 0;
        for (const auto& server : fleet.servers()) {
            const auto zero = std::count_if(server.players.begin(), server.players.end(),
                                            [](const SimReplies::Player& p) { return p.ping == 0; });
            busy += server.rules.at(1).second == map && server.players.size() - zero > 0;
        }
        QCOMPARE(w.visible("lstServerList")->rowCount(), busy);

        // New answers pass through the same test as they arrive.
        QVERIFY(w.queryMasters());
        QCOMPARE(w.visible("lstServerList")->rowCount(), busy);
        QCOMPARE(w.window->lists().servers().rowCount(), 40);
    }

    void theProtocolVersionIsARuleToShowAndFilter()
    {
        FleetOptions options = fleetOf(6, TestPorts::at(801));
        SimFleet retail(options);
        QVERIFY(!retail.start());
        // Two servers of the first release beside them, known from before.
        FleetOptions first = fleetOf(2, TestPorts::at(851));
        first.reply.protocol = SimReplies::Protocol1_0;
        first.reply.documentedTrailer = true;
        SimFleet old(first);
        QVERIFY(!old.start());
        TestWindow w(TestPorts::at(801), StartPort);
        QVERIFY(KnownServers::writeFile(w.dataFile(QStringLiteral("servers.dat")),
                                        {KnownServers::Server{"127.0.0.1", TestPorts::at(852), {}, 1, 0},
                                         KnownServers::Server{"127.0.0.1", TestPorts::at(853), {}, 1, 0}}));
        QVERIFY(w.queryMasters());
        QCOMPARE(w.visible("lstServerList")->rowCount(), 8);

        auto* list = w.find<ReportView>("lstServerList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
        auto* rules = w.find<ReportView>("lvwServerInfo")->model();
        QCOMPARE(rules->index(0, 0).data().toString(), QStringLiteral("protocol"));
        const QString version = rules->index(0, 1).data().toString();
        QVERIFY2(version == QLatin1String("2.85") || version == QLatin1String("2.62"), qPrintable(version));

        QTest::mouseClick(w.button("cmdFilters"), Qt::LeftButton);
        addFilter(w, QStringLiteral("protocol"), QStringLiteral("2.85"));
        QCOMPARE(w.visible("lstServerList")->rowCount(), 6);
        QVERIFY(!w.column("lstServerList", ServerListModel::Address).contains(TestPorts::local(852)));
    }
};

QTEST_MAIN(TestFrmMainQuery)
#include "tst_frmmain_query.moc"
