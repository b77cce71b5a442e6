// SPDX-License-Identifier: GPL-2.0-or-later
// Re-filtering 10,000 servers and 150,000 players, with 50 friends marked,
// and a refresh of every server applied in place.

#include "benchfleet.h"
#include "mainwindow/find.h"
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/rowmarkdelegate.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/servervisibility.h"
#include "mainwindow/visiblelist.h"
#include "presentation/countries.h"
#include "query/infoprotocol.h"
#include "userdata/friends.h"
#include "widgets/reportview.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

void printMemory(const char* when)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS") || line.startsWith("VmHWM"))
                std::printf("memory %s: %s\n", when, line.simplified().constData());
        }
    }
}

// Re-filtering after a filter change: 10,000 servers with 15 players each.
} // namespace

int filter()
{
    ServerListModel servers;
    // Countries named by Debian's database when it is installed, else by
    // their codes: sorting by country asks for every name.
    Countries countries;
    countries.open(CountryDatabase::DebianPath);
    servers.setCountries(&countries);
    PlayerListModel players(servers);
    ServerVisibility visibility(servers.store());
    VisibleList visibleServers([&](int row) { return visibility.isVisible(row); },
                               [&](int column) { return servers.sortKeys(column); });
    VisibleList visiblePlayers([&](int row) { return visibility.isVisible(players.row(row).server); },
                               [&](int column) { return players.sortKeys(column); });
    visibleServers.setSourceModel(&servers);
    visiblePlayers.setSourceModel(&players);

    const FleetOptions options = fleetOptions(10000, 0.0, 0);
    QList<ServerRecord> records;
    for (int i = 0; i < options.servers; ++i) {
        QList<SimReplies::Player> fifteen;
        for (int p = 0; p < 15; ++p)
            fifteen.append({quint8(p), quint16(20 + p), 25000, "^1Player^7" + QByteArray::number(p), "[c]"});
        const SimReplies::Rules rules{{"si_name", "^2Server " + QByteArray::number(i)},
                                      {"si_map", i % 3 ? "mp/q4dm" + QByteArray::number(i % 9) : "mp/q4ctf1"},
                                      {"si_maxplayers", "16"},
                                      {"si_usepass", "0"}};
        ServerRecord record = InfoProtocol::parseReply(SimReplies::infoResponse(rules, fifteen)).value();
        record.address = QStringLiteral("127.0.0.1");
        record.port = 20000 + i;
        static const QStringList codes{"DE", "US", "RU", "FR", "GB", "PL"};
        record.country = codes.at(i % codes.size());
        records.append(record);
    }
    servers.append(records);
    QElapsedTimer appendClock;
    appendClock.start();
    players.appendServersFrom(0);
    std::printf("friends: %d players listed in %lld ms without friends\n", players.rowCount(),
                (long long)appendClock.elapsed());
    appendClock.restart();
    players.setFriends(Friends::Matcher(fiftyFriends()));
    std::printf("friends: 50 friends marked among %d players in %lld ms\n", players.rowCount(),
                (long long)appendClock.elapsed());
    servers.setFriendLookup([&players](int server) { return players.hasFriendOn(server); });
    // With the views a user would be looking at.
    ReportView serverView(&visibleServers, QList<int>(8, 80));
    ReportView playerView(&visiblePlayers, QList<int>(11, 70));
    serverView.setItemDelegate(new RowMarkDelegate(&serverView));
    playerView.setItemDelegate(new RowMarkDelegate(&playerView));
    serverView.resize(800, 400);
    playerView.resize(800, 400);
    serverView.show();
    playerView.show();
    QCoreApplication::processEvents();

    const QList<Filters::VariableFilter> rules[] = {{{"si_map", "mp/q4dm*"}}, {{"si_*", "*7"}}, {}};
    qint64 worst = 0;
    for (const auto& rule : rules) {
        QElapsedTimer clock;
        clock.start();
        visibility.setRules(rule, Filters::BuiltIn{false, true, true});
        visibleServers.refilter();
        visiblePlayers.refilter();
        // The proxies build their mapping when first asked, as a view does
        // at its next paint: that belongs to the re-filter.
        const int shownServers = visibleServers.rowCount();
        const int shownPlayers = visiblePlayers.rowCount();
        serverView.viewport()->repaint();
        playerView.viewport()->repaint();
        const qint64 ms = clock.elapsed();
        worst = std::max(worst, ms);
        std::printf("filter: %d servers, %d players -> %d and %d visible in %lld ms\n", servers.rowCount(),
                    players.rowCount(), shownServers, shownPlayers, (long long)ms);
    }
    std::printf("filter: slowest re-filter %lld ms\n", (long long)worst);

    const struct {
        VisibleList* list;
        ReportView* view;
        const char* name;
        int column;
    } sorts[] = {{&visibleServers, &serverView, "servers by name", ServerListModel::Name},
                 {&visibleServers, &serverView, "servers by players", ServerListModel::Players},
                 {&visibleServers, &serverView, "servers by country", ServerListModel::Country},
                 {&visiblePlayers, &playerView, "players by name", PlayerListModel::Name},
                 {&visiblePlayers, &playerView, "players by ping", PlayerListModel::Ping},
                 {&visiblePlayers, &playerView, "players by server", PlayerListModel::ServerName}};
    for (const auto& sort : sorts) {
        for (Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            QElapsedTimer clock;
            clock.start();
            sort.list->sortBy(sort.column, order);
            sort.view->viewport()->repaint();
            std::printf("sort: %s %s in %lld ms\n", sort.name, order == Qt::AscendingOrder ? "ascending" : "descending",
                        (long long)clock.elapsed());
        }
    }

    printMemory("before the refresh");
    // A refresh round over every server, in the batches the window takes
    // (the answers of 40 ms; here 250 servers a batch), applied in place:
    // each server's rows change where they are, two players of each leave
    // and two others come.
    {
        qint64 slowestBatch = 0;
        QElapsedTimer total;
        total.start();
        for (int first = 0; first < servers.rowCount(); first += 250) {
            QElapsedTimer clock;
            clock.start();
            QList<int> batch;
            for (int index = first; index < std::min(first + 250, servers.rowCount()); ++index) {
                ServerRecord record = servers.record(index);
                record.players.removeFirst();
                record.players.removeFirst();
                for (const char* name : {"^3Friend7", "Newcomer"}) {
                    PlayerRecord player;
                    player.name = QString::fromLatin1(name);
                    record.players.append(player);
                }
                // One server in ten empties by three more.
                if (index % 10 == 0)
                    record.players.remove(0, 3);
                record.ping += 1;
                servers.replace(index, record, 0);
                batch.append(index);
            }
            players.updateServers(batch);
            serverView.viewport()->repaint();
            playerView.viewport()->repaint();
            slowestBatch = std::max(slowestBatch, clock.elapsed());
        }
        std::printf("refresh: %d servers updated in place (2 players in, 2 out each; 3 more out on every tenth) in "
                    "%lld ms, slowest batch of 250 %lld ms; %d players\n",
                    servers.rowCount(), (long long)total.elapsed(), (long long)slowestBatch, players.rowCount());
    }

    // Find-next at its worst: the only match is the row just above the
    // start, so both passes run over the whole list twice.
    visiblePlayers.sortBy(PlayerListModel::Ping, Qt::AscendingOrder);
    QAbstractItemModel* model = &visiblePlayers;
    const int rows = model->rowCount();
    const QString needle = model->index(rows / 2, 0).data().toString() + QStringLiteral("-absent");
    QElapsedTimer clock;
    clock.start();
    // As the find box does it: the visible order once, then the plain names.
    const std::vector<int> sourceRows = visiblePlayers.sourceRows();
    const int found = Find::findRow(
        rows, [&](int row) { return players.row(sourceRows[size_t(row)]).plainName; }, needle, rows / 2 + 1);
    std::printf("find: no match among %d players in %lld ms (%d)\n", rows, (long long)clock.elapsed(), found);

    printMemory("at the end");
    return 0;
}
