#pragma once

#include <QString>
#include <QStringView>

#include <optional>

struct MasterAddress {
    static constexpr quint16 DefaultPort = 27650;
    static inline const QString DefaultHost = QStringLiteral("q4master.idsoftware.com");

    QString host;
    quint16 port = DefaultPort;

    friend bool operator==(const MasterAddress&, const MasterAddress&) = default;
};

// Reads the master server setting: "host", "host:port", or "[v6addr]:port".
// An empty text means the default master. Returns nothing for a text that
// names no usable host or port, so the caller can say so instead of
// querying something the user never meant.
std::optional<MasterAddress> parseMasterAddress(QStringView text);
