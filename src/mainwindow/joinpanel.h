// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>

#include <functional>

class Desktop;
class GameInstalls;
class HistoryComboBox;
class JoinFlow;
class PasswordKeeper;
class MulticolorLabel;
class QLabel;
class QPushButton;
class SettingsStore;
class SlotWaiter;
struct ServerRecord;

// The join controls: player name and password boxes (each remembers what
// the user confirms), Join and Join IP, and the selected player's name in
// colour. Join asks the window for the selected server; Join IP asks the
// user for an address. A full server may be waited for: the panel owns the
// wait, and "Stop Waiting" (placed by the window) ends it.
class JoinPanel final : public QFrame {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(JoinPanel)

public:
    // The listed server of an "address:port", or none.
    using ListedServer = std::function<const ServerRecord*(const QString& address)>;

    JoinPanel(SettingsStore& settings, Desktop& desktop, GameInstalls& installs, const QString& favouritesPath,
              const QString& historyPath, ListedServer listed, QWidget* window);

    HistoryComboBox* playerName() const { return cmbPlayerName; }
    HistoryComboBox* password() const { return cmbPassword; }
    JoinFlow& flow() const { return *m_flow; }
    SlotWaiter& waiter() const { return *m_waiter; }
    // Shown only while a wait runs.
    QPushButton* stopWaitingButton() const { return cmdStopWaiting; }

    void ShowPlayerName(const QString& name);
    void retranslate();
    // The password and the remembered ones back where they came from (the
    // keyring or the settings file), at the end.
    void savePasswords();

signals:
    // Join was clicked: the boxes are remembered, the selected server waits.
    void joinRequested();

private:
    QLabel* lblPlayerName = nullptr;
    HistoryComboBox* cmbPlayerName = nullptr;
    QLabel* lblPassword = nullptr;
    HistoryComboBox* cmbPassword = nullptr;
    QLabel* lblPName = nullptr;
    MulticolorLabel* mclPName = nullptr;
    QPushButton* cmdJoin = nullptr;
    QPushButton* cmdJoinIP = nullptr;
    QPushButton* cmdStopWaiting = nullptr;
    JoinFlow* m_flow = nullptr;
    SlotWaiter* m_waiter = nullptr;
    PasswordKeeper* m_passwords = nullptr;
};
