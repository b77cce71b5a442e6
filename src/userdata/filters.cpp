// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/filters.h"

#include "userdata/datafield.h"

#include <QDir>
#include <QFile>

namespace Filters {

QString filePath(const QString& dataFolder)
{
    return QDir(dataFolder).filePath(FileName);
}

namespace {

constexpr QChar Separator = QChar(1);

// One bracket list at pattern[at] == '['; sets `end` past its ']' and
// tells whether c is in it. Nothing when the bracket is never closed (it is
// then an ordinary character).
std::optional<bool> inBracket(QStringView pattern, qsizetype at, QChar c, qsizetype& end)
{
    qsizetype i = at + 1;
    bool negate = false;
    if (i < pattern.size() && pattern[i] == QLatin1Char('!')) {
        negate = true;
        ++i;
    }
    bool found = false;
    for (; i < pattern.size() && pattern[i] != QLatin1Char(']'); ++i) {
        if (i + 2 < pattern.size() && pattern[i + 1] == QLatin1Char('-') && pattern[i + 2] != QLatin1Char(']')) {
            if (c >= pattern[i] && c <= pattern[i + 2])
                found = true;
            i += 2;
        } else if (pattern[i] == c) {
            found = true;
        }
    }
    if (i >= pattern.size())
        return std::nullopt;
    end = i + 1;
    return found != negate;
}

// Whether the single-character token at pattern[p] takes c; `next` is set
// past the token.
bool tokenTakes(QStringView pattern, qsizetype p, QChar c, qsizetype& next)
{
    const QChar token = pattern[p];
    next = p + 1;
    if (token == QLatin1Char('?'))
        return true;
    if (token == QLatin1Char('#'))
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    if (token == QLatin1Char('[')) {
        qsizetype end = 0;
        if (const auto in = inBracket(pattern, p, c, end)) {
            next = end;
            return *in;
        }
    }
    return token == c;
}

} // namespace

bool matchesPattern(QStringView text, QStringView pattern)
{
    // Greedy with one backtrack point: every token but "*" takes exactly
    // one character, so retrying from the last star is enough.
    qsizetype t = 0;
    qsizetype p = 0;
    qsizetype starPattern = -1;
    qsizetype starText = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == QLatin1Char('*')) {
            starPattern = ++p;
            starText = t;
            continue;
        }
        qsizetype next = 0;
        if (p < pattern.size() && tokenTakes(pattern, p, text[t], next)) {
            p = next;
            ++t;
            continue;
        }
        if (starPattern < 0)
            return false;
        p = starPattern;
        t = ++starText;
    }
    while (p < pattern.size() && pattern[p] == QLatin1Char('*'))
        ++p;
    return p == pattern.size();
}

bool passesServerTest(const QStringList& tokens, const QList<VariableFilter>& filters)
{
    for (const VariableFilter& filter : filters) {
        if (filter.variable == NewFilter)
            continue;
        const QString variable = filter.variable.toLower();
        bool keyFound = false;
        for (qsizetype key = 0; key < tokens.size(); key += 2) {
            if (!matchesPattern(tokens.at(key).toLower(), variable))
                continue;
            keyFound = true;
            const QString value = key + 1 < tokens.size() ? tokens.at(key + 1) : QString();
            if (!matchesPattern(value.toLower(), filter.value.toLower()))
                return false;
            break;
        }
        if (!keyFound && !(variable == QLatin1String("sv_punkbuster") && filter.value == QLatin1String("0")))
            return false;
    }
    return true;
}

bool isVisible(const ServerRecord& server, const QList<VariableFilter>& filters, BuiltIn builtIn)
{
    if (!passesServerTest(server.tokens, filters))
        return false;
    if (!builtIn.includeEmpty && server.playerCount - server.zeroPingCount == 0)
        return false;
    if (!builtIn.includeFull && server.playerCount == server.maxPlayers)
        return false;
    if (!builtIn.includePassworded && server.passwordMark == QLatin1String("*"))
        return false;
    return true;
}

QString storedVariable(const QString& typed)
{
    static const QList<QPair<QString, QString>> aliases{{QStringLiteral("map"), QStringLiteral("si_map")},
                                                        {QStringLiteral("server"), QStringLiteral("si_name")},
                                                        {QStringLiteral("name"), QStringLiteral("si_name")},
                                                        {QStringLiteral("password"), QStringLiteral("si_usepass")},
                                                        {QStringLiteral("game"), QStringLiteral("gamename")},
                                                        {QStringLiteral("type"), QStringLiteral("si_gametype")},
                                                        {QStringLiteral("gametype"), QStringLiteral("si_gametype")}};
    const QString lower = typed.toLower();
    for (const auto& [alias, variable] : aliases) {
        if (lower == alias)
            return variable;
    }
    return typed;
}

QString storedValue(const QString& variable, const QString& typed)
{
    if (variable != QLatin1String("si_usepass") && variable != QLatin1String("sv_punkbuster"))
        return typed;
    const bool off =
        typed.isEmpty() || typed == QLatin1String("0") || typed.startsWith(QLatin1Char('n'), Qt::CaseInsensitive);
    return off ? QStringLiteral("0") : QStringLiteral("1");
}

QByteArray toFileBytes(const QList<VariableFilter>& filters)
{
    QByteArray bytes;
    for (const VariableFilter& filter : filters) {
        bytes += dataFileField(filter.variable);
        bytes += char(Separator.unicode());
        bytes += dataFileField(filter.value);
        bytes += "\r\n";
    }
    return bytes;
}

std::optional<VariableFilter> firstFromFileBytes(const QByteArray& bytes)
{
    const QString text = QString::fromLatin1(bytes);
    qsizetype end = text.indexOf(QLatin1Char('\n'));
    QStringView line = QStringView(text).left(end < 0 ? text.size() : end);
    if (line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    const qsizetype separator = line.indexOf(Separator);
    if (separator < 0)
        return std::nullopt;
    return VariableFilter{line.left(separator).toString(), line.mid(separator + 1).toString()};
}

bool writeFile(const QString& path, const QList<VariableFilter>& filters)
{
    return writeWholeFile(path, toFileBytes(filters));
}

std::optional<VariableFilter> readFirstFromFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return firstFromFileBytes(file.read(64 * 1024));
}

} // namespace Filters
