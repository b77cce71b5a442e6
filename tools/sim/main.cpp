// SPDX-License-Identifier: GPL-2.0-or-later
#include "simfleet.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace {

int number(const QCommandLineParser& parser, const QString& name, bool* ok)
{
    bool valid = false;
    const int value = parser.value(name).toInt(&valid);
    if (!valid)
        *ok = false;
    return value;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("q4vantage-sim"));
    QCoreApplication::setApplicationVersion(QStringLiteral(Q4V_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A Quake 4 master server and a fleet of game servers on the loopback address, for trying and "
                       "measuring the browser without the Internet."));
    parser.addHelpOption();
    parser.addVersionOption();
    const FleetOptions defaults;
    parser.addOptions({
        {QStringLiteral("servers"), QStringLiteral("Number of game servers."), QStringLiteral("N"),
         QString::number(defaults.servers)},
        {QStringLiteral("master-port"), QStringLiteral("UDP port of the master server."), QStringLiteral("PORT"),
         QString::number(defaults.masterPort)},
        {QStringLiteral("first-port"), QStringLiteral("UDP port of the first game server; the others follow."),
         QStringLiteral("PORT"), QString::number(defaults.firstServerPort)},
        {QStringLiteral("silent"), QStringLiteral("Share of servers that never answer, 0 to 1."),
         QStringLiteral("FRACTION"), QStringLiteral("0")},
        {QStringLiteral("delay"), QStringLiteral("Milliseconds before each reply."), QStringLiteral("MS"),
         QStringLiteral("0")},
        {QStringLiteral("jitter"), QStringLiteral("Up to this many milliseconds more, at random."),
         QStringLiteral("MS"), QStringLiteral("0")},
        {QStringLiteral("players"), QStringLiteral("Most players on one server."), QStringLiteral("N"),
         QString::number(defaults.playersPerServer)},
        {QStringLiteral("seed"), QStringLiteral("Seed for names, maps and players."), QStringLiteral("N"),
         QStringLiteral("1")},
        {QStringLiteral("churn"),
         QStringLiteral("Every this many seconds players join and leave on a fifth of the servers (0: never)."),
         QStringLiteral("SECONDS"), QStringLiteral("0")},
        {QStringLiteral("protocol"),
         QStringLiteral("Protocol version the servers answer with: 2.85 (1.4.2, what live servers run), 2.62 (1.0), "
                        "or any MAJOR.MINOR."),
         QStringLiteral("VERSION"), QStringLiteral("2.85")},
        {QStringLiteral("short-trailer"),
         QStringLiteral("End the player list with three bytes, as the first release is documented, instead of the "
                        "retail client number 32 and operating-system mask.")},
        {QStringLiteral("master-split"),
         QStringLiteral("The master sends its list in datagrams of N records, as the community master does (198); "
                        "0: the id master's 231 records and a shorter last datagram."),
         QStringLiteral("N"), QStringLiteral("0")},
        {QStringLiteral("lifetime"), QStringLiteral("Stop after this many seconds (0: run until stopped)."),
         QStringLiteral("SECONDS"), QStringLiteral("0")},
    });
    parser.process(app);

    bool ok = true;
    FleetOptions options;
    options.servers = number(parser, QStringLiteral("servers"), &ok);
    options.masterPort = quint16(number(parser, QStringLiteral("master-port"), &ok));
    options.firstServerPort = quint16(number(parser, QStringLiteral("first-port"), &ok));
    // Each number checked on its own: a later valid one must not hide an
    // earlier invalid one.
    bool silentOk = false;
    options.silentFraction = parser.value(QStringLiteral("silent")).toDouble(&silentOk);
    ok = ok && silentOk;
    options.delayMs = number(parser, QStringLiteral("delay"), &ok);
    options.jitterMs = number(parser, QStringLiteral("jitter"), &ok);
    options.playersPerServer = number(parser, QStringLiteral("players"), &ok);
    options.seed = quint32(number(parser, QStringLiteral("seed"), &ok));
    const int lifetime = number(parser, QStringLiteral("lifetime"), &ok);
    bool churnOk = false;
    const double churn = parser.value(QStringLiteral("churn")).toDouble(&churnOk);
    ok = ok && churnOk;
    options.churnMs = int(churn * 1000);
    const QStringList protocol = parser.value(QStringLiteral("protocol")).split(QLatin1Char('.'));
    bool majorOk = false;
    bool minorOk = false;
    const uint major = protocol.value(0).toUInt(&majorOk);
    const uint minor = protocol.value(1).toUInt(&minorOk);
    ok = ok && protocol.size() == 2 && majorOk && minorOk && major <= 0xFFFF && minor <= 0xFFFF;
    options.reply.protocol = quint32(major << 16 | minor);
    options.reply.documentedTrailer = parser.isSet(QStringLiteral("short-trailer"));
    options.masterSplit = number(parser, QStringLiteral("master-split"), &ok);
    if (!ok || options.servers < 0 || options.delayMs < 0 || options.jitterMs < 0 || options.playersPerServer < 0 ||
        lifetime < 0 || churn < 0 || options.masterSplit < 0 || options.firstServerPort + options.servers > 65536) {
        std::fprintf(stderr, "q4vantage-sim: invalid option value (see --help)\n");
        return 2;
    }

    if (options.firstServerPort + options.servers > 32768)
        std::fprintf(stderr, "q4vantage-sim: warning: the master lists ports as signed 16-bit numbers, so servers "
                             "on ports above 32767 reach the browser with the port of the server before them\n");

    SimFleet fleet(options);
    if (const auto error = fleet.start()) {
        std::fprintf(stderr, "q4vantage-sim: cannot bind %s\n", qPrintable(*error));
        return 3;
    }
    std::printf("q4vantage-sim: master on 127.0.0.1:%u, %d servers on ports %u-%u (%d answering)\n", options.masterPort,
                options.servers, options.firstServerPort,
                unsigned(options.firstServerPort + std::max(options.servers - 1, 0)), fleet.answeringServers());
    std::fflush(stdout);
    if (lifetime > 0)
        QTimer::singleShot(lifetime * 1000, &app, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
