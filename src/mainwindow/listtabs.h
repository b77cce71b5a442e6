// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QWidget>

class ListPane;
namespace Keys {
struct FlagSetting;
}
class QCheckBox;
class QSplitter;
class QTabBar;
class ServerDetails;
class ServerLists;
class SettingsStore;

// The two views of the window under their tabs: "Players" (every player
// on every server) and "Servers" (the server list above the selected
// server's players and rules, split by rzrPSI). Beside the tabs, "Hide
// empty" and "Hide full": the filters' built-in "Empty" and "Full" boxes
// one click away, the same settings, so both always agree.
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
    void status(const QString& text, StatusTone tone);

private:
    void showView(int tab);
    void showHiding();
    void hideServers(QCheckBox* box, const Keys::FlagSetting& listed, bool hidden);

    SettingsStore& m_settings;
    QTabBar* tabSelect = nullptr;
    QCheckBox* chkHideEmpty = nullptr;
    QCheckBox* chkHideFull = nullptr;
    QSplitter* rzrPSI = nullptr;
    ListPane* m_servers = nullptr;
    ListPane* m_players = nullptr;
    ServerDetails* m_details = nullptr;
};
