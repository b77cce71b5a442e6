// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/serverlistreader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QRegularExpression>
#include <QSet>

namespace {

std::optional<int> portOf(const QJsonValue& value)
{
    bool ok = true;
    double number = 0;
    if (value.isDouble())
        number = value.toDouble();
    else if (value.isString())
        number = value.toString().trimmed().toInt(&ok);
    else
        return std::nullopt;
    if (!ok || number < 1 || number > 65535 || number != double(int(number)))
        return std::nullopt;
    return int(number);
}

std::optional<AddressEntry> entryOf(const QJsonValue& value)
{
    if (value.isString())
        return parseEndpoint(value.toString());
    if (!value.isObject())
        return std::nullopt;
    const QJsonObject object = value.toObject();
    const QJsonValue port = object.value(QLatin1String("port"));
    for (const char* key : {"address", "ip", "host", "addr"}) {
        const QJsonValue host = object.value(QLatin1String(key));
        if (!host.isString())
            continue;
        const QString text = host.toString().trimmed();
        // "address" may carry the port itself, or leave it to "port".
        if (auto entry = parseEndpoint(text))
            return entry;
        const auto number = portOf(port);
        if (number && isHostName(text))
            return AddressEntry{canonicalHost(text), *number, {}, {}};
        return std::nullopt;
    }
    return std::nullopt;
}

// The array of servers in a reply, wherever the site put it.
QJsonArray serversIn(const QJsonValue& value, int depth = 0)
{
    if (value.isArray())
        return value.toArray();
    if (!value.isObject() || depth > 3)
        return {};
    const QJsonObject object = value.toObject();
    for (const char* key : {"servers", "data", "result", "results", "list"}) {
        const QJsonValue inner = object.value(QLatin1String(key));
        if (inner.isArray() || inner.isObject())
            return serversIn(inner, depth + 1);
    }
    for (auto it = object.begin(); it != object.end(); ++it)
        if (it->isArray())
            return it->toArray();
    return {};
}

void add(ServerListReader::Result& result, QSet<QString>& seen, const std::optional<AddressEntry>& entry,
         int maxAddresses)
{
    if (!entry) {
        ++result.skipped;
        return;
    }
    // A server named again is asked once, and does not count to the cap.
    if (seen.contains(entry->endpointText())) {
        ++result.repeated;
        return;
    }
    seen.insert(entry->endpointText());
    if (result.addresses.count() >= maxAddresses) {
        result.truncated = true;
        return;
    }
    result.addresses.add(entry->address, entry->port);
}

} // namespace

namespace ServerListReader {

Result read(const QByteArray& reply, int maxAddresses)
{
    Result result;
    QSet<QString> seen;
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(reply, &error);
    if (error.error == QJsonParseError::NoError) {
        result.json = true;
        const QJsonArray servers =
            serversIn(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()));
        for (const QJsonValue& value : servers) {
            add(result, seen, entryOf(value), maxAddresses);
            if (result.truncated)
                break;
        }
        return result;
    }
    const QString text = QString::fromUtf8(reply);
    for (QStringView line : QStringView(text).tokenize(QLatin1Char('\n'))) {
        if (const qsizetype hash = line.indexOf(QLatin1Char('#')); hash >= 0)
            line = line.left(hash);
        line = line.trimmed();
        if (line.isEmpty())
            continue;
        const qsizetype blank = line.indexOf(QLatin1Char(' '));
        const qsizetype tab = line.indexOf(QLatin1Char('\t'));
        const qsizetype end = blank < 0 ? tab : (tab < 0 ? blank : std::min(blank, tab));
        add(result, seen, parseEndpoint(end < 0 ? line : line.left(end)), maxAddresses);
        if (result.truncated)
            break;
    }
    return result;
}

UrlList parseUrls(QStringView text)
{
    UrlList result;
    QSet<QUrl> seen;
    static const QRegularExpression blanks(QStringLiteral("\\s+"));
    for (const QString& entry : text.toString().split(blanks, Qt::SkipEmptyParts)) {
        // In the form it is written back in, so the setting reads the same
        // again; a fragment never reaches the site.
        const QUrl url(QUrl(entry, QUrl::StrictMode).adjusted(QUrl::RemoveFragment).toString(QUrl::FullyEncoded),
                       QUrl::StrictMode);
        const QString scheme = url.scheme().toLower();
        if (!url.isValid() || (scheme != QLatin1String("http") && scheme != QLatin1String("https")) ||
            url.host().isEmpty()) {
            result.refused.append(entry);
            continue;
        }
        // QUrl keeps the scheme and host in lower case: one site in two spellings is one.
        if (seen.contains(url))
            continue;
        seen.insert(url);
        if (result.urls.size() < UrlList::Max)
            result.urls.append(url);
        else
            ++result.leftOut;
    }
    return result;
}

QString urlsText(const QList<QUrl>& urls)
{
    QStringList texts;
    for (const QUrl& url : urls)
        texts.append(url.toString(QUrl::FullyEncoded));
    return texts.join(QLatin1Char(' '));
}

} // namespace ServerListReader
