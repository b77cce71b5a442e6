// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/httpproxy.h"
#include "query/lanquery.h"
#include "query/masteraddress.h"
#include "query/querysession.h"
#include "query/serverlistreader.h"
#include "queryreport.h"
#include "userdata/favourites.h"
#include "userdata/knownservers.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

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
                       "Sources: --master, --list-url and --known, together or alone (default: the browser's "
                       "masters and server lists); or --favourites and --server; or --lan.\n"
                       "Exit status: 0 finished, 1 every source failed (master timed out or failed), 2 usage error, "
                       "3 a local port could not be bound, 4 the favourites hold no server."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption masterOption(QStringLiteral("master"),
                                          QStringLiteral("Master server (repeatable; default: the browser's)."),
                                          QStringLiteral("HOST[:PORT]"));
    const QCommandLineOption listUrlOption(QStringLiteral("list-url"),
                                           QStringLiteral("Published server list, http or https (repeatable)."),
                                           QStringLiteral("URL"));
    const QCommandLineOption knownOption(QStringLiteral("known"),
                                         QStringLiteral("Also query the servers of this servers.dat, at once."),
                                         QStringLiteral("FILE"));
    const QCommandLineOption lanOption(QStringLiteral("lan"),
                                       QStringLiteral("Search the local network by broadcast instead."));
    const QCommandLineOption broadcastOption(
        QStringLiteral("broadcast"),
        QStringLiteral("Where --lan sends (repeatable; default: every local network's broadcast address)."),
        QStringLiteral("ADDRESS"));
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
    const QCommandLineOption countriesOption(
        QStringLiteral("country-database"),
        QStringLiteral("IP location database (libloc) that places servers in countries; empty: none. Default: the "
                       "setting."),
        QStringLiteral("FILE"));
    parser.addOptions({masterOption, listUrlOption, knownOption, lanOption, broadcastOption, favouritesOption,
                       serverOption, speedOption, startPortOption, formatOption, countriesOption});
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
    const bool lan = parser.isSet(lanOption);
    const bool sourcesGiven = parser.isSet(masterOption) || parser.isSet(listUrlOption) || parser.isSet(knownOption);
    if (lan && (direct || sourcesGiven))
        return usage(QStringLiteral("--lan searches the local network alone"));
    if (direct && sourcesGiven)
        return usage(QStringLiteral("--favourites and --server cannot be mixed with --master, --list-url or --known"));
    QList<QHostAddress> broadcast;
    for (const QString& text : parser.values(broadcastOption)) {
        const QHostAddress address(text);
        if (address.protocol() != QAbstractSocket::IPv4Protocol)
            return usage(QStringLiteral("--broadcast wants an IPv4 address, not %1").arg(text));
        broadcast.append(address);
    }
    if (lan && broadcast.isEmpty())
        broadcast = LanQuery::broadcastAddresses();
    if (lan && broadcast.isEmpty())
        return nothingToQuery(QStringLiteral("no network interface can broadcast"));

    SourcePlan sources;
    if (!direct && !lan) {
        // Sources on the command line replace the browser's; none at all
        // means the browser's masters and lists.
        const QString masterText = parser.isSet(masterOption) ? parser.values(masterOption).join(QLatin1Char(','))
                                   : sourcesGiven             ? QString()
                                                              : settings.value(Keys::MasterServer);
        MasterList masters;
        if (!masterText.isEmpty() || !sourcesGiven) {
            masters = parseMasterList(masterText);
            if (!masters.refused.isEmpty())
                return usage(QStringLiteral("not a master server address: %1").arg(masters.refused.first()));
            sources.masters = masters.masters;
        }
        const ServerListReader::UrlList lists = ServerListReader::parseUrls(
            parser.isSet(listUrlOption) ? parser.values(listUrlOption).join(QLatin1Char(' '))
            : sourcesGiven              ? QString()
                                        : settings.value(Keys::ServerListUrls));
        if (!lists.refused.isEmpty() && parser.isSet(listUrlOption))
            return usage(
                QStringLiteral("--list-url wants an http or https address, not %1").arg(lists.refused.first()));
        if (masters.leftOut > 0 || lists.leftOut > 0)
            std::fprintf(stderr,
                         "q4vantage-query: at most %d master servers and %d server lists are asked; %d more left out\n",
                         MasterList::Max, ServerListReader::UrlList::Max, masters.leftOut + lists.leftOut);
        sources.listUrls = lists.urls;
        sources.proxy = httpProxy(settings.value(Keys::Proxy), settings.value(Keys::ProxyAddress));
        if (parser.isSet(knownOption))
            sources.known = KnownServers::toAddressTable(KnownServers::readFile(parser.value(knownOption)));
    }

    QuerySession session;
    session.setPool(plan);
    // Without a database the servers are not placed; that is no failure.
    const QString countries =
        parser.isSet(countriesOption) ? parser.value(countriesOption) : settings.value(Keys::CountryDatabase);
    if (!countries.isEmpty()) {
        const CountryDatabase::Opened opened = CountryDatabase::open(countries);
        // Said, and the query goes on without countries.
        if (!opened.database)
            std::fprintf(stderr, "q4vantage-query: no countries: %s\n", qPrintable(opened.error));
        session.setCountries(opened.database);
    }
    int exitCode = Finished;
    // Each answer is written as it comes and then forgotten.
    QueryReport::Writer writer(format == QLatin1String("json") ? QueryReport::Format::Json : QueryReport::Format::Text);
    // Flushed at once: a script reading a pipe sees each server as it answers.
    const auto write = [](const QByteArray& bytes) {
        std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
        std::fflush(stdout);
    };
    QObject::connect(&session, &QuerySession::serverAnswered, &app,
                     [&writer, &write](const ServerRecord& server) { write(writer.server(server)); });
    const auto report = [&] {
        QueryReport::Summary summary{session.addresses().count(),
                                     session.scheduler().answeredCount(),
                                     session.scheduler().timedOutCount(),
                                     session.droppedDatagrams(),
                                     session.elapsedMs(),
                                     session.sourceReports()};
        if (lan) {
            summary.addresses = session.lan().sentCount();
            summary.answered = session.lan().answeredCount();
            SourceReport broadcastReport;
            broadcastReport.kind = SourceReport::Kind::Lan;
            broadcastReport.name = QStringLiteral("broadcast");
            broadcastReport.addresses = session.lan().answeredCount();
            summary.sources = {broadcastReport};
        }
        write(writer.finish(summary));
    };
    QObject::connect(&session, &QuerySession::finished, &app, [&] {
        report();
        QCoreApplication::exit(Finished);
    });
    QObject::connect(&session, &QuerySession::masterTimedOut, &app, [&] {
        QStringList failed;
        for (const SourceReport& source : session.sourceReports())
            failed.append(QStringLiteral("%1: %2").arg(source.name, source.error));
        std::fprintf(stderr, "q4vantage-query: Master Servers Timed Out (%s)\n", qPrintable(failed.join("; ")));
        // A script reading JSON gets a document whatever happened: the
        // sources in it say what each one gave.
        if (format == QLatin1String("json"))
            report();
        QCoreApplication::exit(MasterFailed);
    });
    QObject::connect(&session, &QuerySession::failed, &app, [&](const QueryError& error) {
        std::fprintf(stderr, "q4vantage-query: %s\n", qPrintable(error.message()));
        if (format == QLatin1String("json"))
            report();
        QCoreApplication::exit(MasterFailed);
    });

    const auto error = direct ? session.startAddresses(table)
                       : lan  ? session.startLan(broadcast)
                              : session.startSources(sources);
    if (error) {
        std::fprintf(stderr, "q4vantage-query: %s\n", qPrintable(error->message()));
        if (format == QLatin1String("json"))
            report();
        return error->kind == QueryError::Kind::PortUnavailable ? PortUnavailable : MasterFailed;
    }
    exitCode = QCoreApplication::exec();
    // The report is out. Qt would still wait for the name lookup of a list
    // whose host never answered until the resolver gives up.
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
