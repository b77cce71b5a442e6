// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

// How values are written as text in the settings. Every value is a string;
// these are the rules for reading numbers, flags and lists back.
namespace SettingsCodec {

// Leading blanks skipped, an optional sign, then the leading digits:
// "12abc" reads 12, "abc" and "" read 0. Out-of-range values clamp.
int toNumber(QStringView text);

// A flag is on only when it is exactly "1".
bool isOn(QStringView text);
QString flagText(bool on);

// The truth-value texts "True"/"False" (any case); "0" is false and any
// other number true. Anything else gives the fallback.
bool toTruth(QStringView text, bool fallback);
QString truthText(bool value);

// Remembered combo-box entries: each entry followed by the code-1
// character. A trailing piece without its terminator is dropped; an empty
// piece between two terminators is a real (empty) entry.
inline constexpr QChar EntryTerminator = QChar(1);
QString encodeEntries(const QStringList& entries);
QStringList decodeEntries(QStringView text);

// Per-column keys: prefix + "ColumnOrder"/"ColumnWidth" + column number;
// "ColumnShown" (1 or 0) only for a column the user may show or hide.
QString columnOrderKey(QStringView prefix, int column);
QString columnWidthKey(QStringView prefix, int column);
QString columnShownKey(QStringView prefix, int column);
// Per-list sort keys: prefix + "SortOrder"/"SortKey".
QString sortOrderKey(QStringView prefix);
QString sortKeyKey(QStringView prefix);

} // namespace SettingsCodec
