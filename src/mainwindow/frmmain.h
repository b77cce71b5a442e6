// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/columnlayout.h"
#include "widgets/statustone.h"

#include <QPointer>
#include <QWidget>

class AutoRefresh;
class Desktop;
class FrmHistory;
class SlotWaiter;
class FindBar;
class FrmFilters;
class HistoryComboBox;
class JoinPanel;
class QueryBar;
class FrmOptions;
class Language;
class ThemeService;
class UpdateFlow;
class ListPane;
class MulticolorLabel;
class QAction;
class QFrame;
class QLabel;
class QMenu;
class QProgressBar;
class QPushButton;
class QSplitter;
class QTabBar;
class ListMenu;
class QueryController;
class ReportView;
class ServerDetails;
class ServerLists;
class ServerSelection;
class SettingsStore;
class StatusLine;
class WindowState;
struct ServerRecord;

// The main window: the lists, the panes of the selected server, the query
// and join controls. It builds the controls and wires the classes that do
// the work: the query controller, the list panes, find, joining and the
// window state.
class FrmMain final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmMain)

public:
    static constexpr int PlayersTab = 0;
    static constexpr int ServersTab = 1;
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
    // "Recently Played", as cmdRecent opens it.
    FrmHistory* openHistory();
    // The options dialog, as cmdOptions opens it.
    FrmOptions* openOptions();

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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createControls();
    void createMenu();
    void connectQueries();
    void connectLists();
    void layOutControls();
    void retranslateUi();
    void showView(int tab);
    void setBusy(bool busy);
    void setStatus(const QString& text, StatusTone tone);
    void updateCounters();
    void addAnswers(const QList<ServerRecord>& batch);
    void applyRefresh(const ServerRecord& server);
    void applyUpdates(const QList<ServerRecord>& batch);
    void connectExtras();
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
    FrmFilters* m_frmFilters = nullptr;
    AutoRefresh* m_autoRefresh = nullptr;
    SlotWaiter* m_waiter = nullptr;
    QPointer<FrmHistory> m_history;

    QLabel* lblAbout = nullptr;
    QTabBar* tabSelect = nullptr;
    QSplitter* rzrPSI = nullptr;

    QLabel* lblPlayers = nullptr;
    QLabel* lblServers = nullptr;
    QPushButton* cmdOrganise = nullptr;
    QPushButton* cmdFilters = nullptr;
    QPushButton* cmdOptions = nullptr;
    QPushButton* cmdRecent = nullptr;
    QPushButton* cmdStopWaiting = nullptr;
    QPushButton* cmdExit = nullptr;
};
