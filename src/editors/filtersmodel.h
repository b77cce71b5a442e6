// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/filters.h"

#include <QAbstractTableModel>

// The variable filters as the editor lists them: "Variable" and "Value".
class FiltersModel final : public QAbstractTableModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FiltersModel)

public:
    explicit FiltersModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    const QList<Filters::VariableFilter>& filters() const { return m_filters; }
    void setFilters(const QList<Filters::VariableFilter>& filters);
    void append(const Filters::VariableFilter& filter);
    void remove(int row);
    void setCell(int row, int column, const QString& text);
    // Plain text order of one column, ascending or descending.
    void sortByColumn(int column, Qt::SortOrder order);
    void retranslate();

private:
    QList<Filters::VariableFilter> m_filters;
};
