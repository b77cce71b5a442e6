// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QTableView>

// A report-style list: rows of cells under movable column headers, whole
// rows selected. A table view rather than a tree view: it keeps nothing
// per row, so lists of a hundred thousand players stay quick to update.
// It remembers the mouse button last pressed on its rows, because a double
// click joins and a right click opens a menu only after the matching press.
class QMenu;
class QTimer;

class ReportView final : public QTableView {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ReportView)

public:
    // The columns start with the given widths (a first start's layout).
    ReportView(QAbstractItemModel* model, const QList<int>& designWidths, QWidget* parent = nullptr);

    QHeaderView* header() const { return horizontalHeader(); }
    // The current row when it is also selected, else -1.
    int selectedRow() const;
    // The column under the pointer at the last press (-1 past the last),
    // or the current column when the menu was opened from the keyboard.
    int pressedColumn() const { return m_pressedColumn; }
    // Widens each column that still has the width the program gave it
    // until its title, and the sort arrow on the sorted one, is read whole.
    // A width the user chose is left alone.
    void fitTitles();
    // Columns hidden until the user shows them: a right click on the
    // header offers each of them, ticked while it is shown.
    void setOptionalColumns(const QList<int>& columns);
    QList<int> optionalColumns() const { return m_optional; }
    // Adds an entry per optional column to the menu, ticked while shown;
    // a click shows or hides it.
    void addColumnEntries(QMenu& menu);

signals:
    // The user showed or hid an optional column from the header's menu.
    void columnShownChanged(int column, bool shown);
    // A button went down on the rows, before the list reacts to it.
    void pressed(Qt::MouseButton button);
    // The right button was pressed and released here, or the menu key or
    // Shift+F10 was pressed; index may be invalid (below the last row, nothing selected).
    // The list's menu belongs at globalPos.
    void menuRequested(const QModelIndex& index, const QPoint& globalPos);
    // A double click that followed a left press, or Enter on the selected
    // row: what a double click does, from the keyboard.
    void rowDoubleClicked(const QModelIndex& index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    // The menu of the selected row, opened from the keyboard: below the
    // row's first cell, where the user is looking.
    void requestMenuOnSelection();
    void showHeaderMenu(const QPoint& at);
    // Room to the right of the last column goes to the columns whose
    // cells are cut, each up to what its shown rows need, among those
    // that still have the width the program gave them.
    void fitWidth();
    // Whether a cell shows its text whole.
    bool showsWhole(const QModelIndex& index) const;

    QList<int> m_givenWidths; // the design width, or the one fitTitles() set
    QList<int> m_optional;
    Qt::MouseButton m_lastButton = Qt::NoButton;
    int m_pressedColumn = 0;
    QTimer* m_fitLater = nullptr; // rows came: fit once they are in
};
