// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/windowstate.h"

#include "userdata/settingsstore.h"
#include "widgets/columnlayout.h"
#include "widgets/historycombobox.h"
#include "widgets/reportview.h"

#include <QSplitter>
#include <QTabBar>

namespace {

constexpr int PlayersTab = 0;
constexpr int ServersTab = 1;

int firstPaneSize(const QSplitter& splitter)
{
    const QList<int> sizes = splitter.sizes();
    return sizes.isEmpty() ? 0 : sizes.first();
}

void setFirstPaneSize(QSplitter& splitter, int size)
{
    QList<int> sizes = splitter.sizes();
    if (sizes.size() != 2)
        return;
    const int total = sizes[0] + sizes[1];
    size = std::clamp(size, 0, total);
    splitter.setSizes({size, total - size});
}

} // namespace

WindowState::WindowState(SettingsStore& settings, Controls controls)
    : QObject(controls.window)
    , m_settings(settings)
    , m_controls(std::move(controls))
{
    connect(m_controls.serverList, &QSplitter::splitterMoved, this, &WindowState::saveSplitters);
    connect(m_controls.panes, &QSplitter::splitterMoved, this, &WindowState::saveSplitters);
    for (const List& list : std::as_const(m_controls.lists)) {
        connect(list.view, &ReportView::pressed, this, &WindowState::saveColumnOrders);
        // Kept at once: the layout of a window that never closes cleanly too.
        connect(list.view, &ReportView::columnShownChanged, this, [this, list](int column, bool shown) {
            const SettingsStore::Batch batch(m_settings);
            ColumnLayout::saveShown(m_settings, list.prefix, column, shown);
            saveColumnOrders();
        });
    }
}

void WindowState::restore()
{
    m_controls.playerName->setEditText(m_settings.value(Keys::PlayerName));
    m_controls.tabs->setCurrentIndex(m_settings.value(Keys::Tab) == PlayersTab ? PlayersTab : ServersTab);
    for (const List& list : std::as_const(m_controls.lists))
        ColumnLayout::restore(m_settings, list.prefix, *list.view->header());
    for (const Box& box : std::as_const(m_controls.boxes))
        box.box->setEntries(m_settings.value(box.entries));
}

void WindowState::restoreSplitters()
{
    const int panesDefault =
        m_controls.firstPaneDefault ? m_controls.firstPaneDefault() : firstPaneSize(*m_controls.panes);
    setFirstPaneSize(*m_controls.panes, m_settings.value(Keys::SplitterPanes, panesDefault));
    const int listDefault =
        m_controls.serverListDefault ? m_controls.serverListDefault() : firstPaneSize(*m_controls.serverList);
    setFirstPaneSize(*m_controls.serverList, m_settings.value(Keys::SplitterServerList, listDefault));
}

void WindowState::saveSplitters()
{
    m_settings.set(Keys::SplitterPanes, firstPaneSize(*m_controls.panes));
    m_settings.set(Keys::SplitterServerList, firstPaneSize(*m_controls.serverList));
}

void WindowState::resized()
{
    QWidget& window = *m_controls.window;
    if (m_resizeInProgress)
        return;
    if (m_initialSizeApplied) {
        if (!(window.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen))) {
            m_settings.set(Keys::WindowHeight, window.height());
            m_settings.set(Keys::WindowWidth, window.width());
        }
        return;
    }
    m_initialSizeApplied = true;
    m_resizeInProgress = true;
    window.resize(m_settings.value(Keys::WindowWidth, window.width()),
                  m_settings.value(Keys::WindowHeight, window.height()));
    m_resizeInProgress = false;
    // The panes get their stored sizes once the window is shown and laid
    // out; before that the splitters have no real size to divide.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_controls.tabs->currentIndex() == ServersTab)
                restoreSplitters();
        },
        Qt::QueuedConnection);
    if (m_settings.value(Keys::Maximized))
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

void WindowState::saveColumnOrders()
{
    // Every press in a list saves the orders of all four lists: one write
    // of the file at most, none when no column moved.
    const SettingsStore::Batch batch(m_settings);
    for (const List& list : std::as_const(m_controls.lists))
        ColumnLayout::saveOrder(m_settings, list.prefix, *list.view->header());
}

void WindowState::writeOnClose()
{
    const SettingsStore::Batch batch(m_settings);
    m_settings.set(Keys::Maximized, m_controls.window->isMaximized());
    m_settings.set(Keys::PlayerName, m_controls.playerName->currentText());
    m_settings.set(Keys::Tab, m_controls.tabs->currentIndex());
    for (const Box& box : std::as_const(m_controls.boxes))
        m_settings.set(box.entries, box.box->entries());
    saveColumnOrders();
    for (const List& list : std::as_const(m_controls.lists))
        ColumnLayout::saveWidths(m_settings, list.prefix, *list.view->header());
}
