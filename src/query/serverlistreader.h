// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QStringList>
#include <QStringView>
#include <QUrl>

#include <optional>

// Reads the server lists people publish on the web: JSON in the shapes
// such sites use, or plain text with one "host:port" per line. The format
// of a list is not announced, so the reader takes whatever parses and
// counts what it had to skip.
namespace ServerListReader {

// A list longer than this is cut: no public list of this game is anywhere
// near it, and a runaway reply must not become a runaway query.
inline constexpr int MaxAddresses = 5000;

struct Result {
    AddressTable addresses;
    int skipped = 0;        // entries that name no usable IPv4 host and port
    int repeated = 0;       // entries naming a server listed before (in any spelling of its address)
    bool truncated = false; // more than the maximum were listed
    bool json = false;
};

// JSON when the reply parses as JSON: an array of "host:port" strings; an
// array of objects with an "address" string, or "ip"/"host" plus "port";
// or an object wrapping such an array ("servers", "data", or its first
// array). Otherwise text: one "host:port" per line, "#" starts a comment,
// anything after the first blank is ignored.
Result read(const QByteArray& reply, int maxAddresses = MaxAddresses);

// The list addresses of the setting, separated by blanks: http and https
// addresses with a host; anything else goes to refused. An address named
// twice is fetched once, and no more than Max are: each is a connection of
// its own. How many were left out is kept so the caller can say so.
struct UrlList {
    static constexpr int Max = 16;

    QList<QUrl> urls;
    QStringList refused;
    int leftOut = 0;
};
UrlList parseUrls(QStringView text);
QString urlsText(const QList<QUrl>& urls);

} // namespace ServerListReader
