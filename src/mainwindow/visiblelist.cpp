// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/visiblelist.h"

VisibleList::VisibleList(Accept accept, KeysOf keysOf, QObject* parent)
    : QSortFilterProxyModel(parent)
    , m_accept(std::move(accept))
    , m_keysOf(std::move(keysOf))
{
    setDynamicSortFilter(false);
}

void VisibleList::sortBy(int column, Qt::SortOrder order)
{
    m_keys = m_keysOf(column);
    sort(column, order);
    // The keys are only good for this sort; rows added later are appended.
    m_keys = SortKeys();
}

std::vector<int> VisibleList::sourceRows() const
{
    std::vector<int> rows(static_cast<size_t>(rowCount()));
    for (int row = 0; row < int(rows.size()); ++row)
        rows[size_t(row)] = mapToSource(index(row, 0)).row();
    return rows;
}

bool VisibleList::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const int a = left.row();
    const int b = right.row();
    int compared = 0;
    if (m_keys.numeric && size_t(std::max(a, b)) < m_keys.numbers.size())
        compared = m_keys.numbers[size_t(a)] < m_keys.numbers[size_t(b)]   ? -1
                   : m_keys.numbers[size_t(a)] > m_keys.numbers[size_t(b)] ? 1
                                                                           : 0;
    else if (!m_keys.numeric && std::max(a, b) < m_keys.texts.size())
        compared = m_keys.texts.at(a).compare(m_keys.texts.at(b));
    if (compared != 0)
        return compared < 0;
    // Qt inverts lessThan() when sorting descending; keep answer order for
    // equal rows either way.
    return sortOrder() == Qt::AscendingOrder ? a < b : a > b;
}

bool VisibleList::filterAcceptsRow(int sourceRow, const QModelIndex&) const
{
    return m_accept(sourceRow);
}
