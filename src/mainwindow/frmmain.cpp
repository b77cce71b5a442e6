#include "frmmain.h"

#include "colourcodes.h"
#include "columnlayout.h"
#include "copytext.h"
#include "desktop.h"
#include "favourites.h"
#include "find.h"
#include "frmfavourites.h"
#include "frmfilters.h"
#include "historycombobox.h"
#include "joincommand.h"
#include "language.h"
#include "masteraddress.h"
#include "multicolorlabel.h"
#include "playerlistmodel.h"
#include "reportmodel.h"
#include "reportview.h"
#include "serverlistmodel.h"
#include "serverpanes.h"
#include "settingscodec.h"
#include "settingskeys.h"
#include "settingsstore.h"
#include "visiblelists.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

QPushButton* createButton(QWidget* parent, const char* objectName)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    return button;
}

QLabel* createLabel(QWidget* parent, const char* objectName)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(objectName));
    return label;
}

QAction* createAction(QMenu* menu, const char* objectName)
{
    auto* action = menu->addAction(QString());
    action->setObjectName(QLatin1String(objectName));
    return action;
}

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

FrmMain::FrmMain(SettingsStore& settings, Desktop& desktop, Language& language, QString dataFolder, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_language(language)
    , m_dataFolder(std::move(dataFolder))
{
    setObjectName(QStringLiteral("frmMain"));
    setMinimumSize(MinimumSize);
    resize(DesignSize);
    createControls();
    createMenus();
    layOutControls();
    retranslateUi();
    loadState();
}

FrmMain::~FrmMain() = default;

void FrmMain::createControls()
{
    lblAbout = createLabel(this, "lblAbout");
    lblAbout->setCursor(Qt::PointingHandCursor);
    QFont titleFont = lblAbout->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.3);
    lblAbout->setFont(titleFont);
    lblAbout->installEventFilter(this);
    // Hidden while a query runs; keeping its place means the lists are not
    // laid out again when it comes back, which is slow with many rows.
    QSizePolicy keepPlace = lblAbout->sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    lblAbout->setSizePolicy(keepPlace);

    tabSelect = new QTabBar(this);
    tabSelect->setObjectName(QStringLiteral("tabSelect"));
    tabSelect->addTab(QString());
    tabSelect->addTab(QString());
    tabSelect->setExpanding(false);

    m_serverModel = new ServerListModel(this);
    m_playerModel = new PlayerListModel(*m_serverModel, this);
    // The visible lists: what passes the filters, in the order the user sorted.
    m_frmFilters = new FrmFilters(m_settings, m_dataFolder, this);
    m_frmFilters->setObjectName(QStringLiteral("frmFilters"));
    m_visibility = std::make_unique<ServerVisibility>(m_serverModel->store());
    m_visibility->setRules(m_frmFilters->filters(), m_frmFilters->builtIn());
    m_visibleServers = new VisibleList([this](int row) { return m_visibility->isVisible(row); },
                                       [this](int column) { return m_serverModel->sortKeys(column); }, this);
    m_visibleServers->setSourceModel(m_serverModel);
    m_visiblePlayers =
        new VisibleList([this](int row) { return m_visibility->isVisible(m_playerModel->row(row).server); },
                        [this](int column) { return m_playerModel->sortKeys(column); }, this);
    m_visiblePlayers->setSourceModel(m_playerModel);
    m_serverPlayersModel = new ServerPlayersModel(this);
    m_serverRulesModel = new ServerRulesModel(this);

    rzrPSI = new QSplitter(Qt::Vertical, this);
    rzrPSI->setObjectName(QStringLiteral("rzrPSI"));
    rzrPSI->setChildrenCollapsible(false);
    lstServerList = new ReportView(m_visibleServers, ListColumns::designWidths(ListColumns::serverList()), rzrPSI);
    lstServerList->setObjectName(QStringLiteral("lstServerList"));
    rzrSPSI = new QSplitter(Qt::Horizontal, rzrPSI);
    rzrSPSI->setObjectName(QStringLiteral("rzrSPSI"));
    rzrSPSI->setChildrenCollapsible(false);
    lvwPlayers = new ReportView(m_serverPlayersModel, ListColumns::designWidths(ListColumns::serverPlayers()), rzrSPSI);
    lvwPlayers->setObjectName(QStringLiteral("lvwPlayers"));
    lvwServerInfo = new ReportView(m_serverRulesModel, ListColumns::designWidths(ListColumns::serverRules()), rzrSPSI);
    lvwServerInfo->setObjectName(QStringLiteral("lvwServerInfo"));
    rzrPSI->addWidget(lstServerList);
    rzrPSI->addWidget(rzrSPSI);
    rzrSPSI->addWidget(lvwPlayers);
    rzrSPSI->addWidget(lvwServerInfo);
    // The stored size is that of the first pane; it keeps it when the
    // window grows or shrinks.
    rzrPSI->setStretchFactor(0, 0);
    rzrPSI->setStretchFactor(1, 1);
    rzrSPSI->setStretchFactor(0, 0);
    rzrSPSI->setStretchFactor(1, 1);
    lstPlayerList = new ReportView(m_visiblePlayers, ListColumns::designWidths(ListColumns::playerList()), this);
    lstPlayerList->setObjectName(QStringLiteral("lstPlayerList"));

    lblSName = createLabel(this, "lblSName");
    mclSName = new MulticolorLabel(this);
    mclSName->setObjectName(QStringLiteral("mclSName"));

    fraJoin = new QFrame(this);
    fraJoin->setObjectName(QStringLiteral("fraJoin"));
    fraJoin->setFrameShape(QFrame::StyledPanel);
    lblPlayerName = createLabel(fraJoin, "lblPlayerName");
    cmbPlayerName = new HistoryComboBox(fraJoin);
    cmbPlayerName->setObjectName(QStringLiteral("cmbPlayerName"));
    lblPlayerName->setBuddy(cmbPlayerName);
    lblPassword = createLabel(fraJoin, "lblPassword");
    cmbPassword = new HistoryComboBox(fraJoin);
    cmbPassword->setObjectName(QStringLiteral("cmbPassword"));
    lblPassword->setBuddy(cmbPassword);
    lblPName = createLabel(fraJoin, "lblPName");
    mclPName = new MulticolorLabel(fraJoin);
    mclPName->setObjectName(QStringLiteral("mclPName"));
    cmdJoin = createButton(fraJoin, "cmdJoin");
    cmdJoinIP = createButton(fraJoin, "cmdJoinIP");

    cmbFind = new HistoryComboBox(this);
    cmbFind->setObjectName(QStringLiteral("cmbFind"));
    cmdFind = createButton(this, "cmdFind");
    lblPlayers = createLabel(this, "lblPlayers");
    lblServers = createLabel(this, "lblServers");
    lblStatus = createLabel(this, "lblStatus");
    // The status colours (orange, yellow, green, red) read best on black.
    lblStatus->setAutoFillBackground(true);
    QPalette statusPalette = lblStatus->palette();
    statusPalette.setColor(QPalette::Window, Qt::black);
    lblStatus->setPalette(statusPalette);
    lblStatus->setMinimumHeight(2 * lblStatus->fontMetrics().height() + 4);
    lblStatus->setContentsMargins(4, 0, 4, 0);
    prbProgress = new QProgressBar(this);
    prbProgress->setObjectName(QStringLiteral("prbProgress"));
    prbProgress->setRange(0, 1);
    prbProgress->setValue(0);
    prbProgress->setTextVisible(false);

    fraQuery = new QFrame(this);
    fraQuery->setObjectName(QStringLiteral("fraQuery"));
    cmdGet = createButton(fraQuery, "cmdGet");
    cmdFav = createButton(fraQuery, "cmdFav");
    cmdCancel = createButton(fraQuery, "cmdCancel");
    cmdCancel->setEnabled(false);
    cmdCancel->setVisible(false);
    QSizePolicy keepCancelPlace = cmdCancel->sizePolicy();
    keepCancelPlace.setRetainSizeWhenHidden(true);
    cmdCancel->setSizePolicy(keepCancelPlace);
    cmdOrganise = createButton(this, "cmdOrganise");
    cmdFilters = createButton(this, "cmdFilters");
    cmdOptions = createButton(this, "cmdOptions");
    cmdExit = createButton(this, "cmdExit");

    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdGet, &QPushButton::clicked, this, &FrmMain::startMasterQuery);
    connect(cmdFav, &QPushButton::clicked, this, &FrmMain::startFavouritesQuery);
    connect(cmdCancel, &QPushButton::clicked, this, &FrmMain::cancelQuery);
    connect(lstServerList, &QAbstractItemView::clicked, this, &FrmMain::serverClicked);
    connect(lstPlayerList, &QAbstractItemView::clicked, this, &FrmMain::playerClicked);
    // A double click joins only after a left press: one after a right
    // press (its menu) is ignored.
    connect(lstServerList, &QAbstractItemView::doubleClicked, this, [this] {
        if (m_lastButton.value(lstServerList) == 1)
            joinFromList(*lstServerList);
    });
    connect(lstPlayerList, &QAbstractItemView::doubleClicked, this, [this] {
        if (m_lastButton.value(lstPlayerList) == 1)
            joinFromList(*lstPlayerList);
    });
    connect(cmdJoin, &QPushButton::clicked, this, [this] {
        cmbPlayerName->remember(cmbPlayerName->currentText());
        cmbPassword->remember(cmbPassword->currentText());
        ReportView* list = findTarget();
        m_lastButton[list] = 1;
        joinFromList(*list);
    });
    connect(cmdJoinIP, &QPushButton::clicked, this, &FrmMain::joinByAddress);
    connect(cmdOrganise, &QPushButton::clicked, this, [this] {
        // A new editor each time: it reads the file as it is now.
        auto* editor = new FrmFavourites(m_settings, m_dataFolder, this);
        editor->setAttribute(Qt::WA_DeleteOnClose);
        editor->show();
    });
    for (ReportView* list : {lstServerList, lstPlayerList, lvwPlayers, lvwServerInfo})
        list->viewport()->installEventFilter(this);
    lstPlayerList->installEventFilter(this);
    // Keyboard moves show the row like a click, without menu or refresh.
    connect(lstServerList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { showServer(current); });
    connect(lstPlayerList->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { showPlayer(current); });
    connect(lvwPlayers->header(), &QHeaderView::sectionClicked, this,
            [this](int column) { sortPane(*lvwPlayers, m_serverPlayersSort, Keys::ServerPlayers.sort, column); });
    connect(lvwServerInfo->header(), &QHeaderView::sectionClicked, this,
            [this](int column) { sortPane(*lvwServerInfo, m_serverRulesSort, Keys::ServerRules.sort, column); });
    m_findPalette = cmbFind->palette();
    connect(cmbFind, &QComboBox::editTextChanged, this, &FrmMain::runFind);
    connect(cmbFind, &QComboBox::activated, this, &FrmMain::runFind);
    connect(lstServerList->header(), &QHeaderView::sectionClicked, this, [this](int column) {
        sortClicked(*m_visibleServers, *lstServerList, m_serverSort, Keys::ServerList.sort, column);
    });
    connect(lstPlayerList->header(), &QHeaderView::sectionClicked, this, [this](int column) {
        sortClicked(*m_visiblePlayers, *lstPlayerList, m_playerSort, Keys::PlayerList.sort, column);
    });
    connect(cmdFilters, &QPushButton::clicked, this, [this] {
        m_frmFilters->show();
        m_frmFilters->raise();
        m_frmFilters->activateWindow();
    });
    connect(m_frmFilters, &FrmFilters::filtersChanged, this, [this] {
        UpdateServerList();
        UpdatePlayerList();
    });

    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(40);
    connect(&m_flushTimer, &QTimer::timeout, this, &FrmMain::flushAnswers);
    connect(&m_session, &QuerySession::phaseChanged, this, &FrmMain::showPhase);
    connect(&m_session, &QuerySession::requestSent, this, [this](int sent, int total) {
        prbProgress->setMaximum(std::max(total, 1));
        prbProgress->setValue(sent);
    });
    connect(&m_session, &QuerySession::serverAnswered, this, &FrmMain::queueAnswer);
    connect(&m_session, &QuerySession::finished, this, &FrmMain::finishQuery);
    // The Retry/Cancel box is modal: open it once the engine has unwound.
    connect(&m_session, &QuerySession::masterTimedOut, this, &FrmMain::masterTimedOut, Qt::QueuedConnection);
    connect(&m_session, &QuerySession::failed, this, &FrmMain::queryFailed);
    connect(tabSelect, &QTabBar::currentChanged, this, &FrmMain::showView);
    connect(rzrPSI, &QSplitter::splitterMoved, this, &FrmMain::saveSplitters);
    connect(rzrSPSI, &QSplitter::splitterMoved, this, &FrmMain::saveSplitters);
    connect(cmbPlayerName, &HistoryComboBox::enterPressed, this,
            [this] { cmbPlayerName->remember(cmbPlayerName->currentText()); });
    connect(cmbPassword, &HistoryComboBox::enterPressed, this,
            [this] { cmbPassword->remember(cmbPassword->currentText()); });
    connect(cmbFind, &HistoryComboBox::enterPressed, cmdFind, &QPushButton::click);
    connect(cmdFind, &QPushButton::clicked, this, [this] {
        m_findMarker = QStringLiteral("1");
        cmbFind->remember(cmbFind->currentText());
        runFind();
    });
}

void FrmMain::createMenus()
{
    mPopupAlt = new QMenu(this);
    mPopupAlt->setObjectName(QStringLiteral("mPopupAlt"));
    mPopAdd = createAction(mPopupAlt, "mPopAdd");
    mPopCopyCell = createAction(mPopupAlt, "mPopCopyCell");
    mPopCopyColumn = createAction(mPopupAlt, "mPopCopyColumn");
    mPopCopyRow = createAction(mPopupAlt, "mPopCopyRow");
    mPopCopyAll = createAction(mPopupAlt, "mPopCopyAll");
    mPopSelServer = createAction(mPopupAlt, "mPopSelServer");
    connect(mPopSelServer, &QAction::triggered, this, &FrmMain::selectServerOfPlayer);

    mPopupAltPlayers = new QMenu(this);
    mPopupAltPlayers->setObjectName(QStringLiteral("mPopupAltPlayers"));
    mPopCopyCellP = createAction(mPopupAltPlayers, "mPopCopyCellP");
    mPopCopyColumnP = createAction(mPopupAltPlayers, "mPopCopyColumnP");
    mPopCopyRowP = createAction(mPopupAltPlayers, "mPopCopyRowP");
    mPopCopyAllP = createAction(mPopupAltPlayers, "mPopCopyAllP");

    mPopupAltServerInfo = new QMenu(this);
    mPopupAltServerInfo->setObjectName(QStringLiteral("mPopupAltServerInfo"));
    mPopCopyCellSI = createAction(mPopupAltServerInfo, "mPopCopyCellSI");
    mPopCopyColumnSI = createAction(mPopupAltServerInfo, "mPopCopyColumnSI");
    mPopCopyRowSI = createAction(mPopupAltServerInfo, "mPopCopyRowSI");
    mPopCopyAllSI = createAction(mPopupAltServerInfo, "mPopCopyAllSI");

    connect(mPopAdd, &QAction::triggered, this, &FrmMain::addToFavourites);
    const auto copyCommands = [this](std::initializer_list<QAction*> actions, auto list, auto prefix) {
        int what = 0;
        for (QAction* action : actions) {
            connect(action, &QAction::triggered, this, [this, list, prefix, what] {
                auto [view, order] = std::pair{list(), prefix()};
                copyFromList(*view, order, what);
            });
            ++what;
        }
    };
    copyCommands(
        {mPopCopyCell, mPopCopyColumn, mPopCopyRow, mPopCopyAll}, [this] { return findTarget(); },
        [this] { return findTarget() == lstPlayerList ? Keys::PlayerList.columns : Keys::ServerList.columns; });
    copyCommands(
        {mPopCopyCellP, mPopCopyColumnP, mPopCopyRowP, mPopCopyAllP}, [this] { return lvwPlayers; },
        [] { return Keys::ServerPlayers.columns; });
    copyCommands(
        {mPopCopyCellSI, mPopCopyColumnSI, mPopCopyRowSI, mPopCopyAllSI}, [this] { return lvwServerInfo; },
        [] { return Keys::ServerRules.columns; });
}

void FrmMain::layOutControls()
{
    auto* titleRow = new QHBoxLayout;
    titleRow->addWidget(lblAbout);
    titleRow->addStretch();

    auto* views = new QVBoxLayout;
    views->setSpacing(0);
    views->addWidget(tabSelect);
    views->addWidget(lstPlayerList, 1);
    views->addWidget(rzrPSI, 1);

    auto* serverNameRow = new QHBoxLayout;
    serverNameRow->addWidget(lblSName);
    serverNameRow->addWidget(mclSName, 1);

    auto* joinLayout = new QGridLayout(fraJoin);
    joinLayout->setContentsMargins(6, 6, 6, 6);
    joinLayout->addWidget(lblPlayerName, 0, 0);
    joinLayout->addWidget(cmbPlayerName, 0, 1);
    joinLayout->addWidget(lblPassword, 0, 2);
    joinLayout->addWidget(cmbPassword, 0, 3);
    joinLayout->addWidget(cmdJoin, 0, 4);
    joinLayout->addWidget(cmdJoinIP, 0, 5);
    auto* playerNameRow = new QHBoxLayout;
    playerNameRow->addWidget(lblPName);
    playerNameRow->addWidget(mclPName, 1);
    joinLayout->addLayout(playerNameRow, 1, 0, 1, 6);
    joinLayout->setColumnStretch(1, 1);
    joinLayout->setColumnStretch(3, 1);

    auto* findRow = new QHBoxLayout;
    findRow->addWidget(cmbFind, 1);
    findRow->addWidget(cmdFind);
    findRow->addSpacing(12);
    findRow->addWidget(lblPlayers);
    findRow->addSpacing(12);
    findRow->addWidget(lblServers);

    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(lblStatus, 1);
    statusRow->addWidget(prbProgress, 1);

    auto* queryLayout = new QHBoxLayout(fraQuery);
    queryLayout->setContentsMargins(0, 0, 0, 0);
    queryLayout->addWidget(cmdGet);
    queryLayout->addWidget(cmdFav);
    queryLayout->addWidget(cmdCancel);
    queryLayout->addStretch();

    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(fraQuery, 1);
    buttonRow->addWidget(cmdExit);

    auto* dialogRow = new QHBoxLayout;
    dialogRow->addWidget(cmdOrganise);
    dialogRow->addWidget(cmdFilters);
    dialogRow->addWidget(cmdOptions);
    dialogRow->addStretch();

    auto* main = new QVBoxLayout(this);
    main->addLayout(titleRow);
    main->addLayout(views, 1);
    main->addLayout(serverNameRow);
    main->addWidget(fraJoin);
    main->addLayout(findRow);
    main->addLayout(statusRow);
    main->addLayout(buttonRow);
    main->addLayout(dialogRow);
}

void FrmMain::retranslateUi()
{
    setWindowTitle(tr("Quake 4 Vantage"));
    lblAbout->setText(tr("Quake 4 Vantage"));
    lblAbout->setToolTip(tr("About Quake 4 Vantage"));
    tabSelect->setTabText(PlayersTab, tr("Players"));
    tabSelect->setTabText(ServersTab, tr("Servers"));

    cmdCancel->setText(tr("Cancel Query"));
    cmdGet->setText(tr("Query Masters"));
    cmdFav->setText(tr("Query Favourites"));
    cmdOrganise->setText(tr("Favourites"));
    cmdFilters->setText(tr("Filters"));
    cmdOptions->setText(tr("Options"));
    cmdExit->setText(tr("Exit"));
    cmdJoin->setText(tr("Join"));
    cmdJoinIP->setText(tr("Join IP"));
    cmdFind->setText(tr("Find"));
    lblPlayerName->setText(tr("Name:"));
    lblPassword->setText(tr("Password:"));
    cmbFind->setAccessibleName(tr("Find"));

    lstServerList->setAccessibleName(tr("Servers"));
    lstPlayerList->setAccessibleName(tr("Players"));
    lvwPlayers->setAccessibleName(tr("Players of the selected server"));
    lvwServerInfo->setAccessibleName(tr("Rules of the selected server"));

    mPopAdd->setText(tr("&Add To Favourites"));
    for (QAction* copyCell : {mPopCopyCell, mPopCopyCellP, mPopCopyCellSI})
        copyCell->setText(tr("&Copy Cell"));
    for (QAction* copyColumn : {mPopCopyColumn, mPopCopyColumnP, mPopCopyColumnSI})
        copyColumn->setText(tr("&Copy Column"));
    for (QAction* copyRow : {mPopCopyRow, mPopCopyRowP, mPopCopyRowSI})
        copyRow->setText(tr("&Copy Row"));
    for (QAction* copyAll : {mPopCopyAll, mPopCopyAllP, mPopCopyAllSI})
        copyAll->setText(tr("&Copy All"));
    mPopSelServer->setText(tr("&Select Server"));

    for (ReportModel* model :
         std::initializer_list<ReportModel*>{m_serverModel, m_playerModel, m_serverPlayersModel, m_serverRulesModel})
        model->retranslate();
}

void FrmMain::loadState()
{
    cmbPlayerName->setEditText(m_settings.get(Keys::PlayerName));
    cmbPassword->setEditText(m_settings.get(Keys::Password));

    const int tab = m_settings.getNumber(Keys::Tab, Keys::Defaults::Tab) == PlayersTab ? PlayersTab : ServersTab;
    if (tabSelect->currentIndex() == tab)
        showView(tab);
    else
        tabSelect->setCurrentIndex(tab);

    ColumnLayout::restore(m_settings, Keys::PlayerList.columns, *lstPlayerList->header());
    ColumnLayout::restore(m_settings, Keys::ServerList.columns, *lstServerList->header());
    ColumnLayout::restore(m_settings, Keys::ServerPlayers.columns, *lvwPlayers->header());
    ColumnLayout::restore(m_settings, Keys::ServerRules.columns, *lvwServerInfo->header());

    if (m_language.apply(m_settings.getNumber(Keys::Language, Keys::Defaults::Language)))
        retranslateUi();

    // Design time: first column, descending, so a first click sorts ascending.
    m_serverSort = ColumnLayout::readSort(m_settings, Keys::ServerList.sort, ColumnLayout::SortState{});
    m_playerSort = ColumnLayout::readSort(m_settings, Keys::PlayerList.sort, ColumnLayout::SortState{});
    // A sort stored by an earlier run counts as the last column click.
    m_serverSorted = m_settings.contains(SettingsCodec::sortKeyKey(Keys::ServerList.sort));
    m_playerSorted = m_settings.contains(SettingsCodec::sortKeyKey(Keys::PlayerList.sort));

    cmbFind->setEntries(m_settings.getEntries(Keys::FindBox));
    cmbPlayerName->setEntries(m_settings.getEntries(Keys::PlayerNameBox));
    cmbPassword->setEntries(m_settings.getEntries(Keys::PasswordBox));
}

void FrmMain::showView(int tab)
{
    const bool players = tab == PlayersTab;
    lstPlayerList->setVisible(players);
    rzrPSI->setVisible(!players);
    rzrSPSI->setVisible(!players);
    mPopSelServer->setVisible(players);
    if (!players && m_initialSizeApplied)
        restoreSplitters();
}

void FrmMain::restoreSplitters()
{
    setFirstPaneSize(*rzrSPSI, m_settings.getNumber(Keys::SplitterPanes, firstPaneSize(*rzrSPSI)));
    setFirstPaneSize(*rzrPSI, m_settings.getNumber(Keys::SplitterServerList, firstPaneSize(*rzrPSI)));
}

void FrmMain::saveSplitters()
{
    m_settings.saveNumber(Keys::SplitterPanes, firstPaneSize(*rzrSPSI));
    m_settings.saveNumber(Keys::SplitterServerList, firstPaneSize(*rzrPSI));
}

void FrmMain::applyInitialGeometry()
{
    m_initialSizeApplied = true;
    m_resizeInProgress = true;
    resize(m_settings.getNumber(Keys::WindowWidth, width()), m_settings.getNumber(Keys::WindowHeight, height()));
    m_resizeInProgress = false;
    // The panes get their stored sizes once the window is shown and laid
    // out; before that the splitters have no real size to divide.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (tabSelect->currentIndex() == ServersTab)
                restoreSplitters();
        },
        Qt::QueuedConnection);
    if (m_settings.getTruth(Keys::Maximized, false))
        setWindowState(windowState() | Qt::WindowMaximized);
}

void FrmMain::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_resizeInProgress)
        return;
    if (!m_initialSizeApplied) {
        applyInitialGeometry();
        return;
    }
    if (!(windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen))) {
        m_settings.saveNumber(Keys::WindowHeight, height());
        m_settings.saveNumber(Keys::WindowWidth, width());
    }
}

void FrmMain::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

bool FrmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lblAbout && event->type() == QEvent::MouseButtonRelease) {
        showAbout();
        return true;
    }
    if (watched == lstPlayerList && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_C && (key->modifiers() & Qt::ControlModifier)) {
            copyPlayersServerAddress();
            return true;
        }
        return QWidget::eventFilter(watched, event);
    }
    for (ReportView* list : {lstServerList, lstPlayerList, lvwPlayers, lvwServerInfo}) {
        if (watched != list->viewport())
            continue;
        if (event->type() == QEvent::MouseButtonPress) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            m_lastButton[list] = mouse->button() == Qt::RightButton ? 2 : mouse->button() == Qt::LeftButton ? 1 : 0;
            saveColumnOrders();
            m_menuColumn = list->header()->logicalIndexAt(mouse->position().toPoint().x());
        } else if (event->type() == QEvent::MouseButtonRelease) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            const QModelIndex index = list->indexAt(mouse->position().toPoint());
            if (mouse->button() != Qt::RightButton || m_lastButton.value(list) != 2 || !index.isValid())
                break;
            list->setCurrentIndex(index);
            if (list == lstServerList)
                serverRowClicked(index, 2);
            else if (list == lstPlayerList)
                playerRowClicked(index, 2);
            else
                (list == lvwPlayers ? mPopupAltPlayers : mPopupAltServerInfo)->popup(QCursor::pos());
        }
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FrmMain::showAbout()
{
    m_desktop.message(this, Desktop::Icon::Information, tr("About Quake 4 Vantage"),
                      tr("Quake 4 Vantage %1\nA server browser for Quake 4.").arg(QStringLiteral(Q4V_VERSION)),
                      QMessageBox::Ok);
}

void FrmMain::emptyAllRecords()
{
    m_selectedServer = -1;
    fillPanes();
    m_flushTimer.stop();
    m_pendingAnswers.clear();
    m_playerModel->clear();
    m_serverModel->clear();
}

void FrmMain::setStatus(const QString& text, QRgb colour)
{
    QPalette palette = lblStatus->palette();
    palette.setColor(QPalette::WindowText, QColor(colour));
    lblStatus->setPalette(palette);
    lblStatus->setText(text);
}

void FrmMain::setCounters(int servers, int players)
{
    lblServers->setText(QString::number(servers) + QLatin1Char(' ') + tr("servers found"));
    lblPlayers->setText(QString::number(players) + QLatin1Char(' ') + tr("players found"));
}

void FrmMain::updateCounters()
{
    setCounters(m_visibleServers->rowCount(), m_visiblePlayers->rowCount());
}

void FrmMain::setQueryingButtons()
{
    for (QWidget* control : {static_cast<QWidget*>(cmdFav), static_cast<QWidget*>(cmdGet),
                             static_cast<QWidget*>(cmdOptions), static_cast<QWidget*>(cmdOrganise)})
        control->setEnabled(false);
    lblAbout->setVisible(false);
    cmdCancel->setEnabled(true);
    cmdCancel->setVisible(true);
}

void FrmMain::setIdleButtons()
{
    cmdCancel->setEnabled(false);
    cmdCancel->setVisible(false);
    for (QWidget* control : {static_cast<QWidget*>(cmdFav), static_cast<QWidget*>(cmdGet),
                             static_cast<QWidget*>(cmdOptions), static_cast<QWidget*>(cmdOrganise)})
        control->setEnabled(true);
    cmdFav->setVisible(true);
    cmdGet->setVisible(true);
    lblAbout->setVisible(true);
}

bool FrmMain::preparePool()
{
    m_lastSocketIndex =
        QuerySpeed::lastSocketIndex(m_settings.getNumber(Keys::Speed, Keys::Defaults::Speed), m_lastSocketIndex);
    const int startPort = m_settings.getNumber(Keys::StartPort, Keys::Defaults::StartPort);
    if (startPort < 1 || startPort + m_lastSocketIndex + QuerySpeed::MasterPortOffset > 65535) {
        setStatus(tr("The start port %1 is not valid. Choose another in the options.").arg(startPort), Red);
        return false;
    }
    m_session.setPool(m_lastSocketIndex, quint16(startPort));
    return true;
}

bool FrmMain::beginQuery()
{
    if (!preparePool())
        return false;
    setQueryingButtons();
    clearNameLabels();
    lblServers->clear();
    lblPlayers->clear();
    emptyAllRecords();
    prbProgress->setValue(0);
    setStatus(QString(), Orange);
    return true;
}

void FrmMain::startMasterQuery()
{
    if (m_session.isRunning())
        return;
    const QString setting = m_settings.get(Keys::MasterServer);
    const auto master = parseMasterAddress(setting);
    if (!master) {
        queryFailed(QueryError{QueryError::Kind::BadMasterAddress, setting});
        return;
    }
    if (!beginQuery())
        return;
    m_masterHost = master->host;
    if (const auto error = m_session.startMaster(*master))
        queryFailed(*error);
}

void FrmMain::startFavouritesQuery()
{
    if (m_session.isRunning())
        return;
    const auto favourites = Favourites::readFile(QDir(m_dataFolder).filePath(Favourites::FileName));
    if (!favourites)
        return;
    if (!beginQuery())
        return;
    if (const auto error = m_session.startAddresses(Favourites::toAddressTable(*favourites)))
        queryFailed(*error);
}

void FrmMain::showPhase(QuerySession::Phase phase)
{
    const QString host = QLatin1Char('\n') + m_masterHost;
    switch (phase) {
    case QuerySession::Phase::Requesting:
        setStatus(tr("Requesting Server List from") + host, Orange);
        break;
    case QuerySession::Phase::Receiving:
        setStatus(tr("Receiving Server List from") + host, Orange);
        break;
    case QuerySession::Phase::Sorting:
        setStatus(tr("Sorting IP Address Lists") + host, Orange);
        break;
    case QuerySession::Phase::Querying: {
        const int count = m_session.addresses().count();
        setStatus(tr("Querying") + QLatin1Char(' ') + QString::number(count) + QLatin1Char(' ') + tr("Servers") +
                      QStringLiteral("..."),
                  Yellow);
        setCounters(0, 0);
        prbProgress->setMinimum(0);
        prbProgress->setMaximum(std::max(count, 1));
        prbProgress->setValue(0);
        break;
    }
    case QuerySession::Phase::Idle:
        break;
    }
}

void FrmMain::queueAnswer(const ServerRecord& server, bool refresh)
{
    if (refresh) {
        applyRefresh(server);
        return;
    }
    m_pendingAnswers.append(server);
    if (!m_flushTimer.isActive())
        m_flushTimer.start();
}

void FrmMain::flushAnswers()
{
    m_flushTimer.stop();
    if (m_pendingAnswers.isEmpty())
        return;
    const int first = m_serverModel->append(m_pendingAnswers);
    m_pendingAnswers.clear();
    m_playerModel->appendServersFrom(first);
    updateCounters();
}

void FrmMain::applyRefresh(const ServerRecord& server)
{
    const int index = m_serverModel->store().indexOf(server.address, server.port);
    if (index < 0)
        return;
    m_serverModel->replace(index, server);
    m_playerModel->replaceServer(index);
    m_visibility->forget(index);
    if (index == m_selectedServer) {
        ShowServerName(server.name);
        fillPanes();
    }
    m_visibleServers->refilter();
    m_visiblePlayers->refilter();
    updateCounters();
}

void FrmMain::cancelQuery()
{
    m_session.cancel();
    flushAnswers();
    // The lists are rebuilt and sorted by the last column click once a
    // query ends; during it rows were appended as they came.
    UpdateServerList();
    UpdatePlayerList();
    setIdleButtons();
    setStatus(tr("Cancelled"), Red);
    prbProgress->setValue(0);
}

void FrmMain::finishQuery()
{
    cancelQuery();
    setStatus(tr("Done"), Green);
}

void FrmMain::masterTimedOut()
{
    setIdleButtons();
    setStatus(tr("Master Servers Timed Out"), Red);
    setCounters(0, 0);
    prbProgress->setValue(0);
    const auto answer = m_desktop.message(this, Desktop::Icon::Critical, tr("Quake 4 Vantage"),
                                          tr("Master Servers Timed Out"), QMessageBox::Retry | QMessageBox::Cancel);
    if (answer == QMessageBox::Retry)
        startMasterQuery();
}

void FrmMain::queryFailed(const QueryError& error)
{
    m_session.cancel();
    flushAnswers();
    setIdleButtons();
    prbProgress->setValue(0);
    setStatus(error.message(), Red);
}

void FrmMain::UpdateServerList()
{
    m_visibility->setRules(m_frmFilters->filters(), m_frmFilters->builtIn());
    m_visibleServers->refilter();
    if (m_serverSorted)
        applySort(*m_visibleServers, *lstServerList, m_serverSort);
    updateCounters();
}

void FrmMain::UpdatePlayerList()
{
    m_visiblePlayers->refilter();
    if (m_playerSorted)
        applySort(*m_visiblePlayers, *lstPlayerList, m_playerSort);
    updateCounters();
}

void FrmMain::applySort(VisibleList& list, ReportView& view, ColumnLayout::SortState sort)
{
    const Qt::SortOrder order = sort.order == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
    list.sortBy(sort.key, order);
    view.header()->setSortIndicatorShown(true);
    view.header()->setSortIndicator(sort.key, order);
}

void FrmMain::sortClicked(VisibleList& list, ReportView& view, ColumnLayout::SortState& sort, QStringView prefix,
                          int column)
{
    // An empty list ignores the click: no flip, nothing saved.
    if (list.rowCount() == 0)
        return;
    // Every click flips the direction, also on another column.
    sort = ColumnLayout::SortState{column, (sort.order + 1) % 2};
    if (&list == m_visibleServers)
        m_serverSorted = true;
    else
        m_playerSorted = true;
    applySort(list, view, sort);
    ColumnLayout::saveSort(m_settings, prefix, sort);
}

void FrmMain::ShowServerName(const QString& name)
{
    mclSName->setColouredText(ColourCodes::ShowServerName(name));
    lblSName->setText(mclSName->caption().isEmpty() ? QString() : tr("Server Name:"));
}

void FrmMain::ShowPlayerName(const QString& name)
{
    mclPName->setColouredText(ColourCodes::ShowPlayerName(name));
    lblPName->setText(mclPName->caption().isEmpty() ? QString() : tr("Player Name:"));
}

void FrmMain::clearNameLabels()
{
    ShowServerName(QString());
    ShowPlayerName(QString());
}

void FrmMain::showPlayer(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const auto& row = m_playerModel->row(m_visiblePlayers->mapToSource(index).row());
    const ServerRecord& server = m_serverModel->record(row.server);
    ShowPlayerName(server.players.at(row.player).name);
    ShowServerName(server.name);
}

void FrmMain::showServer(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    m_selectedServer = m_visibleServers->mapToSource(index).row();
    ShowServerName(m_serverModel->record(m_selectedServer).name);
    ShowPlayerName(QString());
    fillPanes();
}

void FrmMain::fillPanes()
{
    if (m_selectedServer < 0 || m_selectedServer >= m_serverModel->store().count()) {
        m_serverPlayersModel->setPlayers({});
        m_serverRulesModel->setTokens({});
        return;
    }
    const ServerRecord& server = m_serverModel->record(m_selectedServer);
    m_serverPlayersModel->setPlayers(server.players);
    m_serverRulesModel->setTokens(server.tokens);
}

void FrmMain::sortPane(ReportView& view, ColumnLayout::SortState& sort, QStringView prefix, int column)
{
    if (view.model()->rowCount() == 0)
        return;
    sort = ColumnLayout::SortState{column, (sort.order + 1) % 2};
    const Qt::SortOrder order = sort.order == 0 ? Qt::AscendingOrder : Qt::DescendingOrder;
    view.model()->sort(column, order);
    view.header()->setSortIndicatorShown(true);
    view.header()->setSortIndicator(column, order);
    ColumnLayout::saveSort(m_settings, prefix, sort);
}

void FrmMain::playerClicked(const QModelIndex& index)
{
    playerRowClicked(index, m_lastButton.value(lstPlayerList, 1));
}

void FrmMain::serverClicked(const QModelIndex& index)
{
    serverRowClicked(index, m_lastButton.value(lstServerList, 1));
}

void FrmMain::playerRowClicked(const QModelIndex& index, int button)
{
    showPlayer(index);
    if (button == 2 && m_visiblePlayers->rowCount() > 0)
        mPopupAlt->popup(QCursor::pos());
}

void FrmMain::serverRowClicked(const QModelIndex& index, int button)
{
    if (!index.isValid())
        return;
    showServer(index);
    if (button == 2 && m_visibleServers->rowCount() > 0) {
        mPopupAlt->popup(QCursor::pos());
        return;
    }
    if (m_session.isRunning() || !m_settings.getFlag(Keys::RefreshServers, true))
        return;
    const ServerRecord& server = m_serverModel->record(m_selectedServer);
    if (!preparePool())
        return;
    if (const auto error = m_session.refresh(server.address, server.port))
        setStatus(error->message(), Red);
}

void FrmMain::selectServerOfPlayer()
{
    const QModelIndex current = lstPlayerList->currentIndex();
    if (!current.isValid())
        return;
    const auto& player = m_playerModel->row(m_visiblePlayers->mapToSource(current).row());
    const QString address = m_serverModel->record(player.server).endpointText();
    for (int row = 0; row < m_visibleServers->rowCount(); ++row) {
        const QModelIndex index = m_visibleServers->index(row, ServerListModel::Address);
        if (index.data().toString() != address)
            continue;
        tabSelect->setCurrentIndex(ServersTab);
        const QModelIndex first = m_visibleServers->index(row, 0);
        lstServerList->setCurrentIndex(first);
        lstServerList->scrollTo(first);
        serverRowClicked(first, 1);
        return;
    }
}

ReportView* FrmMain::findTarget() const
{
    return tabSelect->currentIndex() == PlayersTab ? lstPlayerList : lstServerList;
}

void FrmMain::runFind()
{
    ReportView* list = findTarget();
    const QString text = cmbFind->currentText();
    if (text.isEmpty()) {
        list->clearSelection();
        clearNameLabels();
        cmbFind->setPalette(m_findPalette);
        lblStatus->clear();
        return;
    }
    QAbstractItemModel* model = list->model();
    const int rows = model->rowCount();
    const int start =
        Find::startRow(m_findMarker, list->currentIndex().isValid() ? list->currentIndex().row() : -1, rows);
    // The text of a row is its first column, the player's or the server's
    // plain name, read straight from the hidden list (quick at 150,000 rows).
    const bool players = list == lstPlayerList;
    const std::vector<int> sourceRows = (players ? m_visiblePlayers : m_visibleServers)->sourceRows();
    const std::function<QString(int)> textAt = [&](int row) {
        const int source = sourceRows[size_t(row)];
        return players ? m_playerModel->row(source).plainName : m_serverModel->plainName(source);
    };
    const int found = Find::findRow(rows, textAt, text, start);
    m_findMarker = QStringLiteral("0");
    if (found < 0) {
        list->clearSelection();
        list->setCurrentIndex({});
        clearNameLabels();
        QPalette notFound = m_findPalette;
        notFound.setColor(QPalette::Base, QColor(255, 102, 102));
        cmbFind->setPalette(notFound);
        setStatus(tr("Text Not Found"), Red);
        return;
    }
    const QModelIndex index = model->index(found, 0);
    list->setCurrentIndex(index);
    list->scrollTo(index);
    cmbFind->setPalette(m_findPalette);
    // Also when the row was current already and no change signal came.
    if (list == lstPlayerList)
        showPlayer(index);
    else
        showServer(index);
}

std::optional<FrmMain::JoinTarget> FrmMain::selectedTarget(const ReportView& list) const
{
    const QModelIndex current = list.currentIndex();
    if (!current.isValid() || !list.selectionModel()->isRowSelected(current.row(), {}))
        return std::nullopt;
    int server = 0;
    if (&list == lstPlayerList)
        server = m_playerModel->row(m_visiblePlayers->mapToSource(current).row()).server;
    else if (&list == lstServerList)
        server = m_visibleServers->mapToSource(current).row();
    else
        return std::nullopt;
    const ServerRecord& record = m_serverModel->record(server);
    return JoinTarget{record.endpointText(), record.isPassworded(), m_serverModel->plainName(server)};
}

void FrmMain::joinFromList(ReportView& list)
{
    if (list.model()->rowCount() == 0)
        return;
    if (const auto target = selectedTarget(list))
        join(*target);
}

void FrmMain::joinByAddress()
{
    const auto typed =
        m_desktop.inputText(this, tr("Join server by IP Address"),
                            tr("Please enter the IP address/hostname and port of the server you wish to join"));
    if (!typed || typed->trimmed().isEmpty())
        return;
    join(JoinTarget{typed->trimmed(), false, typed->trimmed()});
}

void FrmMain::join(const JoinTarget& target)
{
    QString password = cmbPassword->currentText();
    // The join reads the favourites into a table of its own; a running
    // query's addresses stay as they are.
    if (password.isEmpty()) {
        if (const auto favourites = Favourites::readFile(QDir(m_dataFolder).filePath(Favourites::FileName))) {
            if (const auto favourite = Favourites::toAddressTable(*favourites).lastMatching(target.address))
                password = favourite->password;
        }
    }
    if (target.passworded && password.isEmpty()) {
        password = m_desktop.inputText(this, target.serverName, tr("Please enter the password for this server"))
                       .value_or(QString());
        if (password.isEmpty() &&
            m_desktop.message(this, Desktop::Icon::Question, tr("No Password Provided"), tr("Join Server Anyway?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
            return;
    }
    QString executable = m_settings.get(Keys::Path);
    if (executable.isEmpty()) {
#ifdef Q_OS_WIN
        const QString pattern = QStringLiteral(" (*.exe)");
#else
        // Game binaries on Linux have no extension.
        const QString pattern = QStringLiteral(" (*)");
#endif
        executable = m_desktop.openFileName(this, tr("Select your Quake 4 Executable"), QString(),
                                            tr("Quake 4 Executable") + pattern);
        if (executable.isEmpty())
            return;
        m_settings.save(Keys::Path, executable);
    }
    const JoinCommand command = JoinCommand::make(executable, cmbPlayerName->currentText(), target.address, password);
    // The address only: the status line never shows the password.
    setStatus(tr("Connecting to") + QLatin1Char(' ') + target.address, Green);
    m_desktop.startDetached(command.program, command.arguments, command.workingFolder);
    if (m_settings.getFlag(Keys::CloseAfterJoin, Keys::Defaults::CloseAfterJoin))
        close();
}

void FrmMain::copyFromList(ReportView& list, QStringView orderPrefix, int what)
{
    QAbstractItemModel* model = list.model();
    CopyText::List source;
    source.rowCount = model->rowCount();
    source.cell = [model](int row, int column) { return model->index(row, column).data().toString(); };
    const QModelIndex current = list.currentIndex();
    source.selectedRow =
        current.isValid() && list.selectionModel()->isRowSelected(current.row(), {}) ? current.row() : -1;
    source.clickedColumn = std::clamp(m_menuColumn, 0, model->columnCount() - 1);
    source.displayOrder = ColumnLayout::readOrder(m_settings, orderPrefix, model->columnCount());
    const auto text = CopyText::build(static_cast<CopyText::What>(what), source);
    if (!text)
        return;
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(*text);
}

void FrmMain::addToFavourites()
{
    ReportView* list = findTarget();
    const auto target = selectedTarget(*list);
    if (!target)
        return;
    // From the player list the name is the player's server, as its row shows it.
    if (!Favourites::appendToFile(QDir(m_dataFolder).filePath(Favourites::FileName), target->address, QString(),
                                  target->serverName))
        setStatus(tr("The favourites file could not be written."), Red);
}

void FrmMain::copyPlayersServerAddress()
{
    const QModelIndex current = lstPlayerList->currentIndex();
    if (!current.isValid())
        return;
    const auto& player = m_playerModel->row(m_visiblePlayers->mapToSource(current).row());
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(m_serverModel->record(player.server).endpointText());
}

void FrmMain::saveColumnOrders()
{
    ColumnLayout::saveOrder(m_settings, Keys::PlayerList.columns, *lstPlayerList->header());
    ColumnLayout::saveOrder(m_settings, Keys::ServerList.columns, *lstServerList->header());
    ColumnLayout::saveOrder(m_settings, Keys::ServerPlayers.columns, *lvwPlayers->header());
    ColumnLayout::saveOrder(m_settings, Keys::ServerRules.columns, *lvwServerInfo->header());
}

void FrmMain::saveColumnWidths()
{
    ColumnLayout::saveWidths(m_settings, Keys::PlayerList.columns, *lstPlayerList->header());
    ColumnLayout::saveWidths(m_settings, Keys::ServerList.columns, *lstServerList->header());
    ColumnLayout::saveWidths(m_settings, Keys::ServerPlayers.columns, *lvwPlayers->header());
    ColumnLayout::saveWidths(m_settings, Keys::ServerRules.columns, *lvwServerInfo->header());
}

void FrmMain::writeStateOnClose()
{
    if (m_session.isRunning())
        cancelQuery();
    const SettingsStore::Batch batch(m_settings);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != this && window->isVisible())
            window->close();
    }
    m_settings.saveTruth(Keys::Maximized, isMaximized());
    m_settings.save(Keys::PlayerName, cmbPlayerName->currentText());
    m_settings.save(Keys::Password, cmbPassword->currentText());
    m_settings.saveNumber(Keys::Tab, tabSelect->currentIndex());
    m_settings.saveEntries(Keys::FindBox, cmbFind->entries());
    m_settings.saveEntries(Keys::PlayerNameBox, cmbPlayerName->entries());
    m_settings.saveEntries(Keys::PasswordBox, cmbPassword->entries());
    saveColumnOrders();
    saveColumnWidths();
}

void FrmMain::closeEvent(QCloseEvent* event)
{
    writeStateOnClose();
    event->accept();
}
