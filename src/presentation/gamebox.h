// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "game/gameinstall.h"

#include <QWidget>

#include <optional>

class Desktop;
class GameInstalls;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class SettingsStore;

// The options' game: which install a join starts ("Game", the installs
// found on this machine or "Other program..."), the program picked for the
// latter ("Quake 4 Executable", Path), "Look Again", and the command a
// join will run, to read and copy. Its values live in the controls until
// save().
class GameBox final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GameBox)

public:
    // The controls are made on page and placed in grid from row on: six
    // rows, four columns.
    GameBox(SettingsStore& settings, Desktop& desktop, GameInstalls& installs, QWidget* page, QGridLayout* grid,
            int row);

    void load();
    void save();
    void resetToDefaults();
    void retranslateUi();

private:
    // Fills the choice with the installs found, keeping what is chosen.
    void fill(const QString& choice);
    QString choice() const;
    void choose(const QString& setting);
    void browse();
    void showCommand();
    std::optional<GameInstall> shownInstall() const;

    SettingsStore& m_settings;
    Desktop& m_desktop;
    GameInstalls& m_installs;
    // Windows builds the user had Wine run, which no search finds.
    QList<GameInstall> m_picked;

    QLabel* lblGame = nullptr;
    QComboBox* cmbGame = nullptr;
    QPushButton* cmdLookAgain = nullptr;
    QLabel* lblPath = nullptr;
    QLineEdit* txtPath = nullptr;
    QPushButton* cmdBrowse = nullptr;
    QLabel* lblGameCommand = nullptr;
    QLineEdit* txtGameCommand = nullptr;
};
