#pragma once

#include <QList>
#include <QTableView>

// A report-style list: rows of cells under movable column headers, whole
// rows selected. A table view rather than a tree view: it keeps nothing
// per row, so lists of a hundred thousand players stay quick to update.
class ReportView final : public QTableView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ReportView)

public:
    // The columns start with the given widths (a first start's layout).
    ReportView(QAbstractItemModel* model, const QList<int>& designWidths, QWidget* parent = nullptr);

    QHeaderView* header() const { return horizontalHeader(); }
};
