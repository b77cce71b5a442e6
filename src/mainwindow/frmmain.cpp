#include "frmmain.h"

#include "colourcodes.h"
#include "copycommands.h"
#include "desktop.h"
#include "favourites.h"
#include "findbar.h"
#include "frmfavourites.h"
#include "frmfilters.h"
#include "historycombobox.h"
#include "joinflow.h"
#include "language.h"
#include "listpane.h"
#include "multicolorlabel.h"
#include "querycontroller.h"
#include "reportview.h"
#include "serverdetails.h"
#include "serverlists.h"
#include "settingsstore.h"
#include "statusline.h"
#include "visiblelists.h"
#include "windowstate.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabBar>
#include <QVBoxLayout>

namespace {

template <typename T> T* makeControl(QWidget* parent, const char* objectName)
{
    auto* control = new T(parent);
    control->setObjectName(QLatin1String(objectName));
    if constexpr (std::is_same_v<T, QPushButton>)
        control->setAutoDefault(false);
    return control;
}

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
    layOutControls();
    retranslateUi();

    m_state->restore();
    showView(tabSelect->currentIndex());
    if (m_language.apply(m_settings.value(Keys::Language)))
        retranslateUi();
    m_serverPane->restoreSort();
    m_playerPane->restoreSort();
}

FrmMain::~FrmMain() = default;

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

    m_lists = new ServerLists(this);
    m_frmFilters = new FrmFilters(m_settings, m_dataFolder, this);
    m_frmFilters->setObjectName(QStringLiteral("frmFilters"));
    m_lists->setRules(m_frmFilters->filters(), m_frmFilters->builtIn());
    m_queries = new QueryController(m_settings, Favourites::filePath(m_dataFolder), this);

    rzrPSI = new QSplitter(Qt::Vertical, this);
    rzrPSI->setObjectName(QStringLiteral("rzrPSI"));
    rzrPSI->setChildrenCollapsible(false);
    m_serverPane = new ListPane(m_settings, Keys::ServerList, m_lists->servers(), m_lists->visibleServers(),
                                QStringLiteral("lstServerList"), rzrPSI);
    m_details = new ServerDetails(m_settings, rzrPSI);
    rzrPSI->addWidget(m_serverPane->view());
    rzrPSI->addWidget(m_details->splitter());
    // The stored size is that of the first pane.
    rzrPSI->setStretchFactor(0, 0);
    rzrPSI->setStretchFactor(1, 1);
    m_playerPane = new ListPane(m_settings, Keys::PlayerList, m_lists->players(), m_lists->visiblePlayers(),
                                QStringLiteral("lstPlayerList"), this);
    m_playerPane->view()->installEventFilter(this);

    lblSName = makeControl<QLabel>(this, "lblSName");
    mclSName = makeControl<MulticolorLabel>(this, "mclSName");

    fraJoin = makeControl<QFrame>(this, "fraJoin");
    fraJoin->setFrameShape(QFrame::StyledPanel);
    lblPlayerName = makeControl<QLabel>(fraJoin, "lblPlayerName");
    cmbPlayerName = makeControl<HistoryComboBox>(fraJoin, "cmbPlayerName");
    lblPlayerName->setBuddy(cmbPlayerName);
    lblPassword = makeControl<QLabel>(fraJoin, "lblPassword");
    cmbPassword = makeControl<HistoryComboBox>(fraJoin, "cmbPassword");
    lblPassword->setBuddy(cmbPassword);
    lblPName = makeControl<QLabel>(fraJoin, "lblPName");
    mclPName = makeControl<MulticolorLabel>(fraJoin, "mclPName");
    cmdJoin = makeControl<QPushButton>(fraJoin, "cmdJoin");
    cmdJoinIP = makeControl<QPushButton>(fraJoin, "cmdJoinIP");
    m_join =
        new JoinFlow(m_settings, m_desktop, Favourites::filePath(m_dataFolder), *cmbPlayerName, *cmbPassword, this);

    m_find = new FindBar(
        [this] {
            const ListPane& pane = shownList();
            // The text of a row is its first column, the player's or the
            // server's plain name, read straight from the hidden list
            // (quick at 150,000 rows).
            const bool players = &pane == m_playerPane;
            auto rows = std::make_shared<std::vector<int>>(pane.list().sourceRows());
            return FindBar::Target{pane.view(), [this, players, rows](int row) {
                                       const int source = (*rows)[size_t(row)];
                                       return players ? m_lists->players().row(source).plainName
                                                      : m_lists->servers().plainName(source);
                                   }};
        },
        this);
    lblPlayers = makeControl<QLabel>(this, "lblPlayers");
    lblServers = makeControl<QLabel>(this, "lblServers");
    lblStatus = new StatusLine(this);
    prbProgress = makeControl<QProgressBar>(this, "prbProgress");
    prbProgress->setRange(0, 1);
    prbProgress->setValue(0);
    prbProgress->setTextVisible(false);

    fraQuery = makeControl<QFrame>(this, "fraQuery");
    cmdGet = makeControl<QPushButton>(fraQuery, "cmdGet");
    cmdFav = makeControl<QPushButton>(fraQuery, "cmdFav");
    cmdCancel = makeControl<QPushButton>(fraQuery, "cmdCancel");
    cmdCancel->setEnabled(false);
    cmdCancel->setVisible(false);
    keepPlaceWhenHidden(cmdCancel);
    cmdOrganise = makeControl<QPushButton>(this, "cmdOrganise");
    cmdFilters = makeControl<QPushButton>(this, "cmdFilters");
    cmdOptions = makeControl<QPushButton>(this, "cmdOptions");
    cmdExit = makeControl<QPushButton>(this, "cmdExit");

    m_state = new WindowState(m_settings, WindowState::Controls{this,
                                                                tabSelect,
                                                                rzrPSI,
                                                                m_details->splitter(),
                                                                {{m_playerPane->view(), Keys::PlayerList.columns},
                                                                 {m_serverPane->view(), Keys::ServerList.columns},
                                                                 {m_details->players(), Keys::ServerPlayers.columns},
                                                                 {m_details->rules(), Keys::ServerRules.columns}},
                                                                {{m_find->box(), Keys::FindBox},
                                                                 {cmbPlayerName, Keys::PlayerNameBox},
                                                                 {cmbPassword, Keys::PasswordBox}},
                                                                cmbPlayerName,
                                                                cmbPassword});
}

void FrmMain::createMenu()
{
    mPopupAlt = makeControl<QMenu>(this, "mPopupAlt");
    mPopAdd = mPopupAlt->addAction(QString());
    mPopAdd->setObjectName(QStringLiteral("mPopAdd"));
    m_copy = new CopyCommands(
        *mPopupAlt, m_settings,
        [this] {
            return CopyCommands::Target{shownList().view(), shownList().keys().columns};
        },
        CopyText::LineSeparator);
    mPopSelServer = mPopupAlt->addAction(QString());
    mPopSelServer->setObjectName(QStringLiteral("mPopSelServer"));
    connect(mPopAdd, &QAction::triggered, this, &FrmMain::addToFavourites);
    connect(mPopSelServer, &QAction::triggered, this, &FrmMain::selectServerOfPlayer);
}

void FrmMain::connectQueries()
{
    connect(cmdGet, &QPushButton::clicked, m_queries, &QueryController::startMasterQuery);
    connect(cmdFav, &QPushButton::clicked, m_queries, &QueryController::startFavouritesQuery);
    connect(cmdCancel, &QPushButton::clicked, m_queries, &QueryController::cancel);
    connect(m_queries, &QueryController::busyChanged, this, &FrmMain::setBusy);
    connect(m_queries, &QueryController::status, this, &FrmMain::setStatus);
    connect(m_queries, &QueryController::progress, this, [this](int value, int maximum) {
        prbProgress->setMaximum(maximum);
        prbProgress->setValue(value);
    });
    connect(m_queries, &QueryController::started, this, [this] {
        clearNameLabels();
        lblServers->clear();
        lblPlayers->clear();
        emptyLists();
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
        if (m_desktop.message(this, Desktop::Icon::Critical, tr("Quake 4 Vantage"), tr("Master Servers Timed Out"),
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
        if (m_selectedServer >= 0)
            m_queries->refresh(m_lists->server(m_selectedServer));
    });
    connect(m_playerPane, &ListPane::rowClicked, this, &FrmMain::showPlayer);
    for (ListPane* pane : {m_serverPane, m_playerPane}) {
        connect(pane, &ListPane::menuRequested, this,
                [this, pane](const QModelIndex& index) { showMenu(*pane, index); });
        connect(pane, &ListPane::rowDoubleClicked, this, [this, pane] { joinFrom(*pane); });
    }
    // Keyboard moves show the row like a click, without menu or refresh.
    connect(m_serverPane->view()->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FrmMain::showServer);
    connect(m_playerPane->view()->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &FrmMain::showPlayer);

    connect(m_find, &FindBar::found, this,
            [this](const QModelIndex& index) { &shownList() == m_playerPane ? showPlayer(index) : showServer(index); });
    connect(m_find, &FindBar::selectionCleared, this, &FrmMain::clearNameLabels);
    connect(m_find, &FindBar::status, this, &FrmMain::setStatus);

    connect(cmbPlayerName, &HistoryComboBox::enterPressed, this,
            [this] { cmbPlayerName->remember(cmbPlayerName->currentText()); });
    connect(cmbPassword, &HistoryComboBox::enterPressed, this,
            [this] { cmbPassword->remember(cmbPassword->currentText()); });
    connect(cmdJoin, &QPushButton::clicked, this, [this] {
        cmbPlayerName->remember(cmbPlayerName->currentText());
        cmbPassword->remember(cmbPassword->currentText());
        shownList().view()->setLastButton(Qt::LeftButton);
        joinFrom(shownList());
    });
    connect(cmdJoinIP, &QPushButton::clicked, m_join, &JoinFlow::joinByAddress);
    connect(m_join, &JoinFlow::status, this, &FrmMain::setStatus);
    connect(m_join, &JoinFlow::closeRequested, this, &QWidget::close);

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
    findRow->addWidget(m_find->box(), 1);
    findRow->addWidget(m_find->button());
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
    lblPlayerName->setText(tr("Name:"));
    lblPassword->setText(tr("Password:"));
    m_find->retranslate();

    m_serverPane->view()->setAccessibleName(tr("Servers"));
    m_playerPane->view()->setAccessibleName(tr("Players"));
    mPopAdd->setText(tr("&Add To Favourites"));
    m_copy->retranslate();
    mPopSelServer->setText(tr("&Select Server"));
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
    rzrPSI->setVisible(!players);
    m_details->splitter()->setVisible(!players);
    mPopSelServer->setVisible(players);
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
        m_desktop.message(this, Desktop::Icon::Information, tr("About Quake 4 Vantage"),
                          tr("Quake 4 Vantage %1\nA server browser for Quake 4.").arg(QStringLiteral(Q4V_VERSION)),
                          QMessageBox::Ok);
        return true;
    }
    if (watched == m_playerPane->view() && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_C && (key->modifiers() & Qt::ControlModifier)) {
            copyPlayersServerAddress();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void FrmMain::setBusy(bool busy)
{
    for (QWidget* control : std::initializer_list<QWidget*>{cmdFav, cmdGet, cmdOptions, cmdOrganise})
        control->setEnabled(!busy);
    cmdCancel->setEnabled(busy);
    cmdCancel->setVisible(busy);
    lblAbout->setVisible(!busy);
}

void FrmMain::setStatus(const QString& text, StatusTone tone)
{
    lblStatus->setStatus(text, tone);
}

void FrmMain::updateCounters()
{
    lblServers->setText(tr("%n servers found", nullptr, m_lists->visibleServers().rowCount()));
    lblPlayers->setText(tr("%n players found", nullptr, m_lists->visiblePlayers().rowCount()));
}

void FrmMain::emptyLists()
{
    m_selectedServer = -1;
    m_details->show(nullptr);
    m_lists->clear();
}

void FrmMain::addAnswers(const QList<ServerRecord>& batch)
{
    m_lists->append(batch);
    updateCounters();
}

void FrmMain::applyRefresh(const ServerRecord& server)
{
    const int index = m_lists->replace(server);
    if (index < 0)
        return;
    if (index == m_selectedServer) {
        ShowServerName(server.name);
        m_details->show(&m_lists->server(index));
    }
    updateCounters();
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
    const int row = m_playerPane->sourceRow(index);
    if (row < 0)
        return;
    const auto& player = m_lists->players().row(row);
    const ServerRecord& server = m_lists->server(player.server);
    ShowPlayerName(server.players.at(player.player).name);
    ShowServerName(server.name);
}

void FrmMain::showServer(const QModelIndex& index)
{
    const int row = m_serverPane->sourceRow(index);
    if (row < 0)
        return;
    m_selectedServer = row;
    ShowServerName(m_lists->server(row).name);
    ShowPlayerName(QString());
    m_details->show(&m_lists->server(row));
}

void FrmMain::showMenu(ListPane& pane, const QModelIndex& index)
{
    &pane == m_playerPane ? showPlayer(index) : showServer(index);
    if (pane.list().rowCount() > 0)
        mPopupAlt->popup(QCursor::pos());
}

void FrmMain::selectServerOfPlayer()
{
    const int row = m_playerPane->sourceRow(m_playerPane->view()->currentIndex());
    if (row < 0)
        return;
    const QString address = m_lists->server(m_lists->serverOfPlayer(row)).endpointText();
    VisibleList& servers = m_lists->visibleServers();
    for (int visible = 0; visible < servers.rowCount(); ++visible) {
        if (servers.index(visible, ServerListModel::Address).data().toString() != address)
            continue;
        tabSelect->setCurrentIndex(ServersTab);
        const QModelIndex first = servers.index(visible, 0);
        m_serverPane->view()->setCurrentIndex(first);
        m_serverPane->view()->scrollTo(first);
        showServer(first);
        m_queries->refresh(m_lists->server(m_selectedServer));
        return;
    }
}

ListPane& FrmMain::shownList() const
{
    return tabSelect->currentIndex() == PlayersTab ? *m_playerPane : *m_serverPane;
}

int FrmMain::selectedServer(const ListPane& pane) const
{
    const int row = pane.selectedSourceRow();
    if (row < 0)
        return -1;
    return &pane == m_playerPane ? m_lists->serverOfPlayer(row) : row;
}

void FrmMain::joinFrom(const ListPane& pane)
{
    const int server = selectedServer(pane);
    if (pane.list().rowCount() == 0 || server < 0)
        return;
    const ServerRecord& record = m_lists->server(server);
    m_join->join(JoinFlow::Target{record.endpointText(), record.isPassworded(), m_lists->servers().plainName(server)});
}

void FrmMain::addToFavourites()
{
    const int server = selectedServer(shownList());
    if (server < 0)
        return;
    // From the player list the name is the player's server, as its row shows it.
    if (!Favourites::appendToFile(Favourites::filePath(m_dataFolder), m_lists->server(server).endpointText(), QString(),
                                  m_lists->servers().plainName(server)))
        setStatus(tr("The favourites file could not be written."), StatusTone::Failed);
}

void FrmMain::copyPlayersServerAddress()
{
    const int row = m_playerPane->sourceRow(m_playerPane->view()->currentIndex());
    if (row < 0)
        return;
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(m_lists->server(m_lists->serverOfPlayer(row)).endpointText());
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
