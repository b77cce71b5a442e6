#include "masteraddress.h"

namespace {

std::optional<quint16> parsePort(QStringView text)
{
    bool ok = false;
    const uint value = text.toUInt(&ok);
    if (!ok || value == 0 || value > 65535)
        return std::nullopt;
    return quint16(value);
}

} // namespace

std::optional<MasterAddress> parseMasterAddress(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return MasterAddress{MasterAddress::DefaultHost, MasterAddress::DefaultPort};

    QStringView host = text;
    QStringView portText;
    if (text.startsWith(QLatin1Char('['))) {
        const qsizetype close = text.indexOf(QLatin1Char(']'));
        if (close < 0)
            return std::nullopt;
        host = text.mid(1, close - 1);
        const QStringView rest = text.mid(close + 1);
        if (!rest.isEmpty()) {
            if (!rest.startsWith(QLatin1Char(':')))
                return std::nullopt;
            portText = rest.mid(1);
        }
    } else if (text.count(QLatin1Char(':')) == 1) {
        const qsizetype colon = text.indexOf(QLatin1Char(':'));
        host = text.left(colon);
        portText = text.mid(colon + 1);
    }
    // More than one colon without brackets: a bare IPv6 address.

    if (host.isEmpty() || host.contains(QLatin1Char(' ')))
        return std::nullopt;
    MasterAddress result{host.toString(), MasterAddress::DefaultPort};
    if (!portText.isNull()) {
        const auto port = parsePort(portText);
        if (!port)
            return std::nullopt;
        result.port = *port;
    }
    return result;
}
