#include "reportview.h"

#include <QHeaderView>

ReportView::ReportView(QAbstractItemModel* model, const QList<int>& designWidths, QWidget* parent)
    : QTableView(parent)
{
    setModel(model);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);

    QHeaderView* rows = verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(fontMetrics().height() + 4);

    QHeaderView* columnsHeader = horizontalHeader();
    columnsHeader->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    columnsHeader->setHighlightSections(false);
    // Every column keeps its own stored width, the last one included.
    columnsHeader->setStretchLastSection(false);
    columnsHeader->setSectionsClickable(true);
    columnsHeader->setSectionsMovable(true);
    for (int column = 0; column < designWidths.size(); ++column)
        columnsHeader->resizeSection(column, designWidths.at(column));
}
