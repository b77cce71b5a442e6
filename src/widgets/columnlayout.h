// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <qnamespace.h>
#include <QStringView>

class QHeaderView;
class SettingsStore;

// Column order, widths and sort of a list, kept in the settings under the
// list's prefix. Order entry i holds the column shown at display position i;
// width keys are keyed by column, never by display position.
namespace ColumnLayout {

// Sort direction and column of a list: order 0 ascending, 1 descending.
struct SortState {
    int key = 0;
    int order = 1;

    // A column click: every click flips the direction, also on another column.
    constexpr SortState flippedTo(int column) const
    {
        // A hand-edited order may be any number: no overflow at the top.
        return SortState{column, int((qint64(order) + 1) % 2)};
    }
    constexpr Qt::SortOrder qtOrder() const { return order == 0 ? Qt::AscendingOrder : Qt::DescendingOrder; }
    friend bool operator==(const SortState&, const SortState&) = default;
};

// True when order holds every column 0..count-1 exactly once.
bool isPermutation(const QList<int>& order, int count);

// The column at each display position (Qt: the logical index at visual i).
QList<int> displayOrder(const QHeaderView& header);
// Moves the sections so that position i shows column order[i]. An order
// that is not a permutation of the header's columns is ignored.
bool applyDisplayOrder(QHeaderView& header, const QList<int>& order);

// The stored order, entry by entry: a missing key reads as its own position.
QList<int> readOrder(const SettingsStore& settings, QStringView prefix, int count);

// Restores widths (stored width, else the current one), then the order,
// then shows each hidden (optional) column the user had shown.
void restore(const SettingsStore& settings, QStringView prefix, QHeaderView& header);
// A hidden column still in its own place at the end is left out, so a list
// whose optional columns were never shown keeps exactly its own keys.
void saveOrder(SettingsStore& settings, QStringView prefix, const QHeaderView& header);
// Hidden columns keep the width last stored for them.
void saveWidths(SettingsStore& settings, QStringView prefix, const QHeaderView& header);
void saveShown(SettingsStore& settings, QStringView prefix, int column, bool shown);
// The display order without the hidden columns: what a copied row holds.
QList<int> shownOnly(QList<int> order, const QHeaderView& header);

SortState readSort(const SettingsStore& settings, QStringView prefix, SortState designTime);
void saveSort(SettingsStore& settings, QStringView prefix, SortState sort);

} // namespace ColumnLayout
