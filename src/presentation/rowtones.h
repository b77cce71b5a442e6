// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>

// The three tones a cell of the lists may take: a ping a player picks a
// server by (good, fair, poor), and a full server's players in the poor
// one. Drawn on whatever a theme makes the lists' background, each tone
// is moved towards black or white until it reads well there.
namespace RowTones {

enum class Tier { Good, Fair, Poor };

// Below GoodBelowMs a ping is good, below FairBelowMs fair, else poor.
inline constexpr int GoodBelowMs = 80;
inline constexpr int FairBelowMs = 150;
Tier ofPing(int ms);

// At least this contrast with the background (WCAG's for normal text).
inline constexpr double Readable = 4.5;
QColor colour(Tier tier, const QColor& background);

} // namespace RowTones
