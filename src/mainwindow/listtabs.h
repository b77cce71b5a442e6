// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class ListPane;
class QSplitter;
class QTabBar;
class ServerDetails;
class ServerLists;
class SettingsStore;

// The two views of the window under their tabs: "Players" (every player
// on every server) and "Servers" (the server list above the selected
// server's players and rules, split by rzrPSI).
class ListTabs final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ListTabs)

public:
    static constexpr int PlayersTab = 0;
    static constexpr int ServersTab = 1;

    ListTabs(SettingsStore& settings, ServerLists& lists, QWidget* parent = nullptr);

    QTabBar* tabs() const { return tabSelect; }
    QSplitter* serverSplitter() const { return rzrPSI; }
    ListPane& servers() const { return *m_servers; }
    ListPane& players() const { return *m_players; }
    ServerDetails& details() const { return *m_details; }
    // The list of the tab shown now.
    ListPane& shown() const;
    bool playersShown() const;
    void showServers();
    void retranslate();

signals:
    // After the tab changed and its view is shown.
    void shownChanged(bool players);

private:
    void showView(int tab);

    QTabBar* tabSelect = nullptr;
    QSplitter* rzrPSI = nullptr;
    ListPane* m_servers = nullptr;
    ListPane* m_players = nullptr;
    ServerDetails* m_details = nullptr;
};
