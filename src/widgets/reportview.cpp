// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/reportview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QStyle>
#include <QTimer>
#include <QToolTip>

ReportView::ReportView(QAbstractItemModel* model, const QList<int>& designWidths, QWidget* parent)
    : QTableView(parent)
    , m_givenWidths(designWidths)
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
    for (int column = 0; column < designWidths.size(); ++column) {
        columnsHeader->resizeSection(column, designWidths.at(column));
        // The header may not go as narrow as the design asks.
        m_givenWidths[column] = columnsHeader->sectionSize(column);
    }

    // A new language or a new sort column can need wider titles.
    connect(model, &QAbstractItemModel::headerDataChanged, this, &ReportView::fitTitles);
    connect(columnsHeader, &QHeaderView::sortIndicatorChanged, this, &ReportView::fitTitles);

    m_fitLater = new QTimer(this);
    m_fitLater->setSingleShot(true);
    m_fitLater->setInterval(200);
    connect(m_fitLater, &QTimer::timeout, this, &ReportView::fitWidth);
    const auto fitLater = [this] { m_fitLater->start(); };
    connect(model, &QAbstractItemModel::rowsInserted, this, fitLater);
    connect(model, &QAbstractItemModel::modelReset, this, fitLater);
    connect(model, &QAbstractItemModel::layoutChanged, this, fitLater);

    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (m_lastButton == Qt::LeftButton)
            emit rowDoubleClicked(index);
    });
}

void ReportView::fitTitles()
{
    QHeaderView* header = horizontalHeader();
    const QFontMetrics metrics(header->font());
    const int margins = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header) + 4;
    const int arrow = header->style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, header) +
                      header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    for (int column = 0; column < m_givenWidths.size() && column < header->count(); ++column) {
        if (header->sectionSize(column) != m_givenWidths.at(column))
            continue;
        const QString title = model()->headerData(column, Qt::Horizontal).toString();
        const bool sorted = header->isSortIndicatorShown() && header->sortIndicatorSection() == column;
        const int needed = metrics.horizontalAdvance(title) + margins + (sorted ? arrow : 0);
        if (needed > header->sectionSize(column)) {
            header->resizeSection(column, needed);
            m_givenWidths[column] = needed;
        }
    }
}

void ReportView::fitWidth()
{
    QHeaderView* header = horizontalHeader();
    const int room = viewport()->width();
    int used = header->length();
    // A last column that stretches holds the room; it needs only what its
    // own rows need, and gives the rest up as the others grow.
    int lastVisual = header->count() - 1;
    while (lastVisual >= 0 && header->isSectionHidden(header->logicalIndex(lastVisual)))
        --lastVisual;
    if (lastVisual < 0)
        return;
    if (header->stretchLastSection()) {
        const int last = header->logicalIndex(lastVisual);
        used -= header->sectionSize(last) - std::min(header->sectionSize(last), sizeHintForColumn(last));
        --lastVisual;
    }
    for (int visual = 0; visual <= lastVisual && used < room; ++visual) {
        const int column = header->logicalIndex(visual);
        if (header->isSectionHidden(column) || column >= m_givenWidths.size() ||
            header->sectionSize(column) != m_givenWidths.at(column))
            continue;
        // What the rows on screen need, and never more than half the list.
        const int wanted = std::min(sizeHintForColumn(column), room / 2);
        const int grown = std::min(wanted, header->sectionSize(column) + room - used);
        if (grown <= header->sectionSize(column))
            continue;
        used += grown - header->sectionSize(column);
        header->resizeSection(column, grown);
        m_givenWidths[column] = grown;
    }
}

void ReportView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fitWidth();
}

bool ReportView::showsWhole(const QModelIndex& index) const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return itemDelegateForIndex(index)->sizeHint(option, index).width() <= option.rect.width();
}

bool ReportView::viewportEvent(QEvent* event)
{
    // A cut cell says what it holds when the pointer rests on it, unless
    // the list has a tooltip of its own there.
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        if (index.isValid() && index.data(Qt::ToolTipRole).toString().isEmpty()) {
            const QString text = index.data(Qt::DisplayRole).toString();
            if (!text.isEmpty() && !showsWhole(index))
                QToolTip::showText(help->globalPos(), text, viewport(), visualRect(index));
            else
                QToolTip::hideText();
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

void ReportView::setOptionalColumns(const QList<int>& columns)
{
    m_optional = columns;
    QHeaderView* header = horizontalHeader();
    for (int column : columns)
        header->hideSection(column);
    header->setContextMenuPolicy(columns.isEmpty() ? Qt::DefaultContextMenu : Qt::CustomContextMenu);
    disconnect(header, &QHeaderView::customContextMenuRequested, this, nullptr);
    connect(header, &QHeaderView::customContextMenuRequested, this, &ReportView::showHeaderMenu);
}

void ReportView::showHeaderMenu(const QPoint& at)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("mPopupColumns"));
    // A popup is hidden, not closed; its entry acts before the deletion.
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    addColumnEntries(*menu);
    menu->popup(horizontalHeader()->viewport()->mapToGlobal(at));
}

void ReportView::addColumnEntries(QMenu& menu)
{
    QHeaderView* header = horizontalHeader();
    for (int column : std::as_const(m_optional)) {
        QAction* action = menu.addAction(model()->headerData(column, Qt::Horizontal).toString());
        action->setObjectName(QStringLiteral("mPopColumn%1").arg(column));
        action->setCheckable(true);
        action->setChecked(!header->isSectionHidden(column));
        connect(action, &QAction::toggled, this, [this, header, column](bool shown) {
            header->setSectionHidden(column, !shown);
            // Shown at the end of a list whose last column takes the width
            // left, it would get only that: it comes in before that column.
            const int last = header->count() - 1 - header->hiddenSectionCount();
            if (shown && header->stretchLastSection() && last > 0 && header->visualIndex(column) == last)
                header->moveSection(last, last - 1);
            if (shown)
                fitTitles();
            emit columnShownChanged(column, shown);
        });
    }
}

void ReportView::showEvent(QShowEvent* event)
{
    // Stored widths are in place by the first show.
    fitTitles();
    QTableView::showEvent(event);
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

void ReportView::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // Only a key pressed on the list itself (an editor inside it passes its
    // Enter on), and only where a double click does something: elsewhere
    // Enter keeps its usual meaning (a dialog's default button).
    static const QMetaMethod doubleClickSignal = QMetaMethod::fromSignal(&ReportView::rowDoubleClicked);
    const bool own = hasFocus() && isSignalConnected(doubleClickSignal);
    if (enter && own && modifiers == Qt::NoModifier && selectedRow() >= 0) {
        m_lastButton = Qt::LeftButton;
        emit rowDoubleClicked(currentIndex());
        event->accept();
        return;
    }
    // Shift+F10 opens menus in most desktops; Qt turns only the menu key
    // into a context menu event.
    if (event->key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier && hasFocus()) {
        requestMenuOnSelection();
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void ReportView::contextMenuEvent(QContextMenuEvent* event)
{
    // A right click is answered on its release (see above); this is the
    // menu key.
    if (event->reason() == QContextMenuEvent::Mouse) {
        QTableView::contextMenuEvent(event);
        return;
    }
    requestMenuOnSelection();
    event->accept();
}

void ReportView::requestMenuOnSelection()
{
    const QModelIndex index = selectedRow() >= 0 ? currentIndex() : QModelIndex();
    if (index.isValid())
        m_pressedColumn = index.column();
    const QRect row = visualRect(index);
    const QPoint at = index.isValid() ? QPoint(row.left(), row.bottom()) : QPoint(0, 0);
    emit menuRequested(index, viewport()->mapToGlobal(at));
}
