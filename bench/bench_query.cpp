// SPDX-License-Identifier: GPL-2.0-or-later
// Measures the query engine against a simulated fleet that runs on its own
// thread, so the fleet's work does not count against the engine's.
//
//   q4vantage-bench pool      2,000 servers, 20% silent, 5 ms delay, Speed 5:
//                             elapsed time against the pool bound
//   q4vantage-bench cost      10,000 servers, no delay: engine CPU per answer
//   q4vantage-bench window    5,000 servers into the main window: longest
//                             event-loop stall while they arrive
//   q4vantage-bench windowping  the same with every answer 50 ms late: the
//                             error of the pings the window lists
//   q4vantage-bench parse     infoResponse parsing throughput
//   q4vantage-bench sources   a silent master beside a published list and 30
//                             live servers: when the window lists them
//   q4vantage-bench countries one country lookup per answering server: the
//                             cost on Debian's location database
//   q4vantage-bench mapscan FOLDER  one read of a game folder's archives
//   q4vantage-bench installs  looking for the game's installs (Steam's
//                             libraries, the Linux release, Wine)
//   q4vantage-bench filter    re-filtering 10,000 servers and 150,000 players,
//                             with 50 friends marked, and a refresh of every
//                             server applied in place
//
// The window runs with 50 friends and the automatic refresh on; after its
// query it measures one refresh round of every listed server.

#include "benchfleet.h"
#include "mainwindow/autorefresh.h"
#include "mainwindow/find.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/playerlistmodel.h"
#include "mainwindow/querycontroller.h"
#include "mainwindow/rowmarkdelegate.h"
#include "mainwindow/serverlistmodel.h"
#include "mainwindow/serverlists.h"
#include "mainwindow/servervisibility.h"
#include "mainwindow/visiblelist.h"
#include "platform/systemlimits.h"
#include "presentation/language.h"
#include "query/infoprotocol.h"
#include "query/querysession.h"
#include "scripteddesktop.h"
#include "simfleet.h"
#include "simlocations.h"
#include "userdata/friends.h"
#include "userdata/settingscodec.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr quint16 StartPort = 47000;

// A fleet living on a worker thread with its own event loop.
class FleetThread {
public:
    explicit FleetThread(const FleetOptions& options)
    {
        m_thread.start();
        m_fleet = new SimFleet(options);
        m_fleet->moveToThread(&m_thread);
        std::optional<QString> error;
        QMetaObject::invokeMethod(
            m_fleet, [this, &error] { error = m_fleet->start(); }, Qt::BlockingQueuedConnection);
        if (error)
            qFatal("fleet: %s", qPrintable(*error));
    }
    ~FleetThread()
    {
        QMetaObject::invokeMethod(
            m_fleet, [this] { delete m_fleet; }, Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }
    const SimFleet& fleet() const { return *m_fleet; }

private:
    QThread m_thread;
    SimFleet* m_fleet = nullptr;
};

struct QueryResult {
    qint64 elapsedMs = 0;
    qint64 masterMs = 0;
    long long cpuMicroseconds = 0;
    int answered = 0;
    int timedOut = 0;
    int dropped = 0;
};

// Through the master, or (beyond the master list's 5461 records) straight
// from an address table of the fleet.
QueryResult runQuery(int speed, const SimFleet* direct = nullptr)
{
    QuerySession session;
    session.setPool({QuerySpeed::lastSocketIndex(speed, 19), StartPort});
    QueryResult result;
    QElapsedTimer clock;
    QObject::connect(&session, &QuerySession::phaseChanged, [&](QuerySession::Phase phase) {
        if (phase == QuerySession::Phase::Querying)
            result.masterMs = clock.elapsed();
    });
    QObject::connect(&session, &QuerySession::finished, qApp, &QCoreApplication::quit);
    QObject::connect(&session, &QuerySession::masterTimedOut, [] { qFatal("master timed out"); });
    QObject::connect(&session, &QuerySession::failed,
                     [](const QueryError& error) { qFatal("%s", qPrintable(error.message())); });
    AddressTable table;
    if (direct) {
        for (const auto& server : direct->servers())
            table.add(QStringLiteral("127.0.0.1"), server.port);
    }
    const long long cpuBefore = SystemLimits::threadCpuMicroseconds();
    clock.start();
    const auto error = direct ? session.startAddresses(table) : session.startMaster(MasterAddress{"127.0.0.1", 19999});
    if (error)
        qFatal("%s", qPrintable(error->message()));
    QCoreApplication::exec();
    result.elapsedMs = clock.elapsed();
    result.cpuMicroseconds = SystemLimits::threadCpuMicroseconds() - cpuBefore;
    result.answered = session.scheduler().answeredCount();
    result.timedOut = session.scheduler().timedOutCount();
    result.dropped = session.droppedDatagrams();
    return result;
}

// The best any pool of this size can do for the table in this order: each
// request starts on the first socket to become free and holds it for the
// reply delay or the whole time-out. The bound below ignores how the last
// requests leave sockets idle; this does not.
double idealScheduleMs(const SimFleet& fleet, int sockets, int delayMs)
{
    std::vector<double> freeAt(size_t(sockets), 0.0);
    for (const auto& server : fleet.servers()) {
        auto first = std::min_element(freeAt.begin(), freeAt.end());
        *first += server.silent ? QueryScheduler::TimeoutMs : delayMs;
    }
    return *std::max_element(freeAt.begin(), freeAt.end());
}

int pool()
{
    const FleetOptions options = fleetOptions(2000, 0.2, 5);
    FleetThread fleet(options);
    const QueryResult result = runQuery(5);
    const int answering = fleet.fleet().answeringServers();
    const int silent = options.servers - answering;
    const double bound = answering * 5.0 / 20.0 + silent * 1500.0 / 20.0 + double(result.masterMs);
    std::printf("pool: %d servers (%d silent), 5 ms delay, 20 sockets\n", options.servers, silent);
    std::printf("  answered %d, timed out %d, dropped %d\n", result.answered, result.timedOut, result.dropped);
    const double ideal = idealScheduleMs(fleet.fleet(), 20, 5) + double(result.masterMs);
    std::printf("  master phase %lld ms, whole query %lld ms, pool bound %.0f ms, over the bound %+.2f%%\n",
                (long long)result.masterMs, (long long)result.elapsedMs, bound,
                100.0 * (double(result.elapsedMs) - bound) / bound);
    std::printf("  ideal schedule for this order %.0f ms (%+.2f%% over the bound); the engine took %+.2f%% more\n",
                ideal, 100.0 * (ideal - bound) / bound, 100.0 * (double(result.elapsedMs) - ideal) / ideal);
    return result.answered == answering ? 0 : 1;
}

int cost()
{
    FleetThread fleet(fleetOptions(10000, 0.0, 0));
    const QueryResult result = runQuery(5, &fleet.fleet());
    std::printf("cost: 10000 servers, no delay, 20 sockets\n");
    std::printf("  answered %d in %lld ms; engine CPU %.1f ms, %.1f us per answered server\n", result.answered,
                (long long)result.elapsedMs, result.cpuMicroseconds / 1000.0,
                double(result.cpuMicroseconds) / std::max(result.answered, 1));
    return result.answered == 10000 ? 0 : 1;
}

// delayMs > 0: every server answers that much later, and the pings the
// window lists are compared with it.
int window(int delayMs, int servers)
{
    // The fleet runs as its own process here, as real servers do: an
    // in-process fleet of 5,000 sockets would share this process's event
    // machinery and make the measurement about itself. A master lists
    // 5,461 servers at most: a larger fleet is split between masters.
    std::vector<std::unique_ptr<QProcess>> simulators;
    QStringList masters;
    for (int first = 0; first < servers; first += 5000) {
        const int port = 20000 + 5001 * int(simulators.size());
        auto& simulator = simulators.emplace_back(std::make_unique<QProcess>());
        simulator->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        simulator->start(QStringLiteral(SIM_TOOL),
                         {QStringLiteral("--servers"), QString::number(std::min(servers - first, 5000)),
                          QStringLiteral("--master-port"), QString::number(port - 1), QStringLiteral("--first-port"),
                          QString::number(port), QStringLiteral("--seed"), QString::number(42 + first),
                          QStringLiteral("--lifetime"), QStringLiteral("120"), QStringLiteral("--delay"),
                          QString::number(delayMs),
                          // Players come and go meanwhile, so the refresh
                          // round has rows to change, add and remove.
                          QStringLiteral("--churn"), QStringLiteral("1")});
        if (!simulator->waitForReadyRead(20000))
            qFatal("q4vantage-sim did not start");
        masters.append(QStringLiteral("127.0.0.1:%1").arg(port - 1));
    }
    QTemporaryDir dir;
    SettingsStore settings(dir.filePath(QStringLiteral("settings.ini")));
    settings.save(Keys::MasterServer.key, masters.join(QLatin1Char(' ')));
    settings.save(Keys::StartPort.key, QString::number(StartPort));
    settings.set(Keys::Friends, fiftyFriends());
    settings.set(Keys::AutoRefreshMinutes, 5);
    // Every server placed in its country, the country column shown: the
    // lookups and the column are part of what is measured.
    const QString countries = dir.filePath(QStringLiteral("loopback.db"));
    if (!writeLoopbackCountries(countries))
        qFatal("no location database");
    settings.save(Keys::CountryDatabase.key, countries);
    settings.save(SettingsCodec::columnShownKey(Keys::ServerList.columns, ServerListModel::Country),
                  QStringLiteral("1"));
    ScriptedDesktop desktop;
    Language language;
    FrmMain main(settings, desktop, language, dir.path());
    main.show();

    // A 5 ms heartbeat: any gap much longer is time the window could not
    // react to the user.
    QElapsedTimer clock;
    QElapsedTimer beat;
    qint64 longest = 0;
    qint64 longestAt = 0;
    QTimer heartbeat;
    heartbeat.setTimerType(Qt::PreciseTimer);
    heartbeat.setInterval(5);
    QObject::connect(&heartbeat, &QTimer::timeout, [&] {
        const qint64 gap = beat.restart();
        if (gap > longest) {
            longest = gap;
            longestAt = clock.elapsed();
        }
    });
    auto* status = main.findChild<QLabel*>(QStringLiteral("lblStatus"));
    qint64 queryMs = 0;
    qint64 queryStall = 0;
    qint64 refreshMs = -1;
    QElapsedTimer refreshClock;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        // Stop measuring before quitting: quitting closes the window, and
        // writing its layout back is not part of the query.
        if (queryMs == 0 && status->text() == QLatin1String("Done")) {
            queryMs = clock.elapsed();
            queryStall = std::exchange(longest, 0);
            // Then one round of the automatic refresh over every row.
            refreshClock.start();
            if (!main.autoRefresh().refreshNow())
                QCoreApplication::quit();
            return;
        }
        if (queryMs > 0 && !main.queries().isRefreshing()) {
            heartbeat.stop();
            refreshMs = refreshClock.elapsed();
            QCoreApplication::quit();
        }
    });
    poll.start(20);
    // The first paint of a new window (fonts, style) is not part of the
    // query: start measuring once it has settled.
    QTimer::singleShot(500, [&] {
        clock.start();
        beat.start();
        heartbeat.start();
        main.findChild<QPushButton*>("cmdGet")->click();
    });
    QCoreApplication::exec();
    std::printf("window: %d servers, %d players listed in %lld ms; longest event-loop stall %lld ms "
                "(50 friends, automatic refresh on, countries shown)\n",
                servers, main.lists().players().rowCount(), (long long)queryMs, (long long)queryStall);
    std::printf("window: a refresh round of every server, rows updated in place, in %lld ms; longest event-loop "
                "stall %lld ms (ending %lld ms after the click)\n",
                (long long)refreshMs, (long long)longest, (long long)longestAt);
    if (delayMs > 0) {
        const ServerStore& store = main.lists().servers().store();
        std::vector<int> errors;
        for (int i = 0; i < store.count(); ++i)
            errors.push_back(std::abs(store.at(i).ping - delayMs));
        std::sort(errors.begin(), errors.end());
        if (!errors.empty())
            std::printf("window: pings of servers answering after %d ms: median error %d ms, 95th percentile %d ms\n",
                        delayMs, errors[errors.size() / 2], errors[errors.size() * 95 / 100]);
    }
    for (const auto& simulator : simulators) {
        simulator->kill();
        simulator->waitForFinished();
    }
    return main.lists().servers().rowCount() == servers ? 0 : 1;
}

int parse()
{
    const FleetOptions options = fleetOptions(1000, 0.0, 0);
    SimFleet fleet(options); // not started: only its replies are used
    qint64 bytes = 0;
    for (const auto& server : fleet.servers())
        bytes += server.reply.size();
    QElapsedTimer clock;
    clock.start();
    int players = 0;
    constexpr int rounds = 50;
    for (int round = 0; round < rounds; ++round) {
        for (const auto& server : fleet.servers())
            players += InfoProtocol::parseReply(server.reply).value_or(ServerRecord()).playerCount;
    }
    const double seconds = clock.nsecsElapsed() / 1e9;
    std::printf("parse: %d replies (%.1f MB) in %.3f s: %.0f replies/s, %.2f us per reply (%d players)\n",
                rounds * 1000, rounds * bytes / 1e6, seconds, rounds * 1000 / seconds, seconds * 1e6 / (rounds * 1000),
                players);
    return 0;
}

} // namespace

int sources();   // bench_sources.cpp
int filter();    // bench_filter.cpp
int countries(); // bench_countries.cpp
int mapscan(const QString& folder);
int installs(); // bench_installs.cpp

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    SystemLimits::raiseOpenFileLimit(16384);
    const QString which = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (which == QLatin1String("pool"))
        return pool();
    if (which == QLatin1String("cost"))
        return cost();
    const int servers = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 5000;
    if (which == QLatin1String("window"))
        return window(0, std::clamp(servers, 1, 10000));
    if (which == QLatin1String("windowping"))
        return window(50, 5000);
    if (which == QLatin1String("parse"))
        return parse();
    if (which == QLatin1String("filter"))
        return filter();
    if (which == QLatin1String("sources"))
        return sources();
    if (which == QLatin1String("countries"))
        return countries();
    if (which == QLatin1String("installs"))
        return installs();
    if (which == QLatin1String("mapscan"))
        return mapscan(argc > 2 ? QString::fromLocal8Bit(argv[2]) : QString());
    std::fprintf(
        stderr,
        "usage: q4vantage-bench pool|cost|window [SERVERS]|windowping|parse|filter|sources|countries|mapscan|installs\n");
    return 2;
}
