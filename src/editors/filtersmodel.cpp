// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/filtersmodel.h"

FiltersModel::FiltersModel(QObject* parent)
    : ReportModel(Columns, parent)
{
}

int FiltersModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_filters.size());
}

QVariant FiltersModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_filters.size() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    const Filters::VariableFilter& filter = m_filters.at(index.row());
    return index.column() == 0 ? filter.variable : filter.value;
}

void FiltersModel::setFilters(const QList<Filters::VariableFilter>& filters)
{
    beginResetModel();
    m_filters = filters;
    endResetModel();
}

void FiltersModel::append(const Filters::VariableFilter& filter)
{
    beginInsertRows({}, int(m_filters.size()), int(m_filters.size()));
    m_filters.append(filter);
    endInsertRows();
}

void FiltersModel::remove(int row)
{
    if (row < 0 || row >= m_filters.size())
        return;
    beginRemoveRows({}, row, row);
    m_filters.removeAt(row);
    endRemoveRows();
}

void FiltersModel::setCell(int row, int column, const QString& text)
{
    if (row < 0 || row >= m_filters.size())
        return;
    (column == 0 ? m_filters[row].variable : m_filters[row].value) = text;
    emit dataChanged(index(row, 0), index(row, 1));
}

void FiltersModel::sortByColumn(int column, Qt::SortOrder order)
{
    emit layoutAboutToBeChanged();
    std::stable_sort(m_filters.begin(), m_filters.end(),
                     [column, order](const Filters::VariableFilter& a, const Filters::VariableFilter& b) {
                         const QString& left = column == 0 ? a.variable : a.value;
                         const QString& right = column == 0 ? b.variable : b.value;
                         const int compared = left.compare(right, Qt::CaseInsensitive);
                         return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
                     });
    emit layoutChanged();
}
