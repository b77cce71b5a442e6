// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/favourites.h"

#include "userdata/datafield.h"

#include <QDir>
#include <QFile>

#include <cmath>

namespace Favourites {

QString filePath(const QString& dataFolder)
{
    return QDir(dataFolder).filePath(FileName);
}

namespace {

constexpr QChar Separator = QChar(1);

// Blanks, a sign, digits and a decimal part, as a lenient number reader
// takes them; 0 when no number leads.
double leadingValue(QStringView text)
{
    qsizetype end = 0;
    while (end < text.size() && text[end] == QLatin1Char(' '))
        ++end;
    const qsizetype start = end;
    if (end < text.size() && (text[end] == QLatin1Char('-') || text[end] == QLatin1Char('+')))
        ++end;
    while (end < text.size() && (text[end].isDigit() || text[end] == QLatin1Char('.')))
        ++end;
    bool ok = false;
    const double value = text.mid(start, end - start).toDouble(&ok);
    return ok ? value : 0.0;
}

int roundedPort(QStringView text)
{
    const double value = std::nearbyint(leadingValue(text));
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        return 0;
    return int(value);
}

bool blankLineAt(const QString& text, qsizetype position)
{
    if (text.at(position) == QLatin1Char('\n'))
        return true;
    return text.at(position) == QLatin1Char('\r') && position + 1 < text.size() &&
           text.at(position + 1) == QLatin1Char('\n');
}

} // namespace

std::optional<QList<Favourite>> parse(const QByteArray& bytes)
{
    if (bytes.size() < 4)
        return std::nullopt;
    const QString text = QString::fromLatin1(bytes);
    QList<Favourite> favourites;
    qsizetype p = 0;
    while (p < text.size()) {
        if (blankLineAt(text, p)) {
            p = text.indexOf(QLatin1Char('\n'), p) + 1;
            continue;
        }
        if (favourites.size() >= MaxFavourites)
            break;
        Favourite favourite;
        qsizetype separator = text.indexOf(Separator, p);
        // A line without a separator ends the reading; the port's colon is
        // looked for before the separator only, so each line is read once.
        if (separator < 0)
            break;
        const qsizetype colon = QStringView(text).mid(p, separator - p).indexOf(QLatin1Char(':'));
        if (colon < 0) {
            // Only a separator at the very start of the file leaves the
            // address empty with port 0.
            if (separator >= 1) {
                favourite.address = text.mid(p, separator - p);
                favourite.port = DefaultPort;
            }
        } else {
            favourite.address = text.mid(p, colon);
            favourite.port = roundedPort(QStringView(text).mid(p + colon + 1, separator - p - colon - 1));
        }
        p = separator + 1;
        const qsizetype second = text.indexOf(Separator, p);
        if (second < 0)
            break;
        favourite.password = text.mid(p, second - p);
        p = second + 1;

        const qsizetype lineFeed = text.indexOf(QLatin1Char('\n'), p);
        qsizetype length = 0;
        if (lineFeed >= 0) {
            length = lineFeed - p;
            if (length > 0 && text.at(lineFeed - 1) == QLatin1Char('\r'))
                --length;
        } else {
            length = text.size() - p - 2;
        }
        favourite.name = text.mid(p, std::max<qsizetype>(length, 0));
        favourites.append(favourite);
        if (lineFeed < 0)
            break;
        p = lineFeed + 1;
    }
    return favourites;
}

std::optional<QList<Favourite>> readFile(const QString& path, bool* complete)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    auto favourites = parse(file.read(MaxFileBytes));
    if (complete)
        *complete = file.size() <= MaxFileBytes && (!favourites || favourites->size() < MaxFavourites);
    return favourites;
}

AddressTable toAddressTable(const QList<Favourite>& favourites)
{
    AddressTable table;
    for (const Favourite& favourite : favourites)
        table.add(favourite.address, favourite.port, favourite.name, favourite.password);
    return table;
}

QString addressText(const Favourite& favourite)
{
    if (favourite.port == 0)
        return favourite.address;
    return endpointText(favourite.address, favourite.port);
}

QByteArray line(const QString& address, const QString& password, const QString& name)
{
    QByteArray bytes = dataFileField(address);
    bytes += char(Separator.unicode());
    bytes += dataFileField(password);
    bytes += char(Separator.unicode());
    bytes += dataFileField(name);
    bytes += "\r\n";
    return bytes;
}

QByteArray toFileBytes(const QList<Favourite>& favourites)
{
    QByteArray bytes;
    for (const Favourite& favourite : favourites)
        bytes += line(addressText(favourite), favourite.password, favourite.name);
    return bytes;
}

QByteArray appendBytes(const QByteArray& existing, const QByteArray& newLine)
{
    if (!existing.isEmpty() && !existing.endsWith("\r\n"))
        return "\r\n" + newLine;
    return newLine;
}

bool writeFile(const QString& path, const QList<Favourite>& favourites)
{
    return writeWholeFile(path, toFileBytes(favourites));
}

bool appendToFile(const QString& path, const QString& address, const QString& password, const QString& name)
{
    QByteArray existing;
    QFile current(path);
    if (current.exists()) {
        // Never replace a file we could not read: the user's favourites would be lost.
        if (!current.open(QIODevice::ReadOnly))
            return false;
        existing = current.readAll();
        current.close();
    }
    return writeWholeFile(path, existing + appendBytes(existing, line(address, password, name)));
}

} // namespace Favourites
