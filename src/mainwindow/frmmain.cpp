// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/frmmain.h"

#include "editors/frmfavourites.h"
#include "editors/frmfilters.h"
#include "editors/frmhistory.h"
#include "mainwindow/autorefresh.h"
#include "mainwindow/findbar.h"
#include "mainwindow/joinflow.h"
#include "mainwindow/joinpanel.h"
#include "mainwindow/listmenu.h"
#include "mainwindow/listpane.h"
#include "mainwindow/querybar.h"
#include "mainwindow/querycontroller.h"
#include "mainwindow/serverdetails.h"
#include "mainwindow/serverlists.h"
#include "mainwindow/serverselection.h"
#include "mainwindow/slotwaiter.h"
#include "mainwindow/visiblelist.h"
#include "mainwindow/windowstate.h"
#include "platform/desktop.h"
#include "platform/folders.h"
#include "presentation/frmabout.h"
#include "presentation/frmoptions.h"
#include "presentation/language.h"
#include "presentation/multicolorlabel.h"
#include "presentation/themeservice.h"
#include "update/updateflow.h"
#include "userdata/favourites.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"
#include "widgets/historycombobox.h"
#include "widgets/namedcontrol.h"
#include "widgets/reportview.h"
#include "widgets/statusline.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// Hidden controls keep their place, so the lists are not laid out again
// when they come back (slow with many rows).
void keepPlaceWhenHidden(QWidget* control)
{
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
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
    createMenu();
    connectQueries();
    connectLists();
    connectExtras();
    layOutControls();
    retranslateUi();

    m_state->restore();
    showView(tabSelect->currentIndex());
    if (m_language.apply(m_settings.value(Keys::Language)))
        retranslateUi();
    m_serverPane->restoreSort();
    m_playerPane->restoreSort();
    m_themes->applyFile();

    // The installer goes beside a portable program; an installed one keeps
    // it in the data folder, as it keeps everything it writes.
    const QString programFolder = Folders::programFolder();
    m_updates = new UpdateFlow(
        m_settings, m_desktop,
        !Folders::isInstalled(programFolder) && QFileInfo(programFolder).isWritable() ? programFolder : m_dataFolder,
        this);
    connect(m_updates, &UpdateFlow::quitRequested, this, &QWidget::close);
    m_updates->checkAtStart();
}

FrmMain::~FrmMain() = default;

FrmOptions* FrmMain::openOptions()
{
    // Modal to this window, but not a nested event loop: the window keeps
    // drawing and tests can work the dialog.
    auto* options = new FrmOptions(m_settings, m_desktop, m_language, *m_themes, m_dataFolder, this);
    options->setAttribute(Qt::WA_DeleteOnClose);
    options->setWindowModality(Qt::WindowModal);
    options->open();
    return options;
}

void FrmMain::createControls()
{
    lblAbout = makeControl<QLabel>(this, "lblAbout");
    lblAbout->setCursor(Qt::PointingHandCursor);
    QFont titleFont = lblAbout->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.3);
    lblAbout->setFont(titleFont);
    lblAbout->installEventFilter(this);
    // Hidden while a query runs.
    keepPlaceWhenHidden(lblAbout);

    tabSelect = makeControl<QTabBar>(this, "tabSelect");
    tabSelect->addTab(QString());
    tabSelect->addTab(QString());
    tabSelect->setExpanding(false);

    m_themes = new ThemeService(m_dataFolder, this);
    m_lists = new ServerLists(this);
    m_lists->setClock([this] { return m_desktop.clock().nowMs(); });
    m_lists->setFriends(m_settings.value(Keys::Friends));
    m_frmFilters = new FrmFilters(m_settings, m_dataFolder, this);
    m_frmFilters->setObjectName(QStringLiteral("frmFilters"));
    m_lists->setRules(m_frmFilters->filters(), m_frmFilters->builtIn());
    m_queries = new QueryController(m_settings, m_dataFolder, m_desktop.clock(), this);

    rzrPSI = new QSplitter(Qt::Vertical, this);
    rzrPSI->setObjectName(QStringLiteral("rzrPSI"));
    rzrPSI->setChildrenCollapsible(false);
    m_serverPane = new ListPane(m_settings, Keys::ServerList, m_lists->servers(), m_lists->visibleServers(),
                                m_lists->serverRows(), QStringLiteral("lstServerList"), rzrPSI);
    m_details = new ServerDetails(m_settings, rzrPSI);
    rzrPSI->addWidget(m_serverPane->view());
    rzrPSI->addWidget(m_details->splitter());
    // The stored size is that of the first pane.
    rzrPSI->setStretchFactor(0, 0);
    rzrPSI->setStretchFactor(1, 1);
    m_playerPane = new ListPane(m_settings, Keys::PlayerList, m_lists->players(), m_lists->visiblePlayers(),
                                m_lists->playerRows(), QStringLiteral("lstPlayerList"), this);

    m_joinPanel = new JoinPanel(m_settings, m_desktop, Favourites::filePath(m_dataFolder),
                                PlayHistory::filePath(m_dataFolder), this);
    m_selection = new ServerSelection(
        *m_lists, *m_details, [this](const QString& name) { m_joinPanel->ShowPlayerName(name); }, this);

    m_find = new FindBar([this] { return FindBar::Target{shownList().view(), shownList().visibleNames()}; }, this);
    lblPlayers = makeControl<QLabel>(this, "lblPlayers");
    lblServers = makeControl<QLabel>(this, "lblServers");
    m_queryBar = new QueryBar(*m_queries, this);
    cmdOrganise = makeControl<QPushButton>(this, "cmdOrganise");
    cmdFilters = makeControl<QPushButton>(this, "cmdFilters");
    cmdOptions = makeControl<QPushButton>(this, "cmdOptions");
    connect(cmdOptions, &QPushButton::clicked, this, &FrmMain::openOptions);
    cmdRecent = makeControl<QPushButton>(this, "cmdRecent");
    cmdStopWaiting = makeControl<QPushButton>(this, "cmdStopWaiting");
    cmdStopWaiting->hide();
    m_autoRefresh =
        new AutoRefresh(m_settings, m_desktop, *m_lists, *m_queries, Favourites::filePath(m_dataFolder), this);
    m_waiter = new SlotWaiter(m_desktop.clock(), this);
    cmdExit = makeControl<QPushButton>(this, "cmdExit");

    WindowState::Controls state;
    state.window = this;
    state.tabs = tabSelect;
    state.serverList = rzrPSI;
    state.panes = m_details->splitter();
    state.firstPaneDefault = [this] { return m_details->playersPaneWidth(); };
    state.lists = {{m_playerPane->view(), Keys::PlayerList.columns},
                   {m_serverPane->view(), Keys::ServerList.columns},
                   {m_details->players(), Keys::ServerPlayers.columns},
                   {m_details->rules(), Keys::ServerRules.columns}};
    state.playerName = m_joinPanel->playerName();
    state.password = m_joinPanel->password();
    state.boxes = {
        {m_find->box(), Keys::FindBox}, {state.playerName, Keys::PlayerNameBox}, {state.password, Keys::PasswordBox}};
    m_state = new WindowState(m_settings, state);
}

void FrmMain::createMenu()
{
    m_menu = new ListMenu(
        m_settings, *m_lists, Favourites::filePath(m_dataFolder), [this]() -> const ListPane& { return shownList(); },
        this);
    m_menu->copyAddressOnCtrlC(*m_playerPane);
    connect(m_menu, &ListMenu::selectServer, this, &FrmMain::selectServer);
    connect(m_menu, &ListMenu::status, this, &FrmMain::setStatus);
}

void FrmMain::connectQueries()
{
    connect(m_queries, &QueryController::busyChanged, this, &FrmMain::setBusy);
    connect(m_queries, &QueryController::started, this, [this] {
        m_selection->clearNames();
        lblServers->clear();
        lblPlayers->clear();
        m_selection->clear();
        m_lists->clear();
    });
    connect(m_queries, &QueryController::querying, this, &FrmMain::updateCounters);
    connect(m_queries, &QueryController::answers, this, &FrmMain::addAnswers);
    connect(m_queries, &QueryController::refreshed, this, &FrmMain::applyRefresh);
    // The lists are rebuilt and sorted by the last column click once a
    // query ends; during it rows were appended as they came.
    connect(m_queries, &QueryController::ended, this, [this] {
        UpdateServerList();
        UpdatePlayerList();
    });
    connect(m_queries, &QueryController::masterTimedOut, this, [this] {
        updateCounters();
        if (m_desktop.message(this, Desktop::Icon::Critical, tr("Quake 4 Vantage"), m_queries->timedOutText(),
                              QMessageBox::Retry | QMessageBox::Cancel) == QMessageBox::Retry)
            m_queries->startMasterQuery();
    });
}

void FrmMain::connectLists()
{
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(tabSelect, &QTabBar::currentChanged, this, &FrmMain::showView);
    connect(m_serverPane, &ListPane::rowClicked, this, [this](const QModelIndex& index) {
        showServer(index);
        if (m_selection->server() >= 0)
            m_queries->refresh(m_lists->server(m_selection->server()));
    });
    connect(m_playerPane, &ListPane::rowClicked, this, &FrmMain::showPlayer);
    for (ListPane* pane : {m_serverPane, m_playerPane}) {
        connect(pane, &ListPane::menuRequested, this,
                [this, pane](const QModelIndex& index, const QPoint& at) { showMenu(*pane, index, at); });
        connect(pane, &ListPane::rowDoubleClicked, this, [this, pane] { joinFrom(*pane); });
    }
    // Keyboard moves show the row like a click, without menu or refresh.
    connect(m_serverPane->view()->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FrmMain::showServer);
    connect(m_playerPane->view()->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FrmMain::showPlayer);

    connect(m_find, &FindBar::found, this,
            [this](const QModelIndex& index) { &shownList() == m_playerPane ? showPlayer(index) : showServer(index); });
    connect(m_find, &FindBar::selectionCleared, m_selection, &ServerSelection::clearNames);
    connect(m_find, &FindBar::status, this, &FrmMain::setStatus);

    connect(m_joinPanel, &JoinPanel::joinRequested, this, [this] {
        shownList().view()->setLastButton(Qt::LeftButton);
        joinFrom(shownList());
    });
    connect(&m_joinPanel->flow(), &JoinFlow::status, this, &FrmMain::setStatus);
    connect(&m_joinPanel->flow(), &JoinFlow::closeRequested, this, &QWidget::close);

    connect(cmdOrganise, &QPushButton::clicked, this, [this] {
        // A new editor each time: it reads the file as it is now.
        auto* editor = new FrmFavourites(m_settings, m_dataFolder, this);
        editor->setAttribute(Qt::WA_DeleteOnClose);
        editor->show();
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
}

void FrmMain::layOutControls()
{
    auto* titleRow = new QHBoxLayout;
    titleRow->addWidget(lblAbout);
    titleRow->addStretch();

    auto* views = new QVBoxLayout;
    views->setSpacing(0);
    views->addWidget(tabSelect);
    views->addWidget(m_playerPane->view(), 1);
    views->addWidget(rzrPSI, 1);

    auto* serverNameRow = new QHBoxLayout;
    serverNameRow->addWidget(m_selection->serverNameCaption());
    serverNameRow->addWidget(m_selection->serverName(), 1);

    auto* findRow = new QHBoxLayout;
    findRow->addWidget(m_find->box(), 1);
    findRow->addWidget(m_find->button());
    findRow->addWidget(m_find->friendButton());
    findRow->addSpacing(12);
    findRow->addWidget(lblPlayers);
    findRow->addSpacing(12);
    findRow->addWidget(lblServers);

    auto* statusRow = new QHBoxLayout;
    statusRow->addWidget(m_queryBar->statusLine(), 3);
    statusRow->addWidget(m_queryBar->progressBar(), 2);
    statusRow->addWidget(cmdStopWaiting);

    auto* buttonRow = new QHBoxLayout;
    buttonRow->addWidget(m_queryBar->buttons(), 1);
    buttonRow->addWidget(cmdExit);

    auto* dialogRow = new QHBoxLayout;
    dialogRow->addWidget(cmdOrganise);
    dialogRow->addWidget(cmdFilters);
    dialogRow->addWidget(cmdOptions);
    dialogRow->addWidget(cmdRecent);
    dialogRow->addStretch();

    auto* main = new QVBoxLayout(this);
    main->addLayout(titleRow);
    main->addLayout(views, 1);
    main->addLayout(serverNameRow);
    main->addWidget(m_joinPanel);
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

    m_queryBar->retranslate();
    cmdOrganise->setText(tr("Favourites"));
    cmdFilters->setText(tr("Filters"));
    cmdOptions->setText(tr("Options"));
    cmdRecent->setText(tr("Recently Played"));
    cmdStopWaiting->setText(tr("Stop Waiting"));
    cmdExit->setText(tr("Exit"));
    m_joinPanel->retranslate();
    m_find->retranslate();

    m_serverPane->view()->setAccessibleName(tr("Servers"));
    m_playerPane->view()->setAccessibleName(tr("Players"));
    m_menu->retranslate();
    m_lists->servers().retranslate();
    m_lists->players().retranslate();
    m_details->retranslate();
}

ColumnLayout::SortState FrmMain::serverSort() const
{
    return m_serverPane->sort();
}

ColumnLayout::SortState FrmMain::playerSort() const
{
    return m_playerPane->sort();
}

void FrmMain::showView(int tab)
{
    const bool players = tab == PlayersTab;
    m_playerPane->view()->setVisible(players);
    // The panes go with rzrPSI: hiding them on their own would make the
    // splitter hand their height to the server list.
    rzrPSI->setVisible(!players);
    m_menu->setPlayersShown(players);
    if (!players && m_state->initialSizeApplied())
        m_state->restoreSplitters();
}

void FrmMain::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_state->resized();
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
        auto* about = new FrmAbout(m_desktop, QUrl(QStringLiteral(Q4V_HOME_PAGE)), QStringLiteral(Q4V_LICENCE), this);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->setWindowModality(Qt::WindowModal);
        about->open();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FrmMain::setBusy(bool busy)
{
    cmdOptions->setEnabled(!busy);
    cmdOrganise->setEnabled(!busy);
    lblAbout->setVisible(!busy);
}

void FrmMain::setStatus(const QString& text, StatusTone tone)
{
    m_queryBar->setStatus(text, tone);
}

void FrmMain::updateCounters()
{
    lblServers->setText(tr("%n servers found", nullptr, m_lists->visibleServers().rowCount()));
    lblPlayers->setText(tr("%n players found", nullptr, m_lists->visiblePlayers().rowCount()));
}

void FrmMain::addAnswers(const QList<ServerRecord>& batch)
{
    m_lists->append(batch);
    updateCounters();
    // A query the user runs meanwhile asks the awaited server too.
    if (m_waiter->isWaiting()) {
        for (const ServerRecord& server : batch)
            m_waiter->answered(server);
    }
}

void FrmMain::applyRefresh(const ServerRecord& server)
{
    applyUpdates({server});
}

void FrmMain::applyUpdates(const QList<ServerRecord>& batch)
{
    const QList<int> indexes = m_lists->replace(batch);
    if (indexes.contains(m_selection->server()) && m_selection->server() >= 0)
        m_selection->refreshed(m_selection->server());
    for (const ServerRecord& server : batch)
        m_waiter->answered(server);
    updateCounters();
}

FrmHistory* FrmMain::openHistory()
{
    if (!m_history) {
        m_history = new FrmHistory(m_settings, m_dataFolder, this);
        m_history->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_history, &FrmHistory::queryRequested, m_queries, &QueryController::startHistoryQuery);
        connect(m_history, &FrmHistory::serverChosen, this, [this](const QString& address, const QString& name) {
            if (selectServer(address)) {
                raise();
                activateWindow();
            } else {
                m_history->tell(
                    tr("%1 is not listed now: \"Query Recently Played\" asks every server you played on.").arg(name));
            }
        });
    }
    m_history->show();
    m_history->raise();
    m_history->activateWindow();
    return m_history;
}

void FrmMain::connectExtras()
{
    connect(m_queries, &QueryController::updated, this, &FrmMain::applyUpdates);
    connect(&m_settings, &SettingsStore::changed, this, [this](const QString& key) {
        if (key == Keys::Friends.key)
            m_lists->setFriends(m_settings.value(Keys::Friends));
    });
    m_find->setHasFriends([this] { return !m_lists->friends().isEmpty(); });
    connect(cmdRecent, &QPushButton::clicked, this, &FrmMain::openHistory);

    connect(m_autoRefresh, &AutoRefresh::status, this, &FrmMain::setStatus);
    connect(m_autoRefresh, &AutoRefresh::selectServer, this, [this](const QString& address) {
        showNormal();
        raise();
        activateWindow();
        selectServer(address);
    });

    JoinFlow& flow = m_joinPanel->flow();
    connect(&flow, &JoinFlow::joining, m_waiter, &SlotWaiter::cancel);
    connect(&flow, &JoinFlow::waitRequested, this, [this](const JoinFlow::Target& target, const QString& password) {
        const int index = m_lists->servers().store().indexOf(target.address);
        // Only a listed server can be asked again; one gone meanwhile is
        // joined at once, as the documented join would.
        if (index >= 0)
            m_waiter->begin(target, password, m_lists->server(index));
        else
            m_joinPanel->flow().start(target, password);
    });
    connect(&flow, &JoinFlow::joined, this, [this] {
        if (m_history)
            m_history->reload();
    });
    connect(m_waiter, &SlotWaiter::askAgain, m_queries, &QueryController::requery);
    connect(m_waiter, &SlotWaiter::joinNow, &flow, &JoinFlow::start);
    connect(m_waiter, &SlotWaiter::status, this, &FrmMain::setStatus);
    connect(m_waiter, &SlotWaiter::waitingChanged, cmdStopWaiting, &QWidget::setVisible);
    connect(cmdStopWaiting, &QPushButton::clicked, this, [this] {
        m_waiter->cancel();
        setStatus(tr("Stopped waiting for a free slot."), StatusTone::Hint);
    });
}

void FrmMain::UpdateServerList()
{
    m_lists->setRules(m_frmFilters->filters(), m_frmFilters->builtIn());
    m_serverPane->rebuild();
    updateCounters();
}

void FrmMain::UpdatePlayerList()
{
    m_playerPane->rebuild();
    updateCounters();
}

void FrmMain::ShowServerName(const QString& name)
{
    m_selection->ShowServerName(name);
}

void FrmMain::ShowPlayerName(const QString& name)
{
    m_joinPanel->ShowPlayerName(name);
}

void FrmMain::showPlayer(const QModelIndex& index)
{
    const int row = m_playerPane->sourceRow(index);
    if (row >= 0)
        m_selection->showPlayer(m_lists->players().row(row).server, m_lists->players().row(row).player);
}

void FrmMain::showServer(const QModelIndex& index)
{
    const int row = m_serverPane->sourceRow(index);
    if (row >= 0)
        m_selection->showServer(row);
}

void FrmMain::showMenu(ListPane& pane, const QModelIndex& index, const QPoint& at)
{
    &pane == m_playerPane ? showPlayer(index) : showServer(index);
    if (pane.list().rowCount() > 0)
        m_menu->popup(at);
}

bool FrmMain::selectServer(const QString& address)
{
    const VisibleList& servers = m_lists->visibleServers();
    for (int visible = 0; visible < servers.rowCount(); ++visible) {
        if (servers.index(visible, ServerListModel::Address).data().toString() != address)
            continue;
        tabSelect->setCurrentIndex(ServersTab);
        const QModelIndex first = servers.index(visible, 0);
        m_serverPane->view()->setCurrentIndex(first);
        m_serverPane->view()->scrollTo(first);
        showServer(first);
        m_queries->refresh(m_lists->server(m_selection->server()));
        return true;
    }
    return false;
}

ListPane& FrmMain::shownList() const
{
    return tabSelect->currentIndex() == PlayersTab ? *m_playerPane : *m_serverPane;
}

void FrmMain::joinFrom(const ListPane& pane)
{
    const int server = pane.selectedServer();
    if (pane.list().rowCount() == 0 || server < 0)
        return;
    const ServerRecord& record = m_lists->server(server);
    m_joinPanel->flow().join(JoinFlow::Target{record.endpointText(), record.isPassworded(),
                                              m_lists->servers().plainName(server), !SlotWait::hasFreeSlot(record)});
}

void FrmMain::closeEvent(QCloseEvent* event)
{
    if (m_queries->isRunning())
        m_queries->cancel();
    const SettingsStore::Batch batch(m_settings);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != this && window->isVisible())
            window->close();
    }
    m_state->writeOnClose();
    event->accept();
}
