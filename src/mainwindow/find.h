// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <functional>

// Finding a name in a list by text, as the find box does it. Rows are
// counted from 0 here.
namespace Find {

// The row where a search starts: after the selected row when the marker is
// "1" (back to the first past the last row), otherwise the first row.
int startRow(const QString& marker, int selectedRow, int rowCount);

// Case-insensitive: first a prefix pass from the start row to the end, then
// a substring pass over the same rows, so a prefix match further down wins
// over a nearer substring match. When neither matched and the start was not
// the first row, both passes run again over the whole list. -1 when
// nothing matched.
int findRow(int rowCount, const std::function<QString(int row)>& textAt, QStringView text, int start);

// The next marked row (a friend) after the row `after` (-1: from the top),
// wrapping round to the first; -1 when no row is marked.
int nextMarked(int rowCount, const std::function<bool(int row)>& isMarked, int after);

} // namespace Find
