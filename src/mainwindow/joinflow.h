// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "game/gameinstall.h"
#include "presentation/gamechooser.h"
#include "widgets/statustone.h"

#include <QObject>

#include <functional>
#include <optional>

struct ServerRecord;

class Desktop;
class GameInstalls;
class HistoryComboBox;
class MapCheck;
class SettingsStore;

// Joining a server: the password (typed, from the favourites, or asked
// for), the install of the game that starts (found on this machine, picked
// once and remembered), whether it has the server's map, the start of the
// game and, when the user wants it, the end of this program.
class JoinFlow final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(JoinFlow)

public:
    struct Target {
        QString address;
        bool passworded = false;
        QString serverName;
        // Every place taken when the list last heard from it.
        bool full = false;
        // Its map and mod (fs_game), checked against the game's archives.
        QString map;
        QString mod;

        // A listed server, joined by the name the lists show.
        static Target of(const ServerRecord& server, const QString& plainName);
    };

    // The boxes give the player name and the password; window parents the
    // boxes this flow opens.
    JoinFlow(SettingsStore& settings, Desktop& desktop, GameInstalls& installs, QString favouritesPath,
             QString historyPath, const HistoryComboBox& playerName, const HistoryComboBox& password, QWidget* window);

    // Settles the password, for a full server whether to wait for a slot,
    // the install and its map; then starts the game or asks for the wait.
    // One join waits (for the installs or the map check) at a time: a new
    // one replaces it.
    void join(const Target& target);
    // "installed" or "missing" for the server's map (and mod), or empty
    // while the game's folders are unknown or being read (maps().indexed
    // and installs' looked tell when they have been).
    QString mapState(const ServerRecord& server);
    const MapCheck& maps() const { return *m_maps; }
    // Starts the game with a settled password (the map was checked when the
    // wait began); each start is recorded in the history.
    void start(const Target& target, const QString& password);
    // Asks for an address and joins it.
    void joinByAddress();

signals:
    // A new join begins (any wait for another server ends).
    void joining();
    // The user wants to wait for a free slot; the executable is known.
    void waitRequested(const JoinFlow::Target& target, const QString& password);
    // The game started for this server and it is in the history.
    void joined(const QString& address);
    void status(const QString& text, StatusTone tone);
    // The game started and the user wants this program closed then.
    void closeRequested();
    // mapState() may say more now: a folder was read, the installs found.
    void mapStateChanged();

private:
    enum class Settled { Yes, Later, No };
    // What is left of a join once the password and the wait are settled.
    struct Rest {
        Target target;
        QString password;
        bool waitForSlot = false;
        bool checkMap = true;
    };

    QString passwordFor(const Target& target) const;
    void proceed(const Rest& rest);
    // The install to start, asking the user when nothing (that still
    // exists) was chosen; Later when the installs are still looked for.
    Settled settleInstall(std::optional<GameInstall>& install);
    // The install the settings name, when it can be known without looking.
    std::optional<GameInstall> chosenWithoutLooking() const;
    // Whether the map and mod are installed, asking when they are not;
    // Later while the game's folders are read.
    Settled settleMap(const GameInstall& install, const Target& target);
    // Runs the rest of a join when sender emits signal; a join waiting
    // before it is dropped.
    template <typename Sender, typename Signal> void resumeOn(Sender* sender, Signal signal, const Rest& rest);
    void launch(const GameInstall& install, const Target& target, const QString& password);
    void record(const Target& target);

    SettingsStore& m_settings;
    Desktop& m_desktop;
    GameInstalls& m_installs;
    GameChooser m_chooser;
    QMetaObject::Connection m_waiting;
    // Said once the game starts: an install found and taken without asking.
    QString m_taken;
    QString m_favouritesPath;
    QString m_historyPath;
    const HistoryComboBox& m_playerName;
    const HistoryComboBox& m_password;
    QWidget* m_window;
    MapCheck* m_maps;
};
