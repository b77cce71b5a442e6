// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "presentation/themefile.h"

#include <QDialog>

class Desktop;
class GameBox;
class GameInstalls;
class Language;
class MessageLine;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class FriendsTab;
class ServersTab;
class SettingsStore;
class ThemeService;
class ThemeTab;

// The options: the settings a user may change and the colour themes. The
// values live in the controls until OK or Apply saves them; language and
// colours are shown at once on every window, and Cancel puts the saved
// theme back (a language chosen meanwhile stays shown, unsaved).
class FrmOptions final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmOptions)

public:
    enum Tab { SettingsTab = 0, ThemeTab = 1, SourcesTab = 2, FriendsTabIndex = 3 };
    void showTab(Tab tab);

    // dataFolder holds the known servers the "Servers" tab can forget;
    // installs are the game's, looked for when the dialog opens.
    FrmOptions(SettingsStore& settings, Desktop& desktop, Language& language, ThemeService& themes,
               GameInstalls& installs, const QString& dataFolder, QWidget* parent = nullptr);

    // OK and Apply: false, with the port message, when the start port is
    // refused; nothing is written then.
    bool save();

protected:
    void changeEvent(QEvent* event) override;
    void reject() override;

private:
    void buildSettingsTab(QWidget* page, GameInstalls& installs);
    void retranslateUi();
    void load();
    void runStartPortRule();
    void resetToDefaults();
    void say(const QString& text);

    SettingsStore& m_settings;
    Desktop& m_desktop;
    Language& m_language;
    ThemeService& m_themeService;
    bool m_loaded = false;

    QTabWidget* tabOptions = nullptr;
    QLabel* lblLanguage = nullptr;
    QComboBox* cmbLanguage = nullptr;
    QLabel* lblSpeed = nullptr;
    QComboBox* cmbSpeed = nullptr;
    QCheckBox* chkAutoUpdate = nullptr;
    QCheckBox* chkCloseAfterJoin = nullptr;
    QCheckBox* chkKeyring = nullptr; // passwords in the keyring, not the file
    QLabel* lblPort = nullptr;
    QLineEdit* txtStartPort = nullptr;
    QLabel* lblPortTo = nullptr;
    QLineEdit* txtEndPort = nullptr;
    QLabel* lblPortDesc = nullptr;
    QCheckBox* chkProxy = nullptr;
    QLineEdit* txtProxy = nullptr;
    QCheckBox* chkRefresh = nullptr;
    GameBox* m_game = nullptr;

    ::ThemeTab* m_themeTab = nullptr;
    ServersTab* m_serversTab = nullptr;
    FriendsTab* m_friendsTab = nullptr;

    MessageLine* lblMessage = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdApply = nullptr;
    QPushButton* cmdDefaults = nullptr;
};
