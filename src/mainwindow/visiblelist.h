// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSortFilterProxyModel>

#include <functional>
#include <vector>

// What a column sorts by, for every row of a hidden full list: numbers for
// the numeric columns (the order the zero-padded text sort gives), case-
// folded text for the others. Built once per sort, not per comparison.
struct SortKeys {
    bool numeric = false;
    std::vector<qint64> numbers;
    QStringList texts;
};

// A visible list: the rows of the hidden full list that the predicate
// accepts. New rows are tested as they are inserted, and appended unsorted:
// the list is sorted only when asked.
class VisibleList final : public QSortFilterProxyModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VisibleList)

public:
    using Accept = std::function<bool(int sourceRow)>;
    using KeysOf = std::function<SortKeys(int column)>;

    VisibleList(Accept accept, KeysOf keysOf, QObject* parent = nullptr);
    // Tests every row again (after the filters changed).
    void refilter() { invalidate(); }
    // Sorts once by the column; rows with equal keys keep their answer
    // order in both directions.
    void sortBy(int column, Qt::SortOrder order);
    // The hidden list's row behind every visible row, in visible order.
    std::vector<int> sourceRows() const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    Accept m_accept;
    KeysOf m_keysOf;
    SortKeys m_keys;
};
