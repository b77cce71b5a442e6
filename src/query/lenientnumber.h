// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

namespace LenientNumber {

// Numbers as the program has always read them from text it did not write
// itself (settings, server keys): leading blanks skipped, an optional sign,
// then the leading digits. "12abc" reads 12, "abc" and "" read 0; values
// beyond the int range clamp.
int toInt(QStringView text);

} // namespace LenientNumber
