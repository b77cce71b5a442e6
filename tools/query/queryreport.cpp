// SPDX-License-Identifier: GPL-2.0-or-later
#include "queryreport.h"

#include "presentation/colourcodes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace QueryReport {

namespace {

QJsonArray rules(const QStringList& tokens)
{
    QJsonArray pairs;
    for (qsizetype i = 0; i < tokens.size(); i += 2)
        pairs.append(QJsonArray{tokens.at(i), i + 1 < tokens.size() ? tokens.at(i + 1) : QString()});
    return pairs;
}

QJsonObject serverObject(const ServerRecord& record)
{
    QJsonArray players;
    for (const PlayerRecord& player : record.players) {
        players.append(QJsonObject{{QStringLiteral("num"), player.clientNumber},
                                   {QStringLiteral("name"), player.name},
                                   {QStringLiteral("name_plain"), ColourCodes::StripColourCodes(player.name)},
                                   {QStringLiteral("clan"), player.clan},
                                   {QStringLiteral("ping"), player.ping},
                                   {QStringLiteral("rate"), player.rate}});
    }
    return QJsonObject{{QStringLiteral("address"), record.address},
                       {QStringLiteral("port"), record.port},
                       {QStringLiteral("name"), record.name},
                       {QStringLiteral("name_plain"), ColourCodes::StripColourCodesCounted(record.name)},
                       {QStringLiteral("map"), record.map},
                       {QStringLiteral("players"), record.playerCount},
                       {QStringLiteral("max_players"), record.maxPlayers},
                       {QStringLiteral("ping"), record.ping},
                       {QStringLiteral("password"), record.passwordMark},
                       {QStringLiteral("gametype"), record.gameType},
                       {QStringLiteral("gamename"), record.gameName},
                       {QStringLiteral("protocol"), record.protocol},
                       {QStringLiteral("country"), record.country},
                       {QStringLiteral("zero_ping_players"), record.zeroPingCount},
                       {QStringLiteral("rules"), rules(record.tokens)},
                       {QStringLiteral("player_list"), players}};
}

QString kindName(SourceReport::Kind kind)
{
    switch (kind) {
    case SourceReport::Kind::Master:
        return QStringLiteral("master");
    case SourceReport::Kind::List:
        return QStringLiteral("list");
    case SourceReport::Kind::Known:
        return QStringLiteral("known");
    case SourceReport::Kind::Lan:
        return QStringLiteral("lan");
    }
    return {};
}

} // namespace

QByteArray Writer::server(const ServerRecord& record)
{
    ++m_servers;
    if (m_format == Format::Text) {
        // The country's code, or "--" where it is not known.
        return QStringLiteral("%1  %7  %2  %3ms  %4  %5  %6\n")
            .arg(record.endpointText(), -21)
            .arg(record.playersText(), 5)
            .arg(record.ping, 3)
            .arg(record.passwordMark == QLatin1String("*") ? QStringLiteral("pw") : QStringLiteral("  "))
            .arg(record.map, -10)
            .arg(ColourCodes::StripColourCodesCounted(record.name))
            .arg(record.country.isEmpty() ? QStringLiteral("--") : record.country)
            .toUtf8();
    }
    // One small document per server, indented to its place in the array.
    QByteArray object = QJsonDocument(serverObject(record)).toJson(QJsonDocument::Indented);
    object.chop(1);
    object.replace('\n', "\n        ");
    return (m_servers == 1 ? QByteArray("{\n    \"servers\": [\n        ") : QByteArray(",\n        ")) + object;
}

namespace {

QString addresses(int count)
{
    return count == 1 ? QStringLiteral("1 address") : QStringLiteral("%1 addresses").arg(count);
}

} // namespace

QByteArray Writer::finish(const Summary& summary)
{
    if (m_format == Format::Text) {
        QString out;
        for (const SourceReport& source : summary.sources) {
            out += source.failed() ? QStringLiteral("%1 %2: %3\n").arg(kindName(source.kind), source.name, source.error)
                                   : QStringLiteral("%1 %2: %3, %4 skipped\n")
                                         .arg(kindName(source.kind), source.name, addresses(source.addresses))
                                         .arg(source.skipped);
        }
        out += QStringLiteral("%1, %2 answered, %3 timed out, %4 dropped datagrams, %5 ms\n")
                   .arg(addresses(summary.addresses))
                   .arg(summary.answered)
                   .arg(summary.timedOut)
                   .arg(summary.droppedDatagrams)
                   .arg(summary.elapsedMs);
        return out.toUtf8();
    }
    QJsonArray sources;
    for (const SourceReport& source : summary.sources)
        sources.append(
            QJsonObject{{QStringLiteral("kind"), kindName(source.kind)},
                        {QStringLiteral("name"), source.name},
                        {QStringLiteral("addresses"), source.addresses},
                        {QStringLiteral("skipped"), source.skipped},
                        {QStringLiteral("truncated"), source.truncated},
                        {QStringLiteral("error"), source.failed() ? QJsonValue(source.error) : QJsonValue()}});
    const QJsonObject tail{{QStringLiteral("sources"), sources},
                           {QStringLiteral("addresses"), summary.addresses},
                           {QStringLiteral("answered"), summary.answered},
                           {QStringLiteral("timed_out"), summary.timedOut},
                           {QStringLiteral("dropped_datagrams"), summary.droppedDatagrams},
                           {QStringLiteral("elapsed_ms"), summary.elapsedMs}};
    // "{\n    ...keys...\n}\n": the keys follow the servers' array.
    QByteArray keys = QJsonDocument(tail).toJson(QJsonDocument::Indented);
    keys.remove(0, 2);
    return (m_servers == 0 ? QByteArray("{\n    \"servers\": [],\n") : QByteArray("\n    ],\n")) + keys;
}

QByteArray json(const Summary& summary, const QList<ServerRecord>& servers)
{
    Writer writer(Format::Json);
    QByteArray out;
    for (const ServerRecord& record : servers)
        out += writer.server(record);
    return out + writer.finish(summary);
}

QByteArray text(const Summary& summary, const QList<ServerRecord>& servers)
{
    Writer writer(Format::Text);
    QByteArray out;
    for (const ServerRecord& record : servers)
        out += writer.server(record);
    return out + writer.finish(summary);
}

} // namespace QueryReport
