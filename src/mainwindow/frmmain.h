// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/listtabs.h"
#include "widgets/columnlayout.h"
#include "widgets/statustone.h"

#include <QWidget>

class AutoRefresh;
class Desktop;
class DialogBar;
class FindBar;
class GameInstalls;
class JoinPanel;
class Language;
class ListMenu;
class ListPane;
class QLabel;
class QPushButton;
class QueryBar;
class QueryController;
class ServerDetails;
class ServerLists;
class ServerSelection;
class SettingsStore;
class SlotWaiter;
class ThemeService;
class TitleLabel;
class UpdateFlow;
class WindowState;
struct ServerRecord;

// The main window: the lists, the panes of the selected server, the query
// and join controls. It creates the components (each lays itself out),
// connects them and places them; the work is theirs.
class FrmMain final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmMain)

public:
    static constexpr int PlayersTab = ListTabs::PlayersTab;
    static constexpr int ServersTab = ListTabs::ServersTab;
    static constexpr QSize MinimumSize{500, 545};
    static constexpr QSize DesignSize{760, 570};

    // dataFolder holds favourites.dat and the other data files.
    FrmMain(SettingsStore& settings, Desktop& desktop, Language& language, QString dataFolder,
            QWidget* parent = nullptr);
    ~FrmMain() override;

    // The sort the two big lists will use; restored at start, changed by a
    // column click.
    ColumnLayout::SortState serverSort() const;
    ColumnLayout::SortState playerSort() const;

    const ServerLists& lists() const { return *m_lists; }
    const QueryController& queries() const { return *m_queries; }
    ThemeService& themes() const { return *m_themes; }
    UpdateFlow& updates() const { return *m_updates; }
    AutoRefresh& autoRefresh() const { return *m_autoRefresh; }
    SlotWaiter& slotWaiter() const { return *m_waiter; }

    // Rebuild the visible lists from the hidden full lists under the
    // filters (after every change in the filters editor).
    void UpdateServerList();
    void UpdatePlayerList();
    // Draw a name with its colour codes in the selected-server and
    // selected-player labels.
    void ShowServerName(const QString& name);
    void ShowPlayerName(const QString& name);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createControls();
    void connectQueries();
    void connectLists();
    void connectJoin();
    void layOutControls();
    void retranslateUi();
    void showView(bool players);
    void setStatus(const QString& text, StatusTone tone);
    void updateCounters();
    void addAnswers(const QList<ServerRecord>& batch);
    void applyUpdates(const QList<ServerRecord>& batch);
    // After a query and after every change of the filters.
    void rebuildLists();
    void showServer(const QModelIndex& index);
    void showPlayer(const QModelIndex& index);
    void showMenu(ListPane& pane, const QModelIndex& index, const QPoint& at);
    // Shows the listed server of that "address:port" in the Servers view;
    // false when it is not listed.
    bool selectServer(const QString& address);
    ListPane& shownList() const;
    void joinFrom(const ListPane& pane);

    SettingsStore& m_settings;
    Desktop& m_desktop;
    Language& m_language;
    QString m_dataFolder;

    ServerLists* m_lists = nullptr;
    QueryController* m_queries = nullptr;
    ListTabs* m_tabs = nullptr;
    ListPane* m_serverPane = nullptr;
    ListPane* m_playerPane = nullptr;
    ServerDetails* m_details = nullptr;
    ServerSelection* m_selection = nullptr;
    FindBar* m_find = nullptr;
    JoinPanel* m_joinPanel = nullptr;
    QueryBar* m_queryBar = nullptr;
    WindowState* m_state = nullptr;
    ListMenu* m_menu = nullptr;
    ThemeService* m_themes = nullptr;
    UpdateFlow* m_updates = nullptr;
    GameInstalls* m_installs = nullptr;
    DialogBar* m_dialogs = nullptr;
    AutoRefresh* m_autoRefresh = nullptr;
    SlotWaiter* m_waiter = nullptr;

    TitleLabel* lblAbout = nullptr;

    QLabel* lblPlayers = nullptr;
    QLabel* lblServers = nullptr;
    QPushButton* cmdExit = nullptr;
};
