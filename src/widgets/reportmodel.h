// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/listcolumns.h"

#include <QAbstractTableModel>
#include <QCoreApplication>

#include <array>

// How a row of the big lists stands out, without a column of its own: the
// view's delegate draws the marks (the theme's colours, never the model's).
namespace RowMarks {
inline constexpr int Role = Qt::UserRole + 7;
enum : int {
    Friend = 1, // a friend's row, or a server with a friend on it
    Silent = 2, // the server did not answer the last refresh
    Full = 4,   // no free slot
    Favourite = 8,
};
// The tone of a cell (a RowTones::Tier as int): a ping, a full server's
// players. Nothing for a cell in the list's own colour.
inline constexpr int ToneRole = Qt::UserRole + 8;
} // namespace RowMarks

// Base of the report-style lists: fixed columns with translated captions.
// The lists that show records derive from it and supply the rows.
class ReportModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit ReportModel(std::span<const ListColumn> columns, QObject* parent = nullptr);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    std::span<const ListColumn> columns() const { return m_columns; }
    QList<int> designWidths() const { return ListColumns::designWidths(m_columns); }
    QList<int> optionalColumns() const { return ListColumns::optional(m_columns); }
    // The captions follow the interface language.
    void retranslate();

private:
    std::span<const ListColumn> m_columns;
};
