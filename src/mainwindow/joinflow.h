#pragma once

#include "statustone.h"

#include <QObject>

class Desktop;
class HistoryComboBox;
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
    };

    // The boxes give the player name and the password; window parents the
    // boxes this flow opens.
    JoinFlow(SettingsStore& settings, Desktop& desktop, QString favouritesPath, const HistoryComboBox& playerName,
             const HistoryComboBox& password, QWidget* window);

    void join(const Target& target);
    // Asks for an address and joins it.
    void joinByAddress();

signals:
    void status(const QString& text, StatusTone tone);
    // The game started and the user wants this program closed then.
    void closeRequested();

private:
    QString passwordFor(const Target& target) const;
    QString executable();

    SettingsStore& m_settings;
    Desktop& m_desktop;
    QString m_favouritesPath;
    const HistoryComboBox& m_playerName;
    const HistoryComboBox& m_password;
    QWidget* m_window;
};
