// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

class AddressListEditor;
class Desktop;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class SettingsStore;

// The options' "Friends" tab: the friends list, the automatic refresh and
// the notifications that come with it, and the offer to wait for a slot.
class FriendsTab final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FriendsTab)

public:
    // The refresh intervals offered, in minutes; 0 is off.
    static constexpr int Intervals[] = {0, 1, 2, 5, 10, 15, 30};

    FriendsTab(SettingsStore& settings, Desktop& desktop, QWidget* parent = nullptr);

    void load();
    // The friends are written only when they changed, so a list edited
    // meanwhile through a menu is not overwritten by an untouched tab.
    void save();
    void resetToDefaults();
    void retranslateUi();

private:
    static QString intervalText(int minutes);
    void showInterval(int minutes);
    int chosenMinutes() const;
    void enableNotifications();

    SettingsStore& m_settings;
    QStringList m_loadedFriends;

    AddressListEditor* m_friends = nullptr;
    QLabel* lblAutoRefresh = nullptr;
    QComboBox* cmbAutoRefresh = nullptr;
    QCheckBox* chkNotifyFriends = nullptr;
    QCheckBox* chkNotifyPlayers = nullptr;
    QSpinBox* spnNotifyPlayers = nullptr;
    QLabel* lblNotifyPlayers = nullptr;
    QLabel* lblNotifyNote = nullptr;
    QCheckBox* chkOfferWait = nullptr;
};
