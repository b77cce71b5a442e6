// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/reportmodel.h"

ReportModel::ReportModel(std::span<const ListColumn> columns, QObject* parent)
    : QAbstractTableModel(parent)
    , m_columns(columns)
{
}

int ReportModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= int(m_columns.size()))
        return {};
    if (role == Qt::DisplayRole)
        return ListColumns::caption(m_columns[section]);
    return {};
}

void ReportModel::retranslate()
{
    if (!m_columns.empty())
        emit headerDataChanged(Qt::Horizontal, 0, int(m_columns.size()) - 1);
}
