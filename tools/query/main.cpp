#include "favourites.h"
#include "masteraddress.h"
#include "queryreport.h"
#include "querysession.h"
#include "settingskeys.h"
#include "settingsstore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace {

enum ExitCode { Finished = 0, MasterFailed = 1, UsageError = 2, PortUnavailable = 3, NothingToQuery = 4 };

int usage(const QString& message)
{
    std::fprintf(stderr, "q4vantage-query: %s (see --help)\n", qPrintable(message));
    return UsageError;
}

// A favourites file with no servers: nothing was asked, so there is nothing
// to wait for.
int nothingToQuery(const QString& message)
{
    std::fprintf(stderr, "q4vantage-query: %s\n", qPrintable(message));
    return NothingToQuery;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("q4vantage-query"));
    QCoreApplication::setApplicationVersion(QStringLiteral(Q4V_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Queries Quake 4 servers as the browser does, without a window.\n"
                       "Exit status: 0 finished, 1 master timed out or failed, 2 usage error, 3 a local port "
                       "could not be bound, 4 the favourites hold no server."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption masterOption(QStringLiteral("master"),
                                          QStringLiteral("Master server (default: the browser's setting)."),
                                          QStringLiteral("HOST[:PORT]"));
    const QCommandLineOption favouritesOption(QStringLiteral("favourites"),
                                              QStringLiteral("Query the servers of this favourites.dat instead."),
                                              QStringLiteral("FILE"));
    const QCommandLineOption serverOption(QStringLiteral("server"),
                                          QStringLiteral("Query this server instead (repeatable)."),
                                          QStringLiteral("HOST:PORT"));
    const QCommandLineOption speedOption(QStringLiteral("speed"),
                                         QStringLiteral("Requests in flight: 0 (2) to 5 (20). Default: the setting."),
                                         QStringLiteral("0-5"));
    const QCommandLineOption startPortOption(QStringLiteral("start-port"),
                                             QStringLiteral("First local UDP port. Default: the setting."),
                                             QStringLiteral("N"));
    const QCommandLineOption formatOption(QStringLiteral("format"), QStringLiteral("Output: text or json."),
                                          QStringLiteral("text|json"), QStringLiteral("text"));
    parser.addOptions({masterOption, favouritesOption, serverOption, speedOption, startPortOption, formatOption});
    if (!parser.parse(QCoreApplication::arguments()))
        return usage(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(0);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (!parser.positionalArguments().isEmpty())
        return usage(QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().first()));

    const SettingsStore settings;
    const QString format = parser.value(formatOption);
    if (format != QLatin1String("text") && format != QLatin1String("json"))
        return usage(QStringLiteral("unknown format %1").arg(format));

    bool ok = true;
    const int speed = parser.isSet(speedOption) ? parser.value(speedOption).toInt(&ok) : settings.value(Keys::Speed);
    if (!ok || (parser.isSet(speedOption) && (speed < 0 || speed > 5)))
        return usage(QStringLiteral("speed must be 0 to 5"));
    const QuerySpeed::PortPlan plan{QuerySpeed::lastSocketIndex(speed, QuerySpeed::DefaultLastSocketIndex),
                                    parser.isSet(startPortOption) ? parser.value(startPortOption).toInt(&ok)
                                                                  : settings.value(Keys::StartPort)};
    if (!ok || !plan.isValid())
        return usage(QStringLiteral("start port out of range"));

    AddressTable table;
    bool direct = false;
    if (parser.isSet(favouritesOption)) {
        direct = true;
        const auto favourites = Favourites::readFile(parser.value(favouritesOption));
        if (favourites)
            table = Favourites::toAddressTable(*favourites);
        else if (!parser.isSet(serverOption))
            return nothingToQuery(QStringLiteral("no favourites in %1 (missing, unreadable or shorter than 4 bytes)")
                                      .arg(parser.value(favouritesOption)));
    }
    for (const QString& server : parser.values(serverOption)) {
        direct = true;
        const qsizetype colon = server.lastIndexOf(QLatin1Char(':'));
        const int port = colon > 0 ? server.mid(colon + 1).toInt(&ok) : 0;
        if (colon <= 0 || !ok || port < 1 || port > 65535)
            return usage(QStringLiteral("--server wants HOST:PORT, not %1").arg(server));
        // Masters list IPv4 servers only, and the pool's sockets are IPv4.
        if (server.startsWith(QLatin1Char('[')) || server.left(colon).contains(QLatin1Char(':')))
            return usage(QStringLiteral("IPv6 servers are not supported: %1").arg(server));
        table.add(server.left(colon), port);
    }
    if (direct && table.isEmpty())
        return nothingToQuery(QStringLiteral("no servers to query in %1").arg(parser.value(favouritesOption)));
    const QString masterText =
        parser.isSet(masterOption) ? parser.value(masterOption) : settings.value(Keys::MasterServer);
    const auto master = parseMasterAddress(masterText);
    if (!direct && !master)
        return usage(QStringLiteral("not a master server address: %1").arg(masterText));

    QuerySession session;
    session.setPool(plan);
    QList<ServerRecord> answers;
    int exitCode = Finished;
    QObject::connect(&session, &QuerySession::serverAnswered, &app,
                     [&answers](const ServerRecord& server) { answers.append(server); });
    const auto report = [&] {
        const QueryReport::Summary summary{session.addresses().count(), session.scheduler().answeredCount(),
                                           session.scheduler().timedOutCount(), session.droppedDatagrams(),
                                           session.elapsedMs()};
        const QByteArray out =
            format == QLatin1String("json") ? QueryReport::json(summary, answers) : QueryReport::text(summary, answers);
        std::fwrite(out.constData(), 1, size_t(out.size()), stdout);
    };
    QObject::connect(&session, &QuerySession::finished, &app, [&] {
        report();
        QCoreApplication::exit(Finished);
    });
    QObject::connect(&session, &QuerySession::masterTimedOut, &app, [&] {
        std::fprintf(stderr, "q4vantage-query: Master Servers Timed Out (%s)\n", qPrintable(master->host));
        QCoreApplication::exit(MasterFailed);
    });
    QObject::connect(&session, &QuerySession::failed, &app, [&](const QueryError& error) {
        std::fprintf(stderr, "q4vantage-query: %s\n", qPrintable(error.message()));
        QCoreApplication::exit(MasterFailed);
    });

    const auto error = direct ? session.startAddresses(table) : session.startMaster(*master);
    if (error) {
        std::fprintf(stderr, "q4vantage-query: %s\n", qPrintable(error->message()));
        return error->kind == QueryError::Kind::PortUnavailable ? PortUnavailable : MasterFailed;
    }
    exitCode = QCoreApplication::exec();
    return exitCode;
}
