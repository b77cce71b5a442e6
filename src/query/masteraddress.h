// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

struct MasterAddress {
    static constexpr quint16 DefaultPort = 27650;
    // The game maker's master (the games still authenticate there) and
    // the community master that lists today's servers.
    static inline const QString DefaultHost = QStringLiteral("q4master.idsoftware.com");
    static inline const QString CommunityHost = QStringLiteral("master.quakehub.net");
    static QList<MasterAddress> defaults() { return {{DefaultHost, DefaultPort}, {CommunityHost, DefaultPort}}; }

    QString host;
    quint16 port = DefaultPort;

    friend bool operator==(const MasterAddress&, const MasterAddress&) = default;
};

// Reads the master server setting: "host", "host:port", or "[v6addr]:port".
// An empty text means the default master. Returns nothing for a text that
// names no usable host or port, so the caller can say so instead of
// querying something the user never meant.
std::optional<MasterAddress> parseMasterAddress(QStringView text);

// The masters of one query: the setting holds one or more entries
// separated by commas or blanks. Entries that name no usable host or port
// are returned apart so the caller can say which; an empty text means the
// default masters. A master named twice is asked once, and no more than Max
// are asked: each takes a socket and a port of its own, and a hand-edited
// setting of thousands would use up both. How many were left out is kept so
// the caller can say so.
struct MasterList {
    static constexpr int Max = 16;

    QList<MasterAddress> masters;
    QStringList refused;
    int leftOut = 0;
};
MasterList parseMasterList(QStringView text);
// The setting's text for a list of masters, as the options write it.
QString masterListText(const QList<MasterAddress>& masters);
// "host" or "host:port" as the user types it; the default port is left out.
QString masterAddressText(const MasterAddress& master);
