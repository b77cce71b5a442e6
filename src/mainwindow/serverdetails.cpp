// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverdetails.h"

#include "mainwindow/rowmarkdelegate.h"
#include "mainwindow/serverplayersmodel.h"
#include "mainwindow/serverrulesmodel.h"
#include "query/records.h"
#include "userdata/settingsstore.h"
#include "widgets/copycommands.h"
#include "widgets/reportview.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSplitter>

ServerDetails::ServerDetails(SettingsStore& settings, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent)
    , m_settings(settings)
    , m_playersModel(new ServerPlayersModel(this))
    , m_rulesModel(new ServerRulesModel(this))
{
    setObjectName(QStringLiteral("rzrSPSI"));
    setChildrenCollapsible(false);
    m_players = new ReportView(m_playersModel, m_playersModel->designWidths(), this);
    m_players->setObjectName(QStringLiteral("lvwPlayers"));
    m_players->setItemDelegate(new RowMarkDelegate(m_players)); // pings in their tone
    m_rules = new ReportView(m_rulesModel, m_rulesModel->designWidths(), this);
    m_rules->setObjectName(QStringLiteral("lvwServerInfo"));
    addWidget(m_players);
    addWidget(m_rules);
    // The stored size is that of the first pane; it keeps it when the
    // window grows or shrinks.
    setStretchFactor(0, 0);
    setStretchFactor(1, 1);

    m_playersPane.view = m_players;
    m_playersPane.keys = Keys::ServerPlayers;
    m_rulesPane.view = m_rules;
    m_rulesPane.keys = Keys::ServerRules;
    setUp(m_playersPane, QStringLiteral("mPopupAltPlayers"), QStringLiteral("P"));
    setUp(m_rulesPane, QStringLiteral("mPopupAltServerInfo"), QStringLiteral("SI"));
    // The same player menu as the player list's: a friend is added here too.
    m_playersPane.menu->addSeparator();
    mPopAddFriend = m_playersPane.menu->addAction(QString());
    mPopAddFriend->setObjectName(QStringLiteral("mPopAddFriendP"));
    connect(mPopAddFriend, &QAction::triggered, this, [this] {
        if (const QString name = m_playersModel->plainNameAt(m_players->currentIndex().row()); !name.isEmpty())
            emit friendRequested(name);
    });
    retranslate();
}

int ServerDetails::playersPaneWidth() const
{
    const QHeaderView* header = m_players->header();
    int width = 0;
    for (int column = 0; column < header->count(); ++column)
        width += header->isSectionHidden(column) ? 0 : header->sectionSize(column);
    return width + 2 * m_players->frameWidth() + m_players->verticalScrollBar()->sizeHint().width();
}

void ServerDetails::setUp(Pane& pane, const QString& menuName, const QString& suffix)
{
    pane.menu = new QMenu(this);
    pane.menu->setObjectName(menuName);
    const ReportView* view = pane.view;
    const QStringView prefix = pane.keys.columns;
    pane.copy = new CopyCommands(
        *pane.menu, m_settings,
        [view, prefix] {
            return CopyCommands::Target{view, prefix};
        },
        CopyText::LineSeparator, suffix);
    connect(pane.view, &ReportView::menuRequested, this, [&pane](const QModelIndex& index, const QPoint& at) {
        if (index.isValid())
            pane.menu->popup(at);
    });
    connect(pane.view->header(), &QHeaderView::sectionClicked, this,
            [this, &pane](int column) { sortClicked(pane, column); });
}

void ServerDetails::showServer(const ServerRecord* server)
{
    m_playersModel->setPlayers(server ? server->players : QList<PlayerRecord>{});
    QStringList tokens = server ? server->tokens : QStringList{};
    if (const QString state = server && m_mapState ? m_mapState(*server) : QString(); !state.isEmpty())
        tokens << tr("map on this machine") << state;
    m_rulesModel->setTokens(tokens);
}

void ServerDetails::retranslate()
{
    m_players->setAccessibleName(tr("Players of the selected server"));
    mPopAddFriend->setText(tr("Add To F&riends"));
    m_rules->setAccessibleName(tr("Rules of the selected server"));
    m_playersModel->retranslate();
    m_rulesModel->retranslate();
    m_playersPane.copy->retranslate();
    m_rulesPane.copy->retranslate();
}

void ServerDetails::sortClicked(Pane& pane, int column)
{
    QAbstractItemModel* model = pane.view->model();
    if (model->rowCount() == 0)
        return;
    pane.sort = pane.sort.flippedTo(column);
    model->sort(column, pane.sort.qtOrder());
    pane.view->header()->setSortIndicatorShown(true);
    pane.view->header()->setSortIndicator(column, pane.sort.qtOrder());
    ColumnLayout::saveSort(m_settings, pane.keys.sort, pane.sort);
}
