#include "reportview.h"

#include <QHeaderView>
#include <QMouseEvent>

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

    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (m_lastButton == Qt::LeftButton)
            emit rowDoubleClicked(index);
    });
}

int ReportView::selectedRow() const
{
    const QModelIndex current = currentIndex();
    return current.isValid() && selectionModel()->isRowSelected(current.row(), {}) ? current.row() : -1;
}

void ReportView::mousePressEvent(QMouseEvent* event)
{
    m_lastButton =
        event->button() == Qt::LeftButton || event->button() == Qt::RightButton ? event->button() : Qt::NoButton;
    m_pressedColumn = horizontalHeader()->logicalIndexAt(event->position().toPoint().x());
    emit pressed(event->button());
    QTableView::mousePressEvent(event);
}

void ReportView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton && m_lastButton == Qt::RightButton) {
        const QPoint at = event->position().toPoint();
        const QModelIndex index = indexAt(at);
        if (index.isValid())
            setCurrentIndex(index);
        emit menuRequested(index, viewport()->mapToGlobal(at));
    }
    QTableView::mouseReleaseEvent(event);
}
