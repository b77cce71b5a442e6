// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/settingskeys.h"
#include "widgets/columnlayout.h"

#include <QObject>
#include <QSplitter>

#include <functional>

class CopyCommands;
class QAction;
class QMenu;
class ReportView;
class ServerPlayersModel;
class ServerRulesModel;
class SettingsStore;
struct ServerRecord;

// The panes of the selected server: its players and its rules, side by
// side, each sorted by a column click and with its own copy menu.
class ServerDetails final : public QSplitter {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerDetails)

public:
    // Wide enough for every column of the players pane as they are sized
    // now, so a first start shows Ping and Rate without scrolling.
    int playersPaneWidth() const;
    ServerDetails(SettingsStore& settings, QWidget* parent);

    ReportView* players() const { return m_players; }
    ReportView* rules() const { return m_rules; }

    // Shows the server's players and rules; nothing for none.
    void showServer(const ServerRecord* server);
    // Whether the game has the server's map: a last row of the rules pane
    // ("installed", "missing"), none while not known.
    void setMapState(std::function<QString(const ServerRecord&)> state) { m_mapState = std::move(state); }
    void retranslate();

signals:
    // "Add To Friends" on a player of the selected server.
    void friendRequested(const QString& plainName);

private:
    std::function<QString(const ServerRecord&)> m_mapState;
    struct Pane {
        ReportView* view = nullptr;
        Keys::ListKeys keys;
        ColumnLayout::SortState sort;
        QMenu* menu = nullptr;
        CopyCommands* copy = nullptr;
    };
    void setUp(Pane& pane, const QString& menuName, const QString& suffix);
    void sortClicked(Pane& pane, int column);

    SettingsStore& m_settings;
    ServerPlayersModel* m_playersModel = nullptr;
    ServerRulesModel* m_rulesModel = nullptr;
    ReportView* m_players = nullptr;
    ReportView* m_rules = nullptr;
    Pane m_playersPane;
    Pane m_rulesPane;
    QAction* mPopAddFriend = nullptr;
};
