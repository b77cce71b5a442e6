// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QObject>

struct ServerRecord;

class Desktop;
class HistoryComboBox;
class MapCheck;
class SettingsStore;

// Joining a server: the password (typed, from the favourites, or asked
// for), the game executable (asked for once and remembered), the start of
// the game and, when the user wants it, the end of this program.
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
    JoinFlow(SettingsStore& settings, Desktop& desktop, QString favouritesPath, QString historyPath,
             const HistoryComboBox& playerName, const HistoryComboBox& password, QWidget* window);

    // Settles the password and, for a full server, whether to wait for a
    // slot; then starts the game or asks for the wait.
    void join(const Target& target);
    // "installed" or "missing" for the server's map (and mod), or empty
    // while the game's folders are unknown or being read (maps().indexed
    // tells when they have been).
    QString mapState(const ServerRecord& server);
    const MapCheck& maps() const { return *m_maps; }
    // Starts the game with a settled password; each start is recorded in
    // the history.
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

private:
    QString passwordFor(const Target& target) const;
    QString executable();
    void record(const Target& target);
    // Whether the map and mod are installed, asking when they are not;
    // false when the join waits for the game's folders to be read or the
    // user said No.
    bool mapSettled(const Target& target);

    SettingsStore& m_settings;
    Desktop& m_desktop;
    QString m_favouritesPath;
    QString m_historyPath;
    const HistoryComboBox& m_playerName;
    const HistoryComboBox& m_password;
    QWidget* m_window;
    MapCheck* m_maps;
};
