// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>

class Desktop;
class HistoryComboBox;
class JoinFlow;
class MulticolorLabel;
class QLabel;
class QPushButton;
class SettingsStore;

// The join controls: player name and password boxes (each remembers what
// the user confirms), Join and Join IP, and the selected player's name in
// colour. Join asks the window for the selected server; Join IP asks the
// user for an address.
class JoinPanel final : public QFrame {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(JoinPanel)

public:
    JoinPanel(SettingsStore& settings, Desktop& desktop, const QString& favouritesPath, const QString& historyPath,
              QWidget* window);

    HistoryComboBox* playerName() const { return cmbPlayerName; }
    HistoryComboBox* password() const { return cmbPassword; }
    JoinFlow& flow() const { return *m_flow; }

    void ShowPlayerName(const QString& name);
    void retranslate();

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
    JoinFlow* m_flow = nullptr;
};
