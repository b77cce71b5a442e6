#pragma once

#include "listcolumns.h"

#include <QTableView>

// A report-style list: rows of cells under movable column headers, whole
// rows selected. A table view rather than a tree view: it keeps nothing
// per row, so lists of a hundred thousand players stay quick to update.
class ReportView final : public QTableView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ReportView)

public:
    ReportView(QAbstractItemModel* model, std::span<const ListColumn> columns, QWidget* parent = nullptr);

    QHeaderView* header() const { return horizontalHeader(); }
};
