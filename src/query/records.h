// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

// "address:port", as the lists show a server and the favourites match it.
QString endpointText(const QString& address, int port);

// One spelling per host: an IPv4 address in any form the resolver takes
// ("127.1", "2130706433", "0x7f000001", "127.0.0.01") as its dotted
// quad, a host name in lower case. Lists name one server in many ways.
QString canonicalHost(const QString& host);

// A host name or IPv4 address as a server may be named: letters, digits,
// ".", "-" and "_", not starting with "." or "-".
bool isHostName(QStringView host);
// What a user may type to name a server: a host, or host:port with a port
// from 1 to 65535.
bool isServerAddress(QStringView text);

// One address the scheduler will query. Name and password are filled only
// when the table comes from the favourites.
struct AddressEntry {
    QString address;
    int port = 0;
    QString name;
    QString password;

    QString endpointText() const { return ::endpointText(address, port); }
    friend bool operator==(const AddressEntry&, const AddressEntry&) = default;
};

// "host:port" as lists and data files write a server: a host name or IPv4
// address (in its one spelling) and a port from 1 to 65535; spaces around
// are ignored.
std::optional<AddressEntry> parseEndpoint(QStringView text);

// The addresses of one query in the master's (or the favourites') order.
// Duplicates are kept: a server listed twice is queried twice.
class AddressTable final {
public:
    void clear() { m_entries.clear(); }
    void add(const QString& address, int port, const QString& name = {}, const QString& password = {});
    int count() const { return int(m_entries.size()); }
    bool isEmpty() const { return m_entries.isEmpty(); }
    const AddressEntry& at(int index) const { return m_entries.at(index); }
    const QList<AddressEntry>& entries() const { return m_entries; }

    // The last entry whose "address:port" equals the text, as the join's
    // password lookup wants it (a later favourite overrides an earlier one).
    std::optional<AddressEntry> lastMatching(const QString& endpointText) const;

private:
    QList<AddressEntry> m_entries;
};

struct PlayerRecord {
    QString clan;
    QString name; // with its ^ colour codes
    qint16 clientNumber = 0;
    qint32 rate = 0;
    qint32 ping = 0;

    friend bool operator==(const PlayerRecord&, const PlayerRecord&) = default;
};

// What one infoResponse told about a server. The defaults are the values a
// server is listed with when its reply lacks the key.
struct ServerRecord {
    // A slower answer is listed with this ping.
    static constexpr int MaxPing = 999;

    QString address;
    int port = 0;
    QString name = QStringLiteral("noname");
    QString map = QStringLiteral("nomap");
    qint16 playerCount = 0;
    qint16 maxPlayers = 0;
    qint32 ping = 0;
    QString passwordMark = QStringLiteral(" ");
    QString gameType = QStringLiteral("DM");
    QString gameName = QStringLiteral("baseQUAKE4-1");
    // The protocol version of the reply, "2.85" for the last retail patch.
    QString protocol;
    // Where the server is: a two-letter code, empty when not known.
    QString country;
    // The protocol version as a rule ("protocol", "2.85"), then every key
    // and value of the reply in order, raw, for the rules view and the
    // filters.
    QStringList tokens;
    // Players that could be stored; playerCount may be larger.
    QList<PlayerRecord> players;
    // Players whose ping is 0 (bots and connecting clients): a server with
    // only those counts as empty.
    int zeroPingCount = 0;

    QString endpointText() const { return ::endpointText(address, port); }
    QString playersText() const;
    // "Players" sorts by count, then by maximum, in every list.
    qint64 playersSortKey() const { return playerCount * 65536LL + maxPlayers; }
    bool isPassworded() const { return passwordMark == QLatin1String("*"); }

    friend bool operator==(const ServerRecord&, const ServerRecord&) = default;
};

// Every answering server of the current query, kept in arrival order. A
// list row refers to its server by the index returned from add(), which
// stays valid until clear().
class ServerStore final {
public:
    void clear();
    int add(ServerRecord record);
    void replace(int index, ServerRecord record);
    int count() const { return int(m_servers.size()); }
    const ServerRecord& at(int index) const { return m_servers.at(index); }
    // Index of the first server at this address and port, or -1.
    int indexOf(const QString& address, int port) const;
    // The same for "address:port" as the lists show it.
    int indexOf(const QString& endpointText) const { return m_first.value(endpointText, -1); }
    // All players of all servers, counted as the player list counts them.
    int storedPlayerCount() const { return m_storedPlayers; }

private:
    QList<ServerRecord> m_servers;
    // "address:port" to the first server there: a refresh of thousands of
    // servers finds each row without walking the list.
    QHash<QString, int> m_first;
    int m_storedPlayers = 0;
};
