// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/alerts.h"
#include "widgets/statustone.h"

#include <QObject>

#include <memory>

class Alarm;
class Desktop;
class QueryController;
class ServerLists;
class SettingsStore;

// Keeps the listed servers fresh: every few minutes (AutoRefreshMinutes,
// off by default) it asks the listed servers again in the background and
// their rows change where they are. After each round it greys the servers
// that stayed silent and tells the user, through a desktop notification,
// when a friend started playing or a favourite server filled up.
class AutoRefresh final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AutoRefresh)

public:
    AutoRefresh(SettingsStore& settings, Desktop& desktop, ServerLists& lists, QueryController& queries,
                QString favouritesPath, QObject* parent = nullptr);
    ~AutoRefresh() override;

    bool isOn() const;
    // Starts a round now, as the timer does (false when none could start:
    // a query runs or nothing is listed).
    bool refreshNow();

signals:
    // A notification was clicked: show this server ("address:port").
    void selectServer(const QString& address);
    void status(const QString& text, StatusTone tone);

private:
    // A notification shows a few lines; the status line two.
    static constexpr int NotificationLines = 4;
    static constexpr int StatusLines = 2;
    static QString news(const QStringList& lines, int maxLines);
    void applySettings();
    void roundEnded(int asked, const QStringList& silent);
    QSet<QString> watchedServers() const;
    void notify(const QList<Alerts::Sighting>& arrived, const QList<QString>& filled, const Alerts::Counts& counts);

    SettingsStore& m_settings;
    Desktop& m_desktop;
    ServerLists& m_lists;
    QueryController& m_queries;
    QString m_favouritesPath;
    std::unique_ptr<Alarm> m_alarm;
    int m_minutes = 0;
    // What the list showed when the round began.
    QList<Alerts::Sighting> m_sightings;
    Alerts::Counts m_counts;
};
