// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// The variable filters (server key pattern and value pattern) and the three
// built-in ones (empty, full, passworded servers included or not).
namespace Filters {

inline const QString FileName = QStringLiteral("filters.dat");
// The file in the data folder.
QString filePath(const QString& dataFolder);
// A row the user added but has not filled in; it never hides a server.
inline const QString NewFilter = QStringLiteral("<New Filter>");

struct VariableFilter {
    QString variable;
    QString value;
    friend bool operator==(const VariableFilter&, const VariableFilter&) = default;
};

struct BuiltIn {
    bool includeEmpty = true;
    bool includeFull = true;
    bool includePassworded = true;
};

// The whole text against the pattern: "?" any one character, "*" any run,
// "#" one digit, "[abc]", "[a-z]" one of a set or range, "[!abc]" one not
// in it, anything else itself. Case matters here; callers lower-case both.
bool matchesPattern(QStringView text, QStringView pattern);

// True when the server's keys and values (alternating) satisfy every
// filter: the first key matching a filter's variable decides by its value;
// no matching key fails, except that sv_punkbuster = "0" passes servers
// that do not report it.
bool passesServerTest(const QStringList& tokens, const QList<VariableFilter>& filters);

// Whether a server row is shown: the server test, then empty (players less
// zero-ping players is 0), full (players equal maximum), passworded ("*").
bool isVisible(const ServerRecord& server, const QList<VariableFilter>& filters, BuiltIn builtIn);

// What is stored for a typed variable: "map" becomes "si_map" and so on.
QString storedVariable(const QString& typed);
// What is stored for a typed value: for si_usepass and sv_punkbuster, "0"
// for an empty text, "0" or a text starting with n/N, else "1".
QString storedValue(const QString& variable, const QString& typed);

// filters.dat: a line per filter, variable SOH value CR LF, one byte per
// character. The reader takes the first line only, as it always has.
QByteArray toFileBytes(const QList<VariableFilter>& filters);
std::optional<VariableFilter> firstFromFileBytes(const QByteArray& bytes);
// Written through QSaveFile: a failure leaves the old file whole.
bool writeFile(const QString& path, const QList<VariableFilter>& filters);
std::optional<VariableFilter> readFirstFromFile(const QString& path);

} // namespace Filters
