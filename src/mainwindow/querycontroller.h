// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "mainwindow/answerbatcher.h"
#include "mainwindow/refreshround.h"
#include "mainwindow/servermemory.h"
#include "mainwindow/sourcestatus.h"
#include "presentation/countries.h"
#include "query/querysession.h"
#include "query/records.h"
#include "widgets/statustone.h"

#include <QObject>

class Clock;
class SettingsStore;

// Runs the queries of the window: the query of every server source (the
// masters, the published lists and the servers known from earlier), the
// favourites query, the LAN query and the refresh of one selected server.
// It reads the speed, start port and sources from the settings at each
// start, hands the answers on in batches (AnswerBatcher), has every server
// that answered remembered (ServerMemory), runs the quiet refresh rounds
// (RefreshRound) and says in signals what the window shows.
class QueryController final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QueryController)

public:
    QueryController(SettingsStore& settings, const QString& dataFolder, const Clock& clock, QObject* parent = nullptr);

    const QuerySession& session() const { return m_session; }
    // Where the answering servers are, and their flags.
    const Countries& countries() const { return m_countries; }
    void setCountryLanguage(const QString& locale) { m_countries.setLanguage(locale); }
    bool isRunning() const { return m_session.isRunning(); }
    // What each source of the last query gave, one line each.
    const QString& sourceSummary() const { return m_sources.summary; }
    // The box of "Master Servers Timed Out": what each source said (a name
    // not found, no answer) and where to turn when none works.
    QString timedOutText() const { return m_sources.timedOutText(); }

    void startMasterQuery();
    void startFavouritesQuery();
    void startLanQuery();
    // The servers joined lately, as the favourites are queried.
    void startHistoryQuery();
    // Asks these listed servers again in the background: their rows are
    // updated in place (updated), nothing is cleared, the query buttons
    // stay as they are. A query the user starts ends the round first.
    // False when a query runs.
    bool startRefreshRound(const AddressTable& table);
    bool isRefreshing() const { return m_round.isActive(); }
    // One request to one server, whatever the refresh setting says (the
    // wait for a free slot); nothing while a query runs.
    void requery(const QString& address, int port);
    // Queries one listed server again, when no query runs and the user
    // wants selected servers refreshed.
    void refresh(const ServerRecord& server);
    // Ends a running query now: "Cancelled".
    void cancel();

signals:
    void busyChanged(bool busy);
    void status(const QString& text, StatusTone tone);
    void progress(int value, int maximum);
    // A new query starts: everything listed goes.
    void started();
    // The first addresses are in; count servers are about to be asked (more
    // may follow while they are).
    void querying(int count);
    void answers(const QList<ServerRecord>& batch);
    // A listed server answered again.
    void refreshed(const ServerRecord& server);
    // The query ended with every answer delivered: time to sort.
    void ended();
    // After the status line says so; the window offers Retry.
    void masterTimedOut();
    // What each source of the query gave, one line each; empty for a query
    // without sources.
    void sourcesReported(const QString& summary);
    // Answers of a refresh round, for the rows already listed.
    void updated(const QList<ServerRecord>& batch);
    // A refresh round is over: how many were asked and which stayed silent
    // ("address:port").
    void roundEnded(int asked, const QStringList& silent);

private:
    bool preparePool();
    // When the lists of the last query go: at the start, or only once an
    // answer comes (a LAN search that finds nothing keeps them).
    enum class ListsGo { AtStart, WithFirstAnswer };
    bool begin(ListsGo listsGo = ListsGo::AtStart);
    void showPhase(QuerySession::Phase phase);
    void showQuerying();
    void queue(const ServerRecord& server, bool refresh);
    void flush();
    void stop(const QString& text, StatusTone tone);
    void fail(const QueryError& error);
    void reportSources();
    // Writes servers.dat; false when it could not.
    bool remember(bool finished);
    void sayNotSaved();
    bool m_clearWithFirstAnswer = false;

    SettingsStore& m_settings;
    QString m_favouritesPath;
    QString m_historyPath;
    QuerySession m_session;
    Countries m_countries;
    AnswerBatcher m_batcher;
    ServerMemory m_memory;
    RefreshRound m_round;
    QString m_sourceNames;
    SourceStatus::LeftOut m_leftOut;
    SourceStatus m_sources;
    // A speed outside the table keeps the pool of the last query.
    int m_lastSocketIndex = QuerySpeed::DefaultLastSocketIndex;
};
