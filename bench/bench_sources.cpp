// SPDX-License-Identifier: GPL-2.0-or-later
// The first query of a player whose sources are those of today: a master
// that no longer answers beside a published list that answers within a few
// hundred milliseconds, and 30 live servers that answer within 40 ms. How
// long until the window lists the first and the last live server, and until
// the query is done, measured in the window itself.

#include "httpresponder.h"
#include "mainwindow/frmmain.h"
#include "presentation/language.h"
#include "scripteddesktop.h"
#include "simfleet.h"
#include "userdata/settingsstore.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int Servers = 30;
constexpr int ListDelayMs = 300;
constexpr int Runs = 5;

struct Times {
    qint64 firstRow = -1;
    qint64 lastRow = -1;
    qint64 done = -1;
};

Times oneQuery(int run)
{
    FleetOptions options;
    options.servers = Servers;
    options.masterPort = quint16(19400 + run * 100);
    options.firstServerPort = quint16(options.masterPort + 1);
    options.jitterMs = 40;
    options.seed = 7;
    SimFleet fleet(options);
    if (const auto error = fleet.start())
        qFatal("fleet: %s", qPrintable(*error));
    fleet.setMasterSilent(true);
    HttpResponder web;
    QByteArray list;
    for (const auto& server : fleet.servers())
        list += "127.0.0.1:" + QByteArray::number(server.port) + '\n';
    web.set(QStringLiteral("/q4"), {200, list, "text/plain", ListDelayMs});

    QTemporaryDir dir;
    SettingsStore settings(dir.filePath(QStringLiteral("settings.ini")));
    settings.save(Keys::MasterServer.key, QStringLiteral("127.0.0.1:%1").arg(options.masterPort));
    settings.save(Keys::ServerListUrls.key, web.url(QStringLiteral("/q4")).toString());
    settings.save(Keys::StartPort.key, QString::number(47500 + run * 40));
    settings.save(Keys::AutoUpdate.key, QStringLiteral("0"));
    ScriptedDesktop desktop;
    Language language;
    FrmMain main(settings, desktop, language, dir.path());
    main.show();

    Times times;
    QElapsedTimer clock;
    auto* list_ = main.findChild<QAbstractItemView*>(QStringLiteral("lstServerList"));
    auto* status = main.findChild<QLabel*>(QStringLiteral("lblStatus"));
    QTimer poll;
    poll.setTimerType(Qt::PreciseTimer);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (!clock.isValid())
            return;
        const int rows = list_->model()->rowCount();
        if (rows > 0 && times.firstRow < 0)
            times.firstRow = clock.elapsed();
        if (rows >= Servers && times.lastRow < 0)
            times.lastRow = clock.elapsed();
        if (status->text() == QLatin1String("Done")) {
            times.done = clock.elapsed();
            QCoreApplication::quit();
        }
    });
    poll.start(1);
    QTimer::singleShot(500, [&] {
        clock.start();
        main.findChild<QPushButton*>("cmdGet")->click();
    });
    QTimer::singleShot(15000, &QCoreApplication::quit);
    QCoreApplication::exec();
    return times;
}

qint64 median(QList<qint64> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

} // namespace

int sources()
{
    QList<qint64> first;
    QList<qint64> last;
    QList<qint64> done;
    for (int run = 0; run < Runs; ++run) {
        const Times times = oneQuery(run);
        first.append(times.firstRow);
        last.append(times.lastRow);
        done.append(times.done);
        std::printf("sources run %d: first row %lld ms, last live row %lld ms, Done %lld ms\n", run + 1, times.firstRow,
                    times.lastRow, times.done);
    }
    std::printf("sources: silent master + list answering in %d ms + %d servers answering in 0-40 ms: first row "
                "%lld ms, last live row %lld ms, Done %lld ms (median of %d)\n",
                ListDelayMs, Servers, median(first), median(last), median(done), Runs);
    return 0;
}
