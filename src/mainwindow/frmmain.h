#pragma once

#include "columnlayout.h"
#include "querysession.h"
#include "records.h"

#include <QHash>
#include <QPalette>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class Desktop;
class HistoryComboBox;
class Language;
class QFrame;
class QLabel;
class QMenu;
class QAction;
class QProgressBar;
class QPushButton;
class QSplitter;
class QTabBar;
class PlayerListModel;
class FrmFilters;
class MulticolorLabel;
class ServerVisibility;
class VisibleList;
class ReportModel;
class ServerPlayersModel;
class ServerRulesModel;
class ReportView;
class ServerListModel;
class SettingsStore;

// The main window: the lists, the panes of the selected server, the query
// and join controls. It restores the user's layout when it starts and
// writes it back when it closes.
class FrmMain final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmMain)

public:
    static constexpr int PlayersTab = 0;
    static constexpr int ServersTab = 1;
    static constexpr QSize MinimumSize{500, 545};
    static constexpr QSize DesignSize{760, 570};

    // Text colours of the status line.
    static constexpr QRgb Orange = qRgb(255, 128, 0);
    static constexpr QRgb Yellow = qRgb(255, 255, 0);
    static constexpr QRgb Green = qRgb(0, 128, 8);
    static constexpr QRgb Red = qRgb(255, 0, 0);

    // dataFolder holds favourites.dat and the other data files.
    FrmMain(SettingsStore& settings, Desktop& desktop, Language& language, QString dataFolder,
            QWidget* parent = nullptr);
    ~FrmMain() override;

    // The sort the two big lists will use; restored at start, changed by a
    // column click.
    ColumnLayout::SortState serverSort() const { return m_serverSort; }
    ColumnLayout::SortState playerSort() const { return m_playerSort; }

    const ServerListModel& serverList() const { return *m_serverModel; }
    const PlayerListModel& playerList() const { return *m_playerModel; }
    const QuerySession& session() const { return m_session; }

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
    void createMenus();
    void layOutControls();
    void retranslateUi();
    void loadState();
    void applyInitialGeometry();
    void showView(int tab);
    void restoreSplitters();
    void saveSplitters();
    void saveColumnOrders();
    void saveColumnWidths();
    void writeStateOnClose();
    void showAbout();

    void emptyAllRecords();
    bool preparePool();
    // Everything a new query does before it sends: pool, buttons, empty lists.
    bool beginQuery();
    void setQueryingButtons();
    void setIdleButtons();
    void setStatus(const QString& text, QRgb colour);
    void setCounters(int servers, int players);
    void updateCounters();
    void startMasterQuery();
    void startFavouritesQuery();
    void cancelQuery();
    void showPhase(QuerySession::Phase phase);
    void queueAnswer(const ServerRecord& server, bool refresh);
    void flushAnswers();
    void applyRefresh(const ServerRecord& server);
    void finishQuery();
    void masterTimedOut();
    void queryFailed(const QueryError& error);
    // A row of a list was clicked with the last pressed button (1 left,
    // 2 right): the display part, then the menu or the refresh.
    void serverClicked(const QModelIndex& index);
    void playerClicked(const QModelIndex& index);
    void serverRowClicked(const QModelIndex& index, int button);
    void playerRowClicked(const QModelIndex& index, int button);
    // The display part of a selection: names in colour and the panes.
    void showServer(const QModelIndex& index);
    void showPlayer(const QModelIndex& index);
    void fillPanes();
    void sortPane(ReportView& view, ColumnLayout::SortState& sort, QStringView prefix, int column);
    void selectServerOfPlayer();
    void runFind();
    void copyPlayersServerAddress();

    // What a join needs from the selected row of a list.
    struct JoinTarget {
        QString address;
        bool passworded = false;
        QString serverName;
    };
    std::optional<JoinTarget> selectedTarget(const ReportView& list) const;
    void joinFromList(ReportView& list);
    void join(const JoinTarget& target);
    void joinByAddress();
    void copyFromList(ReportView& list, QStringView orderPrefix, int what);
    void addToFavourites();
    ReportView* findTarget() const;
    void applySort(VisibleList& list, ReportView& view, ColumnLayout::SortState sort);
    void sortClicked(VisibleList& list, ReportView& view, ColumnLayout::SortState& sort, QStringView prefix,
                     int column);
    void clearNameLabels();

    SettingsStore& m_settings;
    Desktop& m_desktop;
    Language& m_language;

    QString m_dataFolder;
    QuerySession m_session;
    QString m_masterHost;
    int m_lastSocketIndex = QuerySpeed::DefaultLastSocketIndex;
    // Answers are added to the lists in batches, not one row per datagram.
    QList<ServerRecord> m_pendingAnswers;
    QTimer m_flushTimer;

    ColumnLayout::SortState m_serverSort;
    ColumnLayout::SortState m_playerSort;
    bool m_serverSorted = false;
    ColumnLayout::SortState m_serverPlayersSort;
    ColumnLayout::SortState m_serverRulesSort;
    int m_selectedServer = -1;
    // The mouse button last pressed in each list (1 left, 2 right).
    QHash<const QWidget*, int> m_lastButton;
    // The column under the pointer when a list's menu was opened.
    int m_menuColumn = 0;
    // "1": the next find continues after the selected row.
    QString m_findMarker = QStringLiteral("0");
    QPalette m_findPalette;
    bool m_playerSorted = false;
    bool m_initialSizeApplied = false;
    bool m_resizeInProgress = false;

    QLabel* lblAbout = nullptr;
    QTabBar* tabSelect = nullptr;
    QSplitter* rzrPSI = nullptr;
    QSplitter* rzrSPSI = nullptr;
    ReportView* lstServerList = nullptr;
    ReportView* lstPlayerList = nullptr;
    ReportView* lvwPlayers = nullptr;
    ReportView* lvwServerInfo = nullptr;
    ServerListModel* m_serverModel = nullptr;
    PlayerListModel* m_playerModel = nullptr;
    std::unique_ptr<ServerVisibility> m_visibility;
    VisibleList* m_visibleServers = nullptr;
    VisibleList* m_visiblePlayers = nullptr;
    FrmFilters* m_frmFilters = nullptr;
    ServerPlayersModel* m_serverPlayersModel = nullptr;
    ServerRulesModel* m_serverRulesModel = nullptr;

    QLabel* lblSName = nullptr;
    MulticolorLabel* mclSName = nullptr;

    QFrame* fraJoin = nullptr;
    QLabel* lblPlayerName = nullptr;
    HistoryComboBox* cmbPlayerName = nullptr;
    QLabel* lblPassword = nullptr;
    HistoryComboBox* cmbPassword = nullptr;
    QLabel* lblPName = nullptr;
    MulticolorLabel* mclPName = nullptr;
    QPushButton* cmdJoin = nullptr;
    QPushButton* cmdJoinIP = nullptr;

    HistoryComboBox* cmbFind = nullptr;
    QPushButton* cmdFind = nullptr;
    QLabel* lblPlayers = nullptr;
    QLabel* lblServers = nullptr;
    QLabel* lblStatus = nullptr;
    QProgressBar* prbProgress = nullptr;

    QFrame* fraQuery = nullptr;
    QPushButton* cmdGet = nullptr;
    QPushButton* cmdFav = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdOrganise = nullptr;
    QPushButton* cmdFilters = nullptr;
    QPushButton* cmdOptions = nullptr;
    QPushButton* cmdExit = nullptr;

    QMenu* mPopupAlt = nullptr;
    QAction* mPopAdd = nullptr;
    QAction* mPopCopyCell = nullptr;
    QAction* mPopCopyColumn = nullptr;
    QAction* mPopCopyRow = nullptr;
    QAction* mPopCopyAll = nullptr;
    QAction* mPopSelServer = nullptr;
    QMenu* mPopupAltPlayers = nullptr;
    QAction* mPopCopyCellP = nullptr;
    QAction* mPopCopyColumnP = nullptr;
    QAction* mPopCopyRowP = nullptr;
    QAction* mPopCopyAllP = nullptr;
    QMenu* mPopupAltServerInfo = nullptr;
    QAction* mPopCopyCellSI = nullptr;
    QAction* mPopCopyColumnSI = nullptr;
    QAction* mPopCopyRowSI = nullptr;
    QAction* mPopCopyAllSI = nullptr;
};
