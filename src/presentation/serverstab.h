// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>
#include <limits>
#include <optional>

class Desktop;
class QCheckBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class SettingsStore;

// A list of addresses the user adds to, edits and removes from, each entry
// checked before it goes in.
class AddressListEditor final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AddressListEditor)

public:
    // The normal form of a typed entry, or nothing when it is not valid.
    using Check = std::function<std::optional<QString>(const QString& typed)>;
    struct Texts {
        QString caption;
        QString dialogTitle;
        QString prompt;
        QString refused; // %1 is the typed text
        QString full;    // said when Add is pressed with the list at its most
    };

    AddressListEditor(Desktop& desktop, const char* name, Check check, QWidget* parent = nullptr);
    // Add says Texts::full instead of asking once the list holds this many.
    void setMaxEntries(int maxEntries) { m_maxEntries = maxEntries; }

    void setTexts(const Texts& texts);
    QStringList entries() const;
    void setEntries(const QStringList& entries);
    QListWidget* list() const { return m_list; }

private:
    std::optional<QString> ask(const QString& start);
    void add();
    void edit();
    void remove();
    void updateButtons();
    QListWidgetItem* chosen() const;

    Desktop& m_desktop;
    Check m_check;
    int m_maxEntries = std::numeric_limits<int>::max();
    Texts m_texts;
    QLabel* m_caption = nullptr;
    QListWidget* m_list = nullptr;
    QPushButton* m_add = nullptr;
    QPushButton* m_edit = nullptr;
    QPushButton* m_remove = nullptr;
};

// The options' "Servers" tab: where "Query Masters" finds servers (the
// masters, the published lists, the servers that answered before).
class ServersTab final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServersTab)

public:
    ServersTab(SettingsStore& settings, Desktop& desktop, QString knownServersPath, QWidget* parent = nullptr);

    void load();
    // Writes only what changed since load(): a stored value the user never
    // touched stays as it was (an empty master stays the default one).
    void save();
    void resetToDefaults();
    void retranslateUi();

private:
    void forgetKnown();
    void showKnownCount();

    SettingsStore& m_settings;
    Desktop& m_desktop;
    QString m_knownPath;
    QStringList m_loadedMasters;
    QStringList m_loadedUrls;

    AddressListEditor* m_masters = nullptr;
    AddressListEditor* m_lists = nullptr;
    QCheckBox* chkQueryKnown = nullptr;
    QPushButton* cmdForgetKnown = nullptr;
    QLabel* lblKnown = nullptr;
};
