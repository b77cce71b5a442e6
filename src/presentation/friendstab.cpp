// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/friendstab.h"

#include "presentation/serverstab.h"
#include "userdata/friends.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"
#include "widgets/namedcontrol.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

FriendsTab::FriendsTab(SettingsStore& settings, Desktop& desktop, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
{
    m_friends = new AddressListEditor(desktop, "Friends", Friends::checkEntry, this);
    lblAutoRefresh = makeControl<QLabel>(this, "lblAutoRefresh");
    cmbAutoRefresh = makeControl<QComboBox>(this, "cmbAutoRefresh");
    for (int minutes : Intervals)
        cmbAutoRefresh->addItem(QString(), minutes);
    lblAutoRefresh->setBuddy(cmbAutoRefresh);
    chkNotifyFriends = makeControl<QCheckBox>(this, "chkNotifyFriends");
    chkNotifyPlayers = makeControl<QCheckBox>(this, "chkNotifyPlayers");
    spnNotifyPlayers = makeControl<QSpinBox>(this, "spnNotifyPlayers");
    spnNotifyPlayers->setRange(1, 64);
    spnNotifyPlayers->setValue(8);
    lblNotifyNote = makeControl<QLabel>(this, "lblNotifyNote");
    lblNotifyNote->setWordWrap(true);
    chkOfferWait = makeControl<QCheckBox>(this, "chkOfferWait");

    auto* refresh = new QHBoxLayout;
    refresh->addWidget(lblAutoRefresh);
    refresh->addWidget(cmbAutoRefresh, 1);
    lblNotifyPlayers = makeControl<QLabel>(this, "lblNotifyPlayers");
    lblNotifyPlayers->setBuddy(spnNotifyPlayers);
    auto* players = new QHBoxLayout;
    // Under the check box's text, as the rest of its sentence.
    players->addSpacing(24);
    players->addWidget(spnNotifyPlayers);
    players->addWidget(lblNotifyPlayers, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_friends, 1);
    layout->addLayout(refresh);
    layout->addWidget(chkNotifyFriends);
    layout->addWidget(chkNotifyPlayers);
    layout->addLayout(players);
    layout->addWidget(lblNotifyNote);
    layout->addWidget(chkOfferWait);

    connect(cmbAutoRefresh, &QComboBox::currentIndexChanged, this, &FriendsTab::enableNotifications);
    connect(chkNotifyPlayers, &QCheckBox::toggled, this, &FriendsTab::enableNotifications);
    retranslateUi();
}

void FriendsTab::retranslateUi()
{
    m_friends->setTexts({tr("Friends (names, or patterns such as *Bob*):"),
                         tr("Friend"),
                         tr("Name of a friend as the player list shows it, or a pattern such as *Hammer*:"),
                         tr("\"%1\" holds a control character. Type a name or a pattern."),
                         {}});
    lblAutoRefresh->setText(tr("Refresh the listed servers:"));
    for (int i = 0; i < cmbAutoRefresh->count(); ++i)
        cmbAutoRefresh->setItemText(i, intervalText(cmbAutoRefresh->itemData(i).toInt()));
    chkNotifyFriends->setText(tr("Tell me when a friend starts playing"));
    chkNotifyPlayers->setText(tr("Tell me when a favourite server has"));
    lblNotifyPlayers->setText(tr("players or more"));
    lblNotifyNote->setText(tr("Notifications come with the automatic refresh."));
    chkOfferWait->setText(tr("Offer to wait for a slot on a full server"));
}

QString FriendsTab::intervalText(int minutes)
{
    if (minutes == 0)
        return tr("Never");
    // English has no plural form for one in "%n minutes" without a
    // translation file of its own.
    return minutes == 1 ? tr("Every minute") : tr("Every %n minutes", nullptr, minutes);
}

void FriendsTab::showInterval(int minutes)
{
    int index = cmbAutoRefresh->findData(minutes);
    if (index < 0) {
        // A value typed into the settings file stays what it was.
        cmbAutoRefresh->addItem(intervalText(minutes), minutes);
        index = cmbAutoRefresh->count() - 1;
    }
    cmbAutoRefresh->setCurrentIndex(index);
}

int FriendsTab::chosenMinutes() const
{
    return cmbAutoRefresh->currentData().toInt();
}

void FriendsTab::enableNotifications()
{
    const bool refreshing = chosenMinutes() > 0;
    chkNotifyFriends->setEnabled(refreshing);
    chkNotifyPlayers->setEnabled(refreshing);
    spnNotifyPlayers->setEnabled(refreshing && chkNotifyPlayers->isChecked());
}

void FriendsTab::load()
{
    m_loadedFriends = m_settings.value(Keys::Friends);
    m_friends->setEntries(m_loadedFriends);
    showInterval(std::max(m_settings.value(Keys::AutoRefreshMinutes), 0));
    chkNotifyFriends->setChecked(m_settings.value(Keys::NotifyFriends));
    const int players = m_settings.value(Keys::NotifyPlayerCount);
    chkNotifyPlayers->setChecked(players > 0);
    if (players > 0)
        spnNotifyPlayers->setValue(players);
    chkOfferWait->setChecked(m_settings.value(Keys::OfferSlotWait));
    enableNotifications();
}

void FriendsTab::save()
{
    const QStringList friends = m_friends->entries();
    if (friends != m_loadedFriends) {
        m_settings.set(Keys::Friends, friends);
        m_loadedFriends = friends;
    }
    m_settings.set(Keys::AutoRefreshMinutes, chosenMinutes());
    m_settings.set(Keys::NotifyFriends, chkNotifyFriends->isChecked());
    m_settings.set(Keys::NotifyPlayerCount, chkNotifyPlayers->isChecked() ? spnNotifyPlayers->value() : 0);
    m_settings.set(Keys::OfferSlotWait, chkOfferWait->isChecked());
}

void FriendsTab::resetToDefaults()
{
    // The friends are the user's own list, not a setting with a default.
    showInterval(Keys::AutoRefreshMinutes.defaultValue);
    chkNotifyFriends->setChecked(Keys::NotifyFriends.defaultValue);
    chkNotifyPlayers->setChecked(Keys::NotifyPlayerCount.defaultValue > 0);
    chkOfferWait->setChecked(Keys::OfferSlotWait.defaultValue);
    enableNotifications();
}
