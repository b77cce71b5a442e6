#pragma once

#include "columnlayout.h"
#include "records.h"

#include <QWidget>

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
class QTreeView;
class ReportModel;
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

    FrmMain(SettingsStore& settings, Desktop& desktop, Language& language, QWidget* parent = nullptr);
    ~FrmMain() override;

    // The sort the two big lists will use; restored at start, changed by a
    // column click.
    ColumnLayout::SortState serverSort() const { return m_serverSort; }
    ColumnLayout::SortState playerSort() const { return m_playerSort; }

    // Empties the address table, the servers and their players, as a new
    // master query does.
    void emptyAllRecords();
    const AddressTable& addressTable() const { return m_addresses; }
    const ServerStore& servers() const { return m_servers; }

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

    SettingsStore& m_settings;
    Desktop& m_desktop;
    Language& m_language;

    AddressTable m_addresses;
    ServerStore m_servers;

    ColumnLayout::SortState m_serverSort;
    ColumnLayout::SortState m_playerSort;
    bool m_initialSizeApplied = false;
    bool m_resizeInProgress = false;

    QLabel* lblAbout = nullptr;
    QTabBar* tabSelect = nullptr;
    QSplitter* rzrPSI = nullptr;
    QSplitter* rzrSPSI = nullptr;
    QTreeView* lstServerList = nullptr;
    QTreeView* lstPlayerList = nullptr;
    QTreeView* lvwPlayers = nullptr;
    QTreeView* lvwServerInfo = nullptr;
    ReportModel* m_serverModel = nullptr;
    ReportModel* m_playerModel = nullptr;
    ReportModel* m_serverPlayersModel = nullptr;
    ReportModel* m_serverRulesModel = nullptr;

    QLabel* lblSName = nullptr;
    QLabel* mclSName = nullptr;

    QFrame* fraJoin = nullptr;
    QLabel* lblPlayerName = nullptr;
    HistoryComboBox* cmbPlayerName = nullptr;
    QLabel* lblPassword = nullptr;
    HistoryComboBox* cmbPassword = nullptr;
    QLabel* lblPName = nullptr;
    QLabel* mclPName = nullptr;
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
