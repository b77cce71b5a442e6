// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/settingskeys.h"
#include "widgets/columnlayout.h"

#include <QWidget>

#include <functional>

class ReportModel;
class ReportView;
class SettingsStore;
class VisibleList;

// One of the two big lists (servers, players): its view over the visible
// list, and the sort the user chose by clicking a column. While a query
// runs, rows are appended as they come; the list is sorted again only
// when rebuilt.
class ListPane final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ListPane)

public:
    // What a row of the hidden list stands for: its server's store index,
    // and the plain name that find searches.
    struct Rows {
        std::function<int(int row)> serverOf;
        std::function<QString(int row)> plainName;
    };

    ListPane(SettingsStore& settings, Keys::ListKeys keys, const ReportModel& model, VisibleList& list, Rows rows,
             const QString& objectName, QWidget* parent = nullptr);

    ReportView* view() const { return m_view; }
    VisibleList& list() const { return m_list; }
    Keys::ListKeys keys() const { return m_keys; }
    ColumnLayout::SortState sort() const { return m_sort; }

    // The sort of an earlier run only sets the state; it counts as the
    // last column click, so the next rebuild sorts by it.
    void restoreSort();
    // Filters every row again and sorts by the last column click.
    void rebuild();
    // The row of the hidden list behind a visible index, or -1.
    int sourceRow(const QModelIndex& index) const;
    // The server behind a visible index, the current row, the selected row; -1 for none.
    int serverAt(const QModelIndex& index) const;
    int currentServer() const;
    int selectedServer() const;
    // Makes the visible row of that server current and scrolls to it; an
    // invalid index when the server is not shown.
    QModelIndex select(int server);
    // The plain name of each visible row, in the order shown now.
    std::function<QString(int row)> visibleNames() const;

signals:
    // A left click on a row.
    void rowClicked(const QModelIndex& index);
    // A right click on a row, or the menu key: its menu, at globalPos.
    void menuRequested(const QModelIndex& index, const QPoint& globalPos);
    // A double click after a left press, or Enter on the selected row.
    void rowDoubleClicked();

private:
    void sortClicked(int column);
    void applySort();

    SettingsStore& m_settings;
    Keys::ListKeys m_keys;
    VisibleList& m_list;
    Rows m_rows;
    ReportView* m_view = nullptr;
    // Design time: first column, descending, so a first click sorts ascending.
    ColumnLayout::SortState m_sort;
    bool m_sorted = false;
};
