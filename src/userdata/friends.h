// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// The user's friends: names or patterns in the filters' wildcard syntax
// ("?", "*", "#", "[a-z]"), matched against the plain names (colour codes
// removed), case folded, the whole name.
namespace Friends {

// The friends are kept as remembered entries: "Friends" in the settings.
// What the list editor stores for a typed entry: the text without blanks
// around it, or nothing for an empty one, one with a control character or
// one longer than MaxEntryLength (a pattern is tried against every player
// at every refresh; no name is that long).
inline constexpr qsizetype MaxEntryLength = 256;
std::optional<QString> checkEntry(const QString& typed);

// The pattern that matches exactly this name: the wildcard characters are
// put in brackets, so a player called "*" does not befriend everyone.
QString patternFor(const QString& plainName);

// The friends compiled for matching many names: plain names (the usual
// case) are looked up in a hash, only real patterns are tried one by one,
// so 50 friends cost little per player. Entries no editor would store (too
// long: a settings file edited by hand) are left out.
class Matcher final {
public:
    Matcher() = default;
    explicit Matcher(const QStringList& entries);

    bool isEmpty() const { return m_exact.isEmpty() && m_patterns.isEmpty(); }
    bool matches(const QString& plainName) const;
    // The entries it was built from, for comparison.
    const QStringList& entries() const { return m_entries; }

private:
    QStringList m_entries;
    QSet<QString> m_exact;
    QStringList m_patterns;
};

} // namespace Friends
