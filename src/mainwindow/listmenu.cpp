// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/listmenu.h"

#include "mainwindow/listpane.h"
#include "mainwindow/serverlists.h"
#include "userdata/favourites.h"
#include "userdata/settingsstore.h"
#include "widgets/copycommands.h"
#include "widgets/reportview.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

ListMenu::ListMenu(SettingsStore& settings, const ServerLists& lists, QString favouritesPath, ShownList shown,
                   QWidget* window)
    : QObject(window)
    , m_settings(settings)
    , m_lists(lists)
    , m_favouritesPath(std::move(favouritesPath))
    , m_shown(std::move(shown))
    , mPopupAlt(new QMenu(window))
{
    mPopupAlt->setObjectName(QStringLiteral("mPopupAlt"));
    mPopAdd = mPopupAlt->addAction(QString());
    mPopAdd->setObjectName(QStringLiteral("mPopAdd"));
    m_copy = new CopyCommands(
        *mPopupAlt, settings,
        [this] {
            return CopyCommands::Target{m_shown().view(), m_shown().keys().columns};
        },
        CopyText::LineSeparator);
    mPopSelServer = mPopupAlt->addAction(QString());
    mPopSelServer->setObjectName(QStringLiteral("mPopSelServer"));
    mPopAddFriend = mPopupAlt->addAction(QString());
    mPopAddFriend->setObjectName(QStringLiteral("mPopAddFriend"));
    mPopupAlt->addSeparator();
    mPopJoin = mPopupAlt->addAction(QString());
    mPopJoin->setObjectName(QStringLiteral("mPopJoin"));
    mPopRefresh = mPopupAlt->addAction(QString());
    mPopRefresh->setObjectName(QStringLiteral("mPopRefresh"));
    mPopFilterMap = mPopupAlt->addAction(QString());
    mPopFilterMap->setObjectName(QStringLiteral("mPopFilterMap"));
    mPopColumns = mPopupAlt->addMenu(QString());
    mPopColumns->setObjectName(QStringLiteral("mPopColumns"));
    connect(mPopColumns, &QMenu::aboutToShow, this, [this] {
        mPopColumns->clear();
        m_shown().view()->addColumnEntries(*mPopColumns);
    });
    connect(mPopJoin, &QAction::triggered, this, &ListMenu::joinRequested);
    connect(mPopRefresh, &QAction::triggered, this, [this] {
        if (const int server = m_shown().selectedServer(); server >= 0)
            emit refreshRequested(m_lists.server(server).address, m_lists.server(server).port);
    });
    connect(mPopFilterMap, &QAction::triggered, this, [this] {
        if (const int server = m_shown().selectedServer(); server >= 0)
            emit mapFilterRequested(m_lists.server(server).map);
    });
    connect(mPopAddFriend, &QAction::triggered, this, &ListMenu::addToFriends);
    connect(mPopAdd, &QAction::triggered, this, &ListMenu::addToFavourites);
    connect(mPopSelServer, &QAction::triggered, this, [this] {
        const int server = m_shown().currentServer();
        if (server >= 0)
            emit selectServer(m_lists.server(server).endpointText());
    });
}

void ListMenu::popup(const QPoint& at)
{
    mPopColumns->menuAction()->setVisible(!m_shown().view()->optionalColumns().isEmpty());
    mPopupAlt->popup(at);
}

void ListMenu::setPlayersShown(bool players)
{
    mPopSelServer->setVisible(players);
    mPopAddFriend->setVisible(players);
    mPopFilterMap->setVisible(!players);
}

void ListMenu::retranslate()
{
    mPopAdd->setText(tr("&Add To Favourites"));
    m_copy->retranslate();
    mPopSelServer->setText(tr("&Select Server"));
    mPopAddFriend->setText(tr("Add To F&riends"));
    mPopJoin->setText(tr("&Join"));
    mPopRefresh->setText(tr("R&efresh"));
    mPopFilterMap->setText(tr("Filter By This &Map"));
    mPopColumns->setTitle(tr("C&olumns"));
}

void ListMenu::addToFriends()
{
    const ListPane& players = m_shown();
    const int row = players.sourceRow(players.view()->currentIndex());
    if (row < 0)
        return;
    addFriend(m_lists.players().row(row).plainName);
}

void ListMenu::addFriend(const QString& name)
{
    QStringList friends = m_settings.value(Keys::Friends);
    if (m_lists.friends().matches(name)) {
        emit status(tr("%1 is one of your friends already.").arg(name), StatusTone::Hint);
        return;
    }
    friends.append(Friends::patternFor(name));
    if (!m_settings.set(Keys::Friends, friends)) {
        emit status(tr("Your friends could not be saved."), StatusTone::Failed);
        return;
    }
    emit status(tr("%1 was added to your friends.").arg(name), StatusTone::Done);
}

void ListMenu::addToFavourites()
{
    const int server = m_shown().selectedServer();
    if (server < 0)
        return;
    // From the player list the name is the player's server, as its row shows it.
    if (!Favourites::appendToFile(m_favouritesPath, m_lists.server(server).endpointText(), QString(),
                                  m_lists.servers().plainName(server)))
        emit status(tr("The favourites file could not be written."), StatusTone::Failed);
    else
        emit status(tr("%1 was added to your favourites.").arg(m_lists.servers().plainName(server)), StatusTone::Done);
}

void ListMenu::copyAddressOnCtrlC(const ListPane& players)
{
    m_players = &players;
    m_playerView = players.view();
    players.view()->installEventFilter(this);
}

bool ListMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_playerView || event->type() != QEvent::KeyPress || !m_players)
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_C || !(key->modifiers() & Qt::ControlModifier))
        return QObject::eventFilter(watched, event);
    const int server = m_players->currentServer();
    if (server >= 0) {
        QGuiApplication::clipboard()->clear();
        QGuiApplication::clipboard()->setText(m_lists.server(server).endpointText());
    }
    return true;
}
