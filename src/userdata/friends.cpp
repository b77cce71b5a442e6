// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/friends.h"

#include "userdata/filters.h"

namespace Friends {

namespace {

bool isWildcard(QChar c)
{
    return c == QLatin1Char('?') || c == QLatin1Char('*') || c == QLatin1Char('#') || c == QLatin1Char('[');
}

} // namespace

std::optional<QString> checkEntry(const QString& typed)
{
    const QString entry = typed.trimmed();
    // The entries are stored ended by the code-1 character: a control
    // character would split or end one on the next start.
    if (entry.isEmpty() || entry.size() > MaxEntryLength || std::any_of(entry.cbegin(), entry.cend(), [](QChar c) { return c.unicode() < 0x20; }))
        return std::nullopt;
    return entry;
}

QString patternFor(const QString& plainName)
{
    QString pattern;
    pattern.reserve(plainName.size());
    for (const QChar c : plainName) {
        if (isWildcard(c))
            pattern += QLatin1Char('[') + c + QLatin1Char(']');
        else
            pattern += c;
    }
    return pattern;
}

Matcher::Matcher(const QStringList& entries)
    : m_entries(entries)
{
    for (const QString& entry : entries) {
        if (entry.isEmpty() || entry.size() > MaxEntryLength)
            continue;
        const QString folded = entry.toCaseFolded();
        if (std::any_of(folded.cbegin(), folded.cend(), isWildcard))
            m_patterns.append(folded);
        else
            m_exact.insert(folded);
    }
}

bool Matcher::matches(const QString& plainName) const
{
    if (isEmpty())
        return false;
    const QString folded = plainName.toCaseFolded();
    if (m_exact.contains(folded))
        return true;
    return std::any_of(m_patterns.cbegin(), m_patterns.cend(),
                       [&folded](const QString& pattern) { return Filters::matchesPattern(folded, pattern); });
}

} // namespace Friends
