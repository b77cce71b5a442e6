// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/autorefresh.h"

#include "mainwindow/querycontroller.h"
#include "mainwindow/serverlists.h"
#include "platform/desktop.h"
#include "userdata/favourites.h"
#include "userdata/settingsstore.h"

#include <QDateTime>
#include <QLocale>
#include <QPointer>

AutoRefresh::AutoRefresh(SettingsStore& settings, Desktop& desktop, ServerLists& lists, QueryController& queries,
                         QString favouritesPath, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_lists(lists)
    , m_queries(queries)
    , m_favouritesPath(std::move(favouritesPath))
    , m_alarm(desktop.clock().makeAlarm())
{
    connect(m_alarm.get(), &Alarm::fired, this, &AutoRefresh::refreshNow);
    connect(&m_queries, &QueryController::roundEnded, this, &AutoRefresh::roundEnded);
    connect(&m_settings, &SettingsStore::changed, this, [this](const QString& key) {
        if (key == Keys::AutoRefreshMinutes.key || key == Keys::NotifyFriends.key || key == Keys::NotifyPlayerCount.key)
            applySettings();
    });
    applySettings();
}

AutoRefresh::~AutoRefresh()
{
    m_desktop.setNotifying(false);
}

bool AutoRefresh::isOn() const
{
    return m_minutes > 0;
}

void AutoRefresh::applySettings()
{
    const int minutes = std::clamp(m_settings.value(Keys::AutoRefreshMinutes), 0, 24 * 60);
    if (minutes != m_minutes || (minutes > 0 && !m_alarm->isActive())) {
        m_minutes = minutes;
        if (minutes > 0)
            m_alarm->start(minutes * 60 * 1000);
        else
            m_alarm->stop();
    }
    m_desktop.setNotifying(minutes > 0 &&
                           (m_settings.value(Keys::NotifyFriends) || m_settings.value(Keys::NotifyPlayerCount) > 0));
}

QSet<QString> AutoRefresh::watchedServers() const
{
    QSet<QString> watched;
    if (m_settings.value(Keys::NotifyPlayerCount) < 1)
        return watched;
    if (const auto favourites = Favourites::readFile(m_favouritesPath)) {
        const AddressTable table = Favourites::toAddressTable(*favourites);
        for (const AddressEntry& entry : table.entries())
            watched.insert(entry.endpointText());
    }
    return watched;
}

bool AutoRefresh::refreshNow()
{
    // A query the user runs is fresher than a round; the next tick comes.
    if (m_queries.isRunning() || m_lists.serverCount() == 0)
        return false;
    AddressTable table;
    for (int server = 0; server < m_lists.serverCount(); ++server)
        table.add(m_lists.server(server).address, m_lists.server(server).port);
    m_sightings = m_lists.sightings();
    m_counts = m_lists.counts(watchedServers());
    return m_queries.startRefreshRound(table);
}

void AutoRefresh::roundEnded(int asked, const QStringList& silent)
{
    QList<int> silentRows;
    for (const QString& address : silent) {
        if (const int index = m_lists.servers().store().indexOf(address); index >= 0)
            silentRows.append(index);
    }
    m_lists.markSilent(silentRows);
    const QString time =
        QLocale().toString(QDateTime::fromMSecsSinceEpoch(m_desktop.clock().nowMs()).time(), QLocale::ShortFormat);
    emit status(tr("Refreshed at %1\n%2 of %3 servers answered").arg(time).arg(asked - silent.size()).arg(asked),
                StatusTone::Done);

    const QList<Alerts::Sighting> arrived = m_settings.value(Keys::NotifyFriends)
                                                ? Alerts::arrivals(m_sightings, m_lists.sightings())
                                                : QList<Alerts::Sighting>();
    const QSet<QString> watched(m_counts.keyBegin(), m_counts.keyEnd());
    const Alerts::Counts counts = m_lists.counts(watched);
    const QList<QString> filled = Alerts::reached(m_counts, counts, m_settings.value(Keys::NotifyPlayerCount));
    notify(arrived, filled, counts);
}

void AutoRefresh::notify(const QList<Alerts::Sighting>& arrived, const QList<QString>& filled,
                         const Alerts::Counts& counts)
{
    if (arrived.isEmpty() && filled.isEmpty())
        return;
    QStringList lines;
    for (const Alerts::Sighting& sighting : arrived)
        lines.append(
            tr("%1 is playing on %2").arg(Alerts::shortName(sighting.player), Alerts::shortName(sighting.server)));
    for (const QString& address : filled)
        lines.append(tr("%1 has %2 players")
                         .arg(Alerts::shortName(counts.value(address).server))
                         .arg(counts.value(address).players));
    // The tray shows one message at a time: one for the round, and a click
    // goes to its first server.
    const QString address = arrived.isEmpty() ? filled.first() : arrived.first().address;
    const bool shown = m_desktop.notify(tr("Quake 4 Vantage"), news(lines, NotificationLines),
                                        [self = QPointer<AutoRefresh>(this), address] {
                                            if (self)
                                                emit self->selectServer(address);
                                        });
    // A desktop without a tray still hears it, in the status line.
    if (!shown)
        emit status(news(lines, StatusLines), StatusTone::Hint);
}

QString AutoRefresh::news(const QStringList& lines, int maxLines)
{
    const Alerts::Shown shown = Alerts::firstLines(lines, maxLines);
    QStringList text = shown.lines;
    if (shown.more > 0)
        text.append(tr("and %n more", nullptr, shown.more));
    return text.join(QLatin1Char('\n'));
}
