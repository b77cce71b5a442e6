// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class Desktop;
class FrmFilters;
class FrmHistory;
class FrmOptions;
class GameInstalls;
class Language;
class QLabel;
class QPushButton;
class SettingsStore;
class ThemeService;

// The row of the window's dialogs: "Favourites", "Filters", "Options" and
// "Recently Played", each opening its window. The filters editor lives as
// long as the window (the lists read their rules from it); the others are
// made anew when opened, so they read the files as they are now.
class DialogBar final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DialogBar)

public:
    // Shows the listed server of that "address:port"; false when it is not
    // listed.
    using SelectServer = std::function<bool(const QString& address)>;

    DialogBar(SettingsStore& settings, Desktop& desktop, Language& language, ThemeService& themes,
              GameInstalls& installs, QString dataFolder, SelectServer selectServer, QWidget* parent = nullptr);

    const FrmFilters& filters() const { return *m_filters; }
    FrmFilters& filters() { return *m_filters; }
    FrmOptions* openOptions();
    FrmHistory* openHistory();
    // A game was joined: an open history shows it.
    void joined();
    // No options and no favourites editor while a query runs.
    void setBusy(bool busy);
    // How many listed servers the filters hide now; said beside the
    // buttons while it is not none.
    void showHidden(int servers);
    void retranslate();
    // The bar is made before the rest of the window but sits at its
    // bottom: Tab reaches its buttons after last.
    void placeFocusAfter(QWidget* last);

signals:
    void filtersChanged();
    void historyQueryRequested();

private:
    SettingsStore& m_settings;
    Desktop& m_desktop;
    Language& m_language;
    ThemeService& m_themes;
    GameInstalls& m_installs;
    QString m_dataFolder;
    SelectServer m_selectServer;
    FrmFilters* m_filters = nullptr;
    QPointer<FrmHistory> m_history;
    QPushButton* cmdOrganise = nullptr;
    QPushButton* cmdFilters = nullptr;
    QPushButton* cmdOptions = nullptr;
    QPushButton* cmdRecent = nullptr;
    QLabel* lblHidden = nullptr;
    int m_hidden = 0;
};
