// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/filters.h"
#include "widgets/reportmodel.h"

// The variable filters as the editor lists them: "Variable" and "Value".
class FiltersModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FiltersModel)

public:
    enum Column { Variable, Value, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Variable"), 160},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Value"), 200},
    }};

    explicit FiltersModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    const QList<Filters::VariableFilter>& filters() const { return m_filters; }
    void setFilters(const QList<Filters::VariableFilter>& filters);
    void append(const Filters::VariableFilter& filter);
    void remove(int row);
    void setCell(int row, int column, const QString& text);
    // Plain text order of one column, ascending or descending.
    void sortByColumn(int column, Qt::SortOrder order);

private:
    QList<Filters::VariableFilter> m_filters;
};
