// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHostAddress>
#include <QString>

#include <memory>
#include <optional>

// Where an address is: the country of the IP location database that
// libloc reads (Debian's libloc-database), looked up on this machine with
// no network. The file is mapped once; a lookup costs a few microseconds.
// The rule a placed server carries: "country", "DE".
inline const QString CountryKey = QStringLiteral("country");

class CountryDatabase final {
public:
    inline static const QString DebianPath = QStringLiteral("/usr/share/libloc-location/location.db");

    // The database of that file, or why there is none.
    struct Opened {
        std::shared_ptr<const CountryDatabase> database;
        QString error;
    };
    static Opened open(const QString& path);

    ~CountryDatabase();
    CountryDatabase(const CountryDatabase&) = delete;
    CountryDatabase& operator=(const CountryDatabase&) = delete;

    // The two-letter code ("DE"), or empty where the database places none.
    QString countryOf(const QHostAddress& address) const;
    // The country's English name ("Germany"), or empty.
    QString nameOf(const QString& code) const;
    // What the database says of itself, and when it was made.
    QString description() const;

private:
    struct Handles;
    explicit CountryDatabase(std::unique_ptr<Handles> handles);
    std::unique_ptr<Handles> m_handles;
};
