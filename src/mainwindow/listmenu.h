// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QObject>
#include <QPointer>

#include <functional>

class CopyCommands;
class ListPane;
class QAction;
class QMenu;
class ServerLists;
class SettingsStore;

// The pop-up menu of the two big lists, for the list on show: "Add To
// Favourites", the copy commands and, on the player list, "Select Server"
// and "Add To Friends"; below them, on both, Join and Refresh for the
// row's server.
class ListMenu final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ListMenu)

public:
    using ShownList = std::function<const ListPane&()>;

    ListMenu(SettingsStore& settings, const ServerLists& lists, QString favouritesPath, ShownList shown,
             QWidget* window);

    // The menu of the list shown, at a global position.
    void popup(const QPoint& at);
    // Ctrl+C in the player list copies the address of the player's server.
    void copyAddressOnCtrlC(const ListPane& players);
    // Select Server belongs to the player list only.
    void setPlayersShown(bool players);
    void retranslate();
    // Adds a player's name as a friend and says how that went.
    void addFriend(const QString& plainName);

signals:
    // Join: the row's server, as a double click would.
    void joinRequested();
    // Refresh: the row's server asked again now.
    void refreshRequested(const QString& address, int port);
    // Select Server: show the server at this address in the server list.
    void selectServer(const QString& address);
    // Filter By This Map: list only the servers on this map.
    void mapFilterRequested(const QString& map);
    void status(const QString& text, StatusTone tone);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addToFavourites();
    void addToFriends();

    SettingsStore& m_settings;
    const ServerLists& m_lists;
    QString m_favouritesPath;
    ShownList m_shown;
    QMenu* mPopupAlt = nullptr;
    QAction* mPopAdd = nullptr;
    CopyCommands* m_copy = nullptr;
    QAction* mPopSelServer = nullptr;
    QAction* mPopAddFriend = nullptr;
    QAction* mPopJoin = nullptr;
    QAction* mPopRefresh = nullptr;
    QAction* mPopFilterMap = nullptr;
    QMenu* mPopColumns = nullptr; // the list's optional columns, for the keyboard too
    // Guarded: while the window is torn down the pane may go before its
    // view, which still sends events on its way out.
    QPointer<const ListPane> m_players;
    const QObject* m_playerView = nullptr;
};
