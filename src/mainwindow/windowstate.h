// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/settingskeys.h"

#include <QList>
#include <QObject>

#include <functional>

class HistoryComboBox;
class QSplitter;
class QTabBar;
class QWidget;
class ReportView;
class SettingsStore;

// The main window's layout and remembered entries: read when the window
// starts, kept while the user resizes it and moves the splitters, written
// when it closes.
class WindowState final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WindowState)

public:
    struct List {
        ReportView* view = nullptr;
        QStringView prefix; // of its column keys
    };
    struct Box {
        HistoryComboBox* box = nullptr;
        Keys::EntriesSetting entries;
    };
    struct Controls {
        QWidget* window = nullptr;
        QTabBar* tabs = nullptr;
        QSplitter* serverList = nullptr; // the list above the panes
        QSplitter* panes = nullptr;      // the two panes side by side
        // The first pane's width before the user ever moved the splitter.
        std::function<int()> firstPaneDefault;
        // The server list's height on a first start (nothing stored yet).
        std::function<int()> serverListDefault;
        QList<List> lists;
        QList<Box> boxes;
        HistoryComboBox* playerName = nullptr;
    };

    WindowState(SettingsStore& settings, Controls controls);

    // Texts, tab, columns and remembered entries; the size waits for the
    // first resize.
    void restore();
    // From the window's resize event: the first applies the stored size
    // and maximized state, later ones store the size.
    void resized();
    bool initialSizeApplied() const { return m_initialSizeApplied; }
    void restoreSplitters();
    // Every list's column order, at once (a press on any list does this).
    void saveColumnOrders();
    void writeOnClose();

private:
    void saveSplitters();

    SettingsStore& m_settings;
    Controls m_controls;
    bool m_initialSizeApplied = false;
    bool m_resizeInProgress = false;
};
