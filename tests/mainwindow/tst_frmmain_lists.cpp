// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmfilters.h"
#include "filewrites.h"
#include "listedwindow.h"
#include "mainwindow/findbar.h"
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/serverlists.h"
#include "presentation/colourcodes.h"
#include "presentation/multicolorlabel.h"
#include "presentation/rowtones.h"
#include "presentation/themefile.h"
#include "presentation/themeservice.h"
#include "widgets/historycombobox.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QSet>
#include <QTabBar>
#include <QToolTip>

// The lists of a window that has listed a fleet, as a user works them:
// sorting, finding, the player view and the list's menu.
class TestFrmMainLists final : public QObject {
    Q_OBJECT

private slots:
    void columnClicksFlipSortAndPersist()
    {
        SimFleet fleet(fleetOf(30, TestPorts::at(901)));
        QVERIFY(!fleet.start());
        TestWindow w(TestPorts::at(901), TestPorts::at(2000));
        QHeaderView* header = w.find<ReportView>("lstServerList")->header();
        emit header->sectionClicked(ServerListModel::Ping);
        QVERIFY2(!w.settings().contains(u"SSortOrder"), "an empty list ignores the click");
        QCOMPARE(w.window->serverSort(), (ColumnLayout::SortState{0, 1}));

        QVERIFY(w.queryMasters());
        const auto numbers = [&w](int column) {
            QList<int> values;
            for (int row = 0; row < w.visible("lstServerList")->rowCount(); ++row)
                values.append(w.cell("lstServerList", row, column).section(QLatin1Char('/'), 0, 0).toInt());
            return values;
        };
        emit header->sectionClicked(ServerListModel::Players);
        QList<int> players = numbers(ServerListModel::Players);
        QVERIFY(std::is_sorted(players.begin(), players.end()));
        QCOMPARE(w.settings().get(u"SSortOrder"), QStringLiteral("0"));
        QCOMPARE(w.settings().get(u"SSortKey"), QStringLiteral("2"));
        // Another column: the direction still flips, so it sorts descending.
        emit header->sectionClicked(ServerListModel::Map);
        QStringList maps;
        for (int row = 0; row < 30; ++row)
            maps.append(w.cell("lstServerList", row, ServerListModel::Map));
        QVERIFY(std::is_sorted(maps.rbegin(), maps.rend()));
        QCOMPARE(w.settings().get(u"SSortOrder"), QStringLiteral("1"));
        emit header->sectionClicked(ServerListModel::Players);
        players = numbers(ServerListModel::Players);
        QVERIFY(std::is_sorted(players.begin(), players.end()));

        // The next query's rows come unsorted and are sorted when it ends.
        QVERIFY(w.queryMasters());
        players = numbers(ServerListModel::Players);
        QVERIFY(std::is_sorted(players.begin(), players.end()));
        QCOMPARE(players.size(), 30);
    }

    void aWideWindowShowsCellsWholeAndACutCellSaysItsText()
    {
        Listed w(12, TestPorts::at(1171), false);
        auto* list = w.list("lstServerList");
        QHeaderView* header = list->header();
        const int game = ServerListModel::GameName;
        int row = 0;
        while (w.cell("lstServerList", row, game) != QLatin1String("baseQUAKE4-1"))
            ++row;
        const QRect cell = list->visualRect(w.visible("lstServerList")->index(row, game));
        QVERIFY(header->sectionSize(game) <
                static_cast<QAbstractItemView*>(list)->sizeHintForColumn(game)); // cut at the first start's width
        QHelpEvent help(QEvent::ToolTip, cell.center(), list->viewport()->mapToGlobal(cell.center()));
        QApplication::sendEvent(list->viewport(), &help);
        QCOMPARE(QToolTip::text(), QStringLiteral("baseQUAKE4-1"));
        QToolTip::hideText();

        // Maximized, the room goes to the cut columns first.
        w.window->resize(1900, 1000);
        QTRY_VERIFY(header->sectionSize(game) >= static_cast<QAbstractItemView*>(list)->sizeHintForColumn(game));
        QVERIFY(header->length() <= list->viewport()->width());
        // A width the user chose stays as it is.
        header->resizeSection(ServerListModel::Map, 40);
        w.window->resize(1910, 1000);
        QTest::qWait(0);
        QCOMPARE(header->sectionSize(ServerListModel::Map), 40);

        // The smallest window still shows a useful part of the list.
        w.window->resize(FrmMain::MinimumSize);
        QTest::qWait(0);
        const int rowsShown = list->viewport()->height() / list->verticalHeader()->defaultSectionSize();
        QVERIFY(rowsShown >= 5);
    }

    void hideEmptyHideFullAndFilterByThisMapAreOneClickAway()
    {
        Listed w(30, TestPorts::at(1181), false);
        const auto count = [&w](const std::function<bool(const ServerRecord&)>& test) {
            int found = 0;
            for (const int row : w.window->lists().visibleServers().sourceRows())
                found += test(w.window->lists().server(row)) ? 1 : 0;
            return found;
        };
        const auto empty = [](const ServerRecord& server) { return server.playerCount - server.zeroPingCount == 0; };
        const auto full = [](const ServerRecord& server) { return server.playerCount == server.maxPlayers; };
        // Two servers emptied, as late at night.
        for (int index : {4, 9})
            w.fleet.setServer(index, w.fleet.servers().at(index).rules, {});
        QVERIFY(w.queryMasters());
        QVERIFY(count(empty) >= 2 && count(full) > 0);
        auto* hideEmpty = w.find<QCheckBox>("chkHideEmpty");
        auto* filtersEmpty = w.window->findChild<FrmFilters*>()->findChild<QCheckBox*>(); // the first: "Empty"
        QTest::mouseClick(hideEmpty, Qt::LeftButton);
        QCOMPARE(count(empty), 0);
        QVERIFY(!w.settings().value(Keys::IncludeEmpty));
        QVERIFY(!filtersEmpty->isChecked());
        const int shown = w.visible("lstServerList")->rowCount();
        QCOMPARE(w.find<QLabel>("lblHidden")->text(), QStringLiteral("%1 hidden by filters").arg(30 - shown));
        QTest::mouseClick(w.find<QCheckBox>("chkHideFull"), Qt::LeftButton);
        QCOMPARE(count(full), 0);
        // The filters' own box, ticked, lists empty servers again: both agree.
        QTest::mouseClick(filtersEmpty, Qt::LeftButton);
        QVERIFY(!hideEmpty->isChecked());
        QVERIFY(count(empty) > 0);
        QTest::mouseClick(w.find<QCheckBox>("chkHideFull"), Qt::LeftButton);

        // A row's menu: only the servers on its map.
        auto* list = w.list("lstServerList");
        const QRect cell = list->visualRect(w.visible("lstServerList")->index(3, 0));
        const QString map = w.cell("lstServerList", 3, ServerListModel::Map);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseClick(list->viewport(), Qt::RightButton, {}, cell.center());
        auto* action = w.find<QMenu>("mPopupAlt")->findChild<QAction*>(QStringLiteral("mPopFilterMap"));
        QVERIFY(action->isVisible());
        action->trigger();
        QVERIFY(w.visible("lstServerList")->rowCount() > 0);
        const QStringList maps = w.column("lstServerList", ServerListModel::Map);
        QCOMPARE(QSet<QString>(maps.cbegin(), maps.cend()), QSet<QString>{map});
        QCOMPARE(w.status(),
                 QStringLiteral("Only servers on %1 are listed now; \"Filters\" takes the filter away.").arg(map));
        QCOMPARE(w.window->findChild<FrmFilters*>()->filters().last(),
                 (Filters::VariableFilter{QStringLiteral("si_map"), map}));

        // A settings file that cannot be written (a folder in its place):
        // the box shows what is in force and says why; the filters' own box
        // still filters for the session.
        const QString settingsFile = w.dataFile(QStringLiteral("settings.ini"));
        QVERIFY(QFile::remove(settingsFile) && QDir().mkpath(settingsFile));
        const int listed = w.visible("lstServerList")->rowCount();
        QTest::mouseClick(w.find<QCheckBox>("chkHideFull"), Qt::LeftButton);
        QVERIFY(!w.find<QCheckBox>("chkHideFull")->isChecked());
        QCOMPARE(w.status(), QStringLiteral("The settings could not be saved, so the list stays as it was."));
        QCOMPARE(w.visible("lstServerList")->rowCount(), listed);
        QTest::mouseClick(filtersEmpty, Qt::LeftButton);
        QVERIFY(!filtersEmpty->isChecked());
        QCOMPARE(count(empty), 0);
    }

    // What players look for at a glance: pings in their tone, full servers
    // and favourites marked, in the light and the dark lists alike.
    void pingsFullServersAndFavouritesStandOut()
    {
        Listed w(12, TestPorts::at(1191), false);
        auto* players = w.list("lstPlayerList");
        w.find<QTabBar>("tabSelect")->setCurrentIndex(FrmMain::PlayersTab);
        const auto drawn = [](ReportView* list, int row, int column) {
            const QRect cell = list->visualRect(list->model()->index(row, column));
            return TestWindow::textColour(list->viewport(), list->viewport()->palette().color(QPalette::Base), cell);
        };
        const auto rowWith = [&w](const char* list, int column, const std::function<bool(int)>& test) {
            for (int row = 0; row < w.visible(list)->rowCount(); ++row)
                if (test(w.cell(list, row, column).section(QLatin1Char('/'), 0, 0).toInt()) &&
                    !w.cell(list, row, column).isEmpty())
                    return row;
            return -1;
        };
        const int fast = rowWith("lstPlayerList", PlayerListModel::Ping, [](int ms) { return ms > 0 && ms < 80; });
        const int slow = rowWith("lstPlayerList", PlayerListModel::Ping, [](int ms) { return ms >= 150; });
        QVERIFY(fast >= 0 && slow >= 0);
        for (const bool dark : {false, true}) {
            if (dark)
                w.window->themes().apply(ThemeFile::shippedThemes().first());
            const QColor base = players->viewport()->palette().color(QPalette::Base);
            QCOMPARE(drawn(players, fast, PlayerListModel::Ping), RowTones::colour(RowTones::Tier::Good, base));
            QCOMPARE(drawn(players, slow, PlayerListModel::Ping), RowTones::colour(RowTones::Tier::Poor, base));
        }

        w.find<QTabBar>("tabSelect")->setCurrentIndex(FrmMain::ServersTab);
        auto* servers = w.list("lstServerList");
        int full = -1;
        for (int row = 0; row < w.visible("lstServerList")->rowCount() && full < 0; ++row) {
            const QStringList count = w.cell("lstServerList", row, ServerListModel::Players).split(QLatin1Char('/'));
            if (count.first() == count.last())
                full = row;
        }
        QVERIFY(full >= 0);
        const QModelIndex fullPlayers = w.visible("lstServerList")->index(full, ServerListModel::Players);
        QVERIFY(
            fullPlayers.data(Qt::ToolTipRole)
                .toString()
                .contains(
                    QStringLiteral("Full: %1 of %1 players")
                        .arg(w.cell("lstServerList", full, ServerListModel::Players).section(QLatin1Char('/'), 0, 0))));
        QCOMPARE(drawn(servers, full, ServerListModel::Players),
                 RowTones::colour(RowTones::Tier::Poor, servers->viewport()->palette().color(QPalette::Base)));

        // Added from the menu: its row gets the heart and says why.
        const QRect first = servers->visualRect(w.visible("lstServerList")->index(0, 0));
        QTest::mouseClick(servers->viewport(), Qt::LeftButton, {}, first.center());
        QTest::mouseClick(servers->viewport(), Qt::RightButton, {}, first.center());
        w.find<QMenu>("mPopupAlt")->findChild<QAction*>(QStringLiteral("mPopAdd"))->trigger();
        const QModelIndex added = w.visible("lstServerList")->index(0, 0);
        QTRY_VERIFY(added.data(RowMarks::Role).toInt() & RowMarks::Favourite);
        QVERIFY(added.data(Qt::ToolTipRole).toString().contains(QStringLiteral("One of your favourites")));
        QVERIFY(!(w.visible("lstServerList")->index(1, 0).data(RowMarks::Role).toInt() & RowMarks::Favourite));
    }

    void anotherLanguageReachesTheSelectionAndTheCounters()
    {
        Listed w(6, TestPorts::at(1151), false);
        auto* list = w.list("lstServerList");
        list->setCurrentIndex(w.visible("lstServerList")->index(2, 0));
        QCOMPARE(w.find<QLabel>("lblSName")->text(), QStringLiteral("Server Name:"));
        QVERIFY(w.language.apply(2)); // Deutsch
        QTest::qWait(0);
        QCOMPARE(w.find<QLabel>("lblSName")->text(), QStringLiteral("Servername:"));
        QCOMPARE(w.find<QLabel>("lblPlayers")->text(),
                 QStringLiteral("%1 Spieler gefunden").arg(w.visible("lstPlayerList")->rowCount()));
        QCOMPARE(w.find<QLabel>("lblServers")->text(), QStringLiteral("6 Server gefunden"));
        QVERIFY(w.language.apply(0));
    }

    void findSelectsAndMarksMisses()
    {
        Listed w(20, TestPorts::at(1101), false);
        auto* find = w.find<HistoryComboBox>("cmbFind");
        auto* list = w.find<ReportView>("lstServerList");
        const QColor normal = TestWindow::backgroundColour(find);

        w.type(find, QStringLiteral("#1"));
        // Typing searches from the top: "#1" is in "... #1", "... #10" and up.
        QVERIFY(list->currentIndex().isValid());
        QVERIFY(list->currentIndex().data().toString().contains(QStringLiteral("#1")));
        const int first = list->currentIndex().row();
        QVERIFY(w.find<MulticolorLabel>("mclSName")->caption().contains(QStringLiteral("#1")));
        // Find next moves on, and wraps round to the first again.
        // The first Find moves on from the match typing selected; Enter in
        // the box is the same as Find.
        QTest::mouseClick(w.button("cmdFind"), Qt::LeftButton);
        QVERIFY(list->currentIndex().row() != first);
        QSet<int> seen{first, list->currentIndex().row()};
        for (int i = 0; i < 11; ++i) {
            QTest::keyClick(w.focus(find), Qt::Key_Return);
            seen.insert(list->currentIndex().row());
        }
        QCOMPARE(seen.size(), 11); // #1 and #10 to #19
        QCOMPARE(find->entries(), QStringList{"#1"});
        // Leaving the box keeps the match it found.
        const int found = list->currentIndex().row();
        w.focus(w.find<HistoryComboBox>("cmbPlayerName"));
        QCOMPARE(list->currentIndex().row(), found);

        const auto clearBox = [&] {
            QTest::keyClick(w.focus(find), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        };
        clearBox();
        w.type(find, QStringLiteral("no such server"));
        QCOMPARE(TestWindow::backgroundColour(find), FindBar::notFoundColour());
        QCOMPARE(w.status(), QStringLiteral("Text Not Found"));
        QCOMPARE(w.statusColour(), StatusLine::colour(StatusTone::Failed));
        QVERIFY(!list->currentIndex().isValid());
        QCOMPARE(w.find<MulticolorLabel>("mclSName")->caption(), QString());

        // Typed over the selected text: the box is never empty on the way.
        QTest::keyClick(w.focus(find), Qt::Key_A, Qt::ControlModifier);
        w.type(find, QStringLiteral("#5"));
        QCOMPARE(TestWindow::backgroundColour(find), normal);
        QCOMPARE(w.status(), QStringLiteral("Text Not Found")); // only an empty search clears it
        clearBox();
        QCOMPARE(w.status(), QString());
        QVERIFY(list->selectionModel()->selectedRows().isEmpty());

        // An empty box: cmdFind remembers the empty text once.
        QTest::mouseClick(w.button("cmdFind"), Qt::LeftButton);
        QTest::mouseClick(w.button("cmdFind"), Qt::LeftButton);
        QCOMPARE(find->entries(), (QStringList{"#1", ""}));
    }

    void playerViewCopiesAndSelectsTheServer()
    {
        Listed w(12, TestPorts::at(1201), false);
        w.find<QTabBar>("tabSelect")->setCurrentIndex(FrmMain::PlayersTab);
        auto* players = w.find<ReportView>("lstPlayerList");
        QVERIFY(players->isVisible());
        players->setCurrentIndex(players->model()->index(3, 0));
        const auto& row = w.window->lists().players().row(3);
        const ServerRecord& server = w.window->lists().servers().record(row.server);
        QCOMPARE(w.find<MulticolorLabel>("mclPName")->caption(),
                 ColourCodes::ShowPlayerName(server.players.at(row.player).name).text);
        QTest::keyClick(players, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), server.endpointText());

        w.find<QAction>("mPopSelServer")->trigger();
        QCOMPARE(w.find<QTabBar>("tabSelect")->currentIndex(), int(FrmMain::ServersTab));
        auto* servers = w.find<ReportView>("lstServerList");
        QCOMPARE(servers->model()->index(servers->currentIndex().row(), ServerListModel::Address).data().toString(),
                 server.endpointText());
        QCOMPARE(w.find<ReportView>("lvwPlayers")->model()->rowCount(), server.players.size());
        QCOMPARE(w.find<ReportView>("lvwServerInfo")->model()->rowCount(), server.tokens.size() / 2);

        // A server hidden by the filters takes its players with it, so no
        // player is left to select a filtered-out server from.
        addFilter(w, QStringLiteral("si_name"), QStringLiteral("-nothing"));
        QCOMPARE(servers->model()->rowCount(), 0);
        QCOMPARE(players->model()->rowCount(), 0);
    }

    void rightClickOpensTheMenuWithoutRefreshing()
    {
        Listed w(3, TestPorts::at(1301), true);
        SimFleet& fleet = w.fleet;
        const int requests = fleet.infoRequests();
        auto* list = w.find<ReportView>("lstServerList");
        const QPoint cell = list->visualRect(list->model()->index(1, 0)).center();
        QTest::mousePress(list->viewport(), Qt::RightButton, {}, cell);
        QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, cell);
        auto* menu = w.find<QMenu>("mPopupAlt");
        QVERIFY(menu->isVisible());
        menu->hide();
        QCOMPARE(list->currentIndex().row(), 1);
        QVERIFY(!w.find<MulticolorLabel>("mclSName")->caption().isEmpty());
        QTest::qWait(100);
        QCOMPARE(fleet.infoRequests(), requests);
        // The press saved the column orders.
        QVERIFY(w.settings().contains(u"SColumnOrder0"));

        // A press that moves nothing leaves the file alone; one after a
        // column was moved writes it once.
        FileWrites writes(w.settings().filePath());
        QVERIFY(writes.isWatching());
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(writes.take(), 0);
        list->horizontalHeader()->moveSection(7, 0);
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, cell);
        QCOMPARE(writes.take(), 1);
        QCOMPARE(w.settings().get(u"SColumnOrder0"), QStringLiteral("7"));
    }
};

QTEST_MAIN(TestFrmMainLists)
#include "tst_frmmain_lists.moc"
