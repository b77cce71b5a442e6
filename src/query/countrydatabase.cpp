// SPDX-License-Identifier: GPL-2.0-or-later
#include "query/countrydatabase.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstring>

extern "C" {
#include <libloc/country.h>
#include <libloc/database.h>
#include <libloc/libloc.h>
#include <libloc/network.h>
}

struct CountryDatabase::Handles {
    loc_ctx* context = nullptr;
    loc_database* database = nullptr;

    ~Handles()
    {
        if (database)
            loc_database_unref(database);
        if (context)
            loc_unref(context);
    }
};

CountryDatabase::CountryDatabase(std::unique_ptr<Handles> handles)
    : m_handles(std::move(handles))
{
}

CountryDatabase::~CountryDatabase() = default;

CountryDatabase::Opened CountryDatabase::open(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {nullptr, QStringLiteral("%1 does not exist").arg(path)};
    // A FIFO or a device would block the open for as long as nobody writes:
    // only a regular file (or a link to one) is a database.
    if (!info.isFile())
        return {nullptr, QStringLiteral("%1 is not a regular file").arg(path)};
    auto handles = std::make_unique<Handles>();
    if (loc_new(&handles->context) != 0)
        return {nullptr, QStringLiteral("libloc could not start")};
    // libloc logs its own complaints to stderr; the caller says what matters.
    loc_set_log_priority(handles->context, 0);
    FILE* file = std::fopen(QFile::encodeName(path).constData(), "r");
    if (!file)
        return {nullptr, QStringLiteral("%1 cannot be read").arg(path)};
    // The database maps the file and keeps what it needs; the stream can go.
    const int failed = loc_database_new(handles->context, &handles->database, file);
    std::fclose(file);
    if (failed != 0 || !handles->database)
        return {nullptr, QStringLiteral("%1 is not an IP location database").arg(path)};
    return {std::shared_ptr<const CountryDatabase>(new CountryDatabase(std::move(handles))), QString()};
}

QString CountryDatabase::countryOf(const QHostAddress& address) const
{
    if (address.protocol() != QAbstractSocket::IPv4Protocol && address.protocol() != QAbstractSocket::IPv6Protocol)
        return {};
    // An IPv4 address comes mapped into IPv6, as libloc keeps it.
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    in6_addr in6;
    static_assert(sizeof(in6.s6_addr) == sizeof(bytes.c));
    std::memcpy(in6.s6_addr, bytes.c, sizeof(bytes.c));
    loc_network* network = nullptr;
    if (loc_database_lookup(m_handles->database, &in6, &network) != 0 || !network)
        return {};
    const char* code = loc_network_get_country_code(network);
    const QString country = code ? QString::fromLatin1(code) : QString();
    loc_network_unref(network);
    return country.size() == 2 ? country : QString();
}

QString CountryDatabase::nameOf(const QString& code) const
{
    loc_country* country = nullptr;
    if (code.size() != 2 || loc_database_get_country(m_handles->database, &country, code.toLatin1().constData()) != 0 ||
        !country)
        return {};
    const char* name = loc_country_get_name(country);
    const QString text = name ? QString::fromUtf8(name) : QString();
    loc_country_unref(country);
    return text;
}

QString CountryDatabase::description() const
{
    const char* vendor = loc_database_get_vendor(m_handles->database);
    const QDateTime made = QDateTime::fromSecsSinceEpoch(loc_database_created_at(m_handles->database), Qt::UTC);
    return QStringLiteral("%1, %2").arg(QString::fromUtf8(vendor ? vendor : ""), made.toString(Qt::ISODate).left(10));
}
