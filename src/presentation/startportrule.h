// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

// The options dialog's port range: what the start port box keeps of what
// was typed, and the end port it shows.
namespace StartPortRule {

inline constexpr int HighestStart = 65512;
// Save refuses a start port below this (the message names 1024, the
// test is against 1023: a start of exactly 1023 is accepted).
inline constexpr int LowestStart = 1023;

struct Range {
    QString start;
    QString end; // empty when the start is empty
};

// A last character that is not a digit is dropped; a start above 65512
// becomes "65512"; the end is the start plus the speed's step plus 3.
Range apply(const QString& typed, int speed);

// The start port's number as Save reads it (leading digits).
int value(const QString& start);
bool isAcceptable(const QString& start);

} // namespace StartPortRule
