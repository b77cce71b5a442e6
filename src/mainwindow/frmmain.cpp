// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/frmmain.h"

#include "editors/frmfilters.h"
#include "game/gameinstalls.h"
#include "mainwindow/autorefresh.h"
#include "mainwindow/dialogbar.h"
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
#include "mainwindow/titlelabel.h"
#include "mainwindow/visiblelist.h"
#include "mainwindow/windowstate.h"
#include "platform/desktop.h"
#include "presentation/frmoptions.h"
#include "presentation/language.h"
#include "presentation/themeservice.h"
#include "update/updateflow.h"
#include "userdata/favourites.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"
#include "widgets/mnemonics.h"
#include "widgets/namedcontrol.h"
#include "widgets/reportview.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

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
    connectQueries();
    connectLists();
    connectJoin();
    layOutControls();
    retranslateUi();

    m_state->restore();
    showView(m_tabs->playersShown());
    if (m_language.apply(m_settings.value(Keys::Language)))
        retranslateUi();
    m_serverPane->restoreSort();
    m_playerPane->restoreSort();
    m_themes->applyFile();

    // The installer goes where the program keeps what it writes: beside a
    // portable copy, in the user's folder for an installed one.
    m_updates = new UpdateFlow(m_settings, m_desktop, m_dataFolder, this);
    connect(m_updates, &UpdateFlow::quitRequested, this, &QWidget::close);
    m_updates->checkAtStart();
}

FrmMain::~FrmMain() = default;

void FrmMain::createControls()
{
    lblAbout = new TitleLabel(m_desktop, this);
    m_themes = new ThemeService(m_dataFolder, this);
    m_lists = new ServerLists(this);
    m_lists->setClock([this] { return m_desktop.clock().nowMs(); });
    m_lists->setFriends(m_settings.value(Keys::Friends));
    // Looked for when first needed (a join, the options), never at start.
    m_installs = new GameInstalls(m_desktop.gamePlaces(), this);
    m_dialogs = new DialogBar(
        m_settings, m_desktop, m_language, *m_themes, *m_installs, m_dataFolder,
        [this](const QString& address) { return selectServer(address); }, this);
    m_lists->setRules(m_dialogs->filters().filters(), m_dialogs->filters().builtIn());
    m_queries = new QueryController(m_settings, m_dataFolder, m_desktop.clock(), this);
    m_lists->servers().setCountries(&m_queries->countries());
    lblAbout->setNotes([this] { return m_queries->countries().status(); });
    // Before the query bar's Retry box, so the box shows the counts as they are.
    connect(m_queries, &QueryController::masterTimedOut, this, &FrmMain::updateCounters);

    m_tabs = new ListTabs(m_settings, *m_lists, this);
    m_serverPane = &m_tabs->servers();
    m_playerPane = &m_tabs->players();
    m_details = &m_tabs->details();

    m_joinPanel = new JoinPanel(
        m_settings, m_desktop, *m_installs, Favourites::filePath(m_dataFolder), PlayHistory::filePath(m_dataFolder),
        [this](const QString& address) {
            const int index = m_lists->servers().store().indexOf(address);
            return index >= 0 ? &m_lists->server(index) : nullptr;
        },
        this);
    m_waiter = &m_joinPanel->waiter();
    m_selection = new ServerSelection(
        *m_lists, *m_details, [this](const QString& name) { m_joinPanel->ShowPlayerName(name); }, this);
    m_selection->followMapCheck(m_joinPanel->flow());
    m_selection->setCountries(&m_queries->countries());

    m_find = new FindBar([this] { return FindBar::Target{shownList().view(), shownList().visibleNames()}; }, this);
    m_find->setHasFriends([this] { return !m_lists->friends().isEmpty(); });
    lblPlayers = makeControl<QLabel>(this, "lblPlayers");
    lblServers = makeControl<QLabel>(this, "lblServers");
    m_queryBar = new QueryBar(*m_queries, m_desktop, this);
    m_autoRefresh =
        new AutoRefresh(m_settings, m_desktop, *m_lists, *m_queries, Favourites::filePath(m_dataFolder), this);
    cmdExit = makeControl<QPushButton>(this, "cmdExit");

    m_menu = new ListMenu(
        m_settings, *m_lists, Favourites::filePath(m_dataFolder), [this]() -> const ListPane& { return shownList(); },
        this);
    m_menu->copyAddressOnCtrlC(*m_playerPane);

    WindowState::Controls state;
    state.window = this;
    state.tabs = m_tabs->tabs();
    state.serverList = m_tabs->serverSplitter();
    state.panes = m_details;
    state.firstPaneDefault = [this] { return m_details->playersPaneWidth(); };
    // Most of the height for the servers, the rest for the selected one.
    state.serverListDefault = [this] { return m_tabs->serverSplitter()->height() * 3 / 5; };
    state.lists = {{m_playerPane->view(), Keys::PlayerList.columns},
                   {m_serverPane->view(), Keys::ServerList.columns},
                   {m_details->players(), Keys::ServerPlayers.columns},
                   {m_details->rules(), Keys::ServerRules.columns}};
    state.playerName = m_joinPanel->playerName();
    state.boxes = {{m_find->box(), Keys::FindBox}, {state.playerName, Keys::PlayerNameBox}};
    m_state = new WindowState(m_settings, state);
}

void FrmMain::connectQueries()
{
    connect(m_queries, &QueryController::busyChanged, this, [this](bool busy) {
        m_dialogs->setBusy(busy);
        lblAbout->setVisible(!busy);
    });
    connect(m_queries, &QueryController::started, this, [this] {
        lblServers->clear();
        lblPlayers->clear();
        m_selection->clear();
        m_lists->clear();
    });
    connect(m_queries, &QueryController::querying, this, &FrmMain::updateCounters);
    connect(m_queries, &QueryController::answers, this, &FrmMain::addAnswers);
    connect(m_queries, &QueryController::refreshed, this,
            [this](const ServerRecord& server) { applyUpdates({server}); });
    connect(m_queries, &QueryController::updated, this, &FrmMain::applyUpdates);
    // The lists are rebuilt and sorted by the last column click once a
    // query ends; during it rows were appended as they came.
    connect(m_queries, &QueryController::ended, this, &FrmMain::rebuildLists);
    connect(m_dialogs, &DialogBar::historyQueryRequested, m_queries, &QueryController::startHistoryQuery);
    connect(m_autoRefresh, &AutoRefresh::status, this, &FrmMain::setStatus);
    connect(m_autoRefresh, &AutoRefresh::selectServer, this, [this](const QString& address) {
        showNormal();
        raise();
        activateWindow();
        selectServer(address);
    });
}

void FrmMain::connectLists()
{
    connect(cmdExit, &QPushButton::clicked, this, &QWidget::close);
    connect(m_tabs, &ListTabs::shownChanged, this, &FrmMain::showView);
    connect(m_tabs, &ListTabs::status, this, &FrmMain::setStatus);
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
    connect(m_menu, &ListMenu::selectServer, this, &FrmMain::selectServer);
    connect(m_menu, &ListMenu::joinRequested, this, [this] { joinFrom(shownList()); });
    connect(m_menu, &ListMenu::refreshRequested, m_queries, &QueryController::requery);
    connect(m_details, &ServerDetails::friendRequested, m_menu, &ListMenu::addFriend);
    connect(m_menu, &ListMenu::status, this, &FrmMain::setStatus);
    connect(m_menu, &ListMenu::mapFilterRequested, this, [this](const QString& map) {
        m_dialogs->filters().putFilter({QStringLiteral("si_map"), map});
        setStatus(tr("Only servers on %1 are listed now; \"Filters\" takes the filter away.").arg(map),
                  StatusTone::Done);
    });

    connect(m_find, &FindBar::found, this,
            [this](const QModelIndex& index) { &shownList() == m_playerPane ? showPlayer(index) : showServer(index); });
    connect(m_find, &FindBar::selectionCleared, m_selection, &ServerSelection::clearNames);
    connect(m_find, &FindBar::status, this, &FrmMain::setStatus);

    connect(m_dialogs, &DialogBar::filtersChanged, this, &FrmMain::rebuildLists);
    if (!m_dataFolder.isEmpty())
        m_lists->followFavourites(Favourites::filePath(m_dataFolder));
    connect(m_queryBar, &QueryBar::sourcesWanted, this, [this] {
        if (FrmOptions* options = m_dialogs->openOptions())
            options->showTab(FrmOptions::SourcesTab);
    });
    connect(&m_settings, &SettingsStore::changed, this, [this](const QString& key) {
        if (key == Keys::Friends.key)
            m_lists->setFriends(m_settings.value(Keys::Friends));
    });
}

void FrmMain::connectJoin()
{
    JoinFlow& flow = m_joinPanel->flow();
    connect(m_joinPanel, &JoinPanel::joinRequested, this, [this] { joinFrom(shownList()); });
    connect(&flow, &JoinFlow::status, this, &FrmMain::setStatus);
    connect(&flow, &JoinFlow::closeRequested, this, &QWidget::close);
    connect(&flow, &JoinFlow::joined, m_dialogs, &DialogBar::joined);
    connect(m_waiter, &SlotWaiter::askAgain, m_queries, &QueryController::requery);
    connect(m_waiter, &SlotWaiter::status, this, &FrmMain::setStatus);
}

void FrmMain::layOutControls()
{
    // The counters, one above the other beside the progress bar: as tall as
    // the status line, wide enough for five digits in every language, so
    // nothing moves as they grow.
    auto* counters = new QVBoxLayout;
    counters->setSpacing(0);
    counters->addWidget(lblPlayers);
    counters->addWidget(lblServers);
    m_queryBar->addToStatusRow(counters);
    m_queryBar->addToStatusRow(m_joinPanel->stopWaitingButton());
    m_queryBar->addToButtonRow(cmdExit);
    m_dialogs->placeFocusAfter(cmdExit);
    m_queryBar->setFocus();

    auto* main = new QVBoxLayout(this);
    main->addWidget(lblAbout, 0, Qt::AlignLeft);
    main->addWidget(m_tabs, 1);
    for (QWidget* row : std::initializer_list<QWidget*>{m_selection, m_joinPanel, m_find, m_queryBar, m_dialogs})
        main->addWidget(row);
}

void FrmMain::retranslateUi()
{
    setWindowTitle(tr("Quake 4 Vantage"));
    lblAbout->setText(tr("Quake 4 Vantage"));
    lblAbout->setToolTip(tr("About Quake 4 Vantage"));

    m_queryBar->retranslate();
    m_dialogs->retranslate();
    cmdExit->setText(tr("Exit"));
    lblPlayers->setMinimumWidth(lblPlayers->fontMetrics().horizontalAdvance(tr("%n players found", nullptr, 88888)));
    lblServers->setMinimumWidth(lblServers->fontMetrics().horizontalAdvance(tr("%n servers found", nullptr, 88888)));
    m_joinPanel->retranslate();
    m_find->retranslate();

    m_tabs->retranslate();
    m_menu->retranslate();
    m_queries->setCountryLanguage(Language::localeName(m_language.current()));
    m_lists->retranslate();
    m_selection->retranslate();
    // Counters already shown say their numbers in the new language now, not
    // at the next query.
    if (!lblServers->text().isEmpty())
        updateCounters();
    Mnemonics::assign(this);
}

ColumnLayout::SortState FrmMain::serverSort() const
{
    return m_serverPane->sort();
}

ColumnLayout::SortState FrmMain::playerSort() const
{
    return m_playerPane->sort();
}

void FrmMain::showView(bool players)
{
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

void FrmMain::setStatus(const QString& text, StatusTone tone)
{
    m_queryBar->setStatus(text, tone);
}

void FrmMain::updateCounters()
{
    lblServers->setText(tr("%n servers found", nullptr, m_lists->visibleServers().rowCount()));
    lblPlayers->setText(tr("%n players found", nullptr, m_lists->visiblePlayers().rowCount()));
    m_dialogs->showHidden(m_lists->servers().rowCount() - m_lists->visibleServers().rowCount());
}

void FrmMain::addAnswers(const QList<ServerRecord>& batch)
{
    m_lists->append(batch);
    updateCounters();
    // A query the user runs meanwhile asks the awaited server too.
    m_waiter->answered(batch);
}

void FrmMain::applyUpdates(const QList<ServerRecord>& batch)
{
    const QList<int> indexes = m_lists->replace(batch);
    if (indexes.contains(m_selection->server()) && m_selection->server() >= 0)
        m_selection->refreshed(m_selection->server());
    m_waiter->answered(batch);
    updateCounters();
}

void FrmMain::rebuildLists()
{
    UpdateServerList();
    UpdatePlayerList();
}

void FrmMain::UpdateServerList()
{
    m_lists->setRules(m_dialogs->filters().filters(), m_dialogs->filters().builtIn());
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
    const QModelIndex row = m_serverPane->select(m_lists->servers().store().indexOf(address));
    if (!row.isValid())
        return false;
    m_tabs->showServers();
    showServer(row);
    m_queries->refresh(m_lists->server(m_selection->server()));
    return true;
}

ListPane& FrmMain::shownList() const
{
    return m_tabs->shown();
}

void FrmMain::joinFrom(const ListPane& pane)
{
    const int server = pane.selectedServer();
    if (pane.list().rowCount() > 0 && server >= 0)
        m_joinPanel->flow().join(JoinFlow::Target::of(m_lists->server(server), m_lists->servers().plainName(server)));
}

void FrmMain::closeEvent(QCloseEvent* event)
{
    if (m_queries->isRunning())
        m_queries->cancel();
    const SettingsStore::Batch batch(m_settings);
    Desktop::closeOtherWindows(this);
    m_state->writeOnClose();
    m_joinPanel->savePasswords();
    event->accept();
}
