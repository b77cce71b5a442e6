// SPDX-License-Identifier: GPL-2.0-or-later
// Takes a picture of every window of the program in every language: the
// main window listing a simulated fleet (both views, friends marked, one
// server greyed by a refresh), the options dialog (every tab), the
// favourites and filters editors, Recently Played, the About box and the
// two update dialogs.
//   q4vantage-shots OUTPUT_FOLDER [LANGUAGE_INDEX...]
// Run it on a real display server (scripts/screenshots.sh uses Xvfb) to
// see the fonts and style a user sees.
#include "mainwindow/autorefresh.h"
#include "mainwindow/frmmain.h"
#include "mainwindow/querycontroller.h"
#include "platform/desktop.h"
#include "presentation/language.h"
#include "presentation/themefile.h"
#include "simfleet.h"
#include "simlocations.h"
#include "update/downloader.h"
#include "update/frmdownload.h"
#include "update/frmupdate.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>

namespace {

// Runs the event loop until the condition holds or the time is up.
bool waitFor(const std::function<bool()>& condition, int timeoutMs)
{
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (condition())
            loop.quit();
    });
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    poll.start(20);
    loop.exec();
    return condition();
}

void settle()
{
    waitFor([] { return false; }, 300);
}

bool save(QWidget* window, const QDir& folder, const QString& name)
{
    settle();
    const QString path = folder.filePath(name + QStringLiteral(".png"));
    const bool saved = window->grab().save(path);
    std::printf("%s %s\n", saved ? "wrote" : "could not write", qPrintable(path));
    return saved;
}

template <typename T> T* child(QObject* parent, const char* name)
{
    T* found = parent->findChild<T*>(QLatin1String(name));
    if (!found)
        qFatal("no control named %s", name);
    return found;
}

template <typename T> T* openedBy(QWidget& main, const char* button, const char* name)
{
    child<QPushButton>(&main, button)->click();
    T* window = nullptr;
    waitFor(
        [&] {
            window = main.findChild<T*>(QLatin1String(name));
            return window && window->isVisible();
        },
        3000);
    if (!window)
        qFatal("%s did not open %s", button, name);
    return window;
}

void click(QWidget* widget, QPoint at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

// The header's menu opened by a right click, its only entry chosen.
void toggleOptionalColumn(ReportView* list)
{
    QWidget* header = list->header()->viewport();
    QContextMenuEvent menuClick(QContextMenuEvent::Mouse, QPoint(20, 5), header->mapToGlobal(QPoint(20, 5)));
    QApplication::sendEvent(header, &menuClick);
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        menu->actions().constFirst()->trigger();
        menu->hide();
    }
    settle();
}

// A player's machine: the game in Steam's default library, steam on PATH.
// The options show it found and chosen, with the command a join runs.
QString layOutSteam(const QTemporaryDir& machine)
{
    const QDir root(machine.path());
    const QString game = root.filePath(QStringLiteral("home/.local/share/Steam/steamapps/common/Quake 4"));
    root.mkpath(game + QStringLiteral("/q4base"));
    root.mkpath(QStringLiteral("bin"));
    QFile manifest(root.filePath(QStringLiteral("home/.local/share/Steam/steamapps/appmanifest_2210.acf")));
    manifest.open(QIODevice::WriteOnly);
    manifest.write("\"AppState\"\n{\n\t\"appid\"\t\t\"2210\"\n\t\"installdir\"\t\t\"Quake 4\"\n}\n");
    QFile steam(root.filePath(QStringLiteral("bin/steam")));
    steam.open(QIODevice::WriteOnly);
    steam.write("#!/bin/sh\n");
    steam.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("HOME", root.filePath(QStringLiteral("home")).toLocal8Bit());
    qputenv("PATH", root.filePath(QStringLiteral("bin")).toLocal8Bit() + ':' + qgetenv("PATH"));
    return QFileInfo(game).canonicalFilePath();
}

QString steamGame;

bool shootLanguage(SimFleet& fleet, int language, const QDir& out)
{
    QTemporaryDir data;
    SettingsStore settings(data.filePath(QStringLiteral("settings.ini")));
    settings.save(Keys::Language.key, QString::number(language));
    settings.save(Keys::Game.key, QStringLiteral("steam:") + steamGame);
    settings.save(Keys::PlayerName.key, QStringLiteral("^1Fr^7agger"));
    // The fleet, and two small ones elsewhere in the world (by the
    // location database below): 127.0.0.9 in the United States, 127.0.0.17
    // in Russia.
    settings.save(Keys::MasterServer.key, QStringLiteral("127.0.0.1:27990 127.0.0.9:27990 127.0.0.17:27990"));
    settings.save(Keys::StartPort.key, QStringLiteral("41900"));
    // The simulated fleet only: no public list fetched for a picture.
    settings.save(Keys::ServerListUrls.key, QString());
    // The fleet placed in its countries, so the list shows their flags.
    const QString countries = data.filePath(QStringLiteral("loopback.db"));
    if (writeLoopbackCountries(countries))
        settings.save(Keys::CountryDatabase.key, countries);
    // Friends among the fleet's players, and two servers played lately.
    settings.set(Keys::Friends, {QStringLiteral("Fr*"), QStringLiteral("*Iron*")});
    PlayHistory::writeFile(PlayHistory::filePath(data.path()),
                           {{QStringLiteral("127.0.0.1"), 27993, QStringLiteral("Quad Storm #2"), 1795000000},
                            {QStringLiteral("127.0.0.1"), 27991, QStringLiteral("Frag Arena #0"), 1794900000}});
    QtDesktop desktop;
    Language languages;
    FrmMain main(settings, desktop, languages, data.path());
    main.show();
    settle();

    child<QPushButton>(&main, "cmdGet")->click();
    const QueryController& queries = main.queries();
    waitFor([&queries] { return queries.isRunning(); }, 2000);
    if (!waitFor([&queries] { return !queries.isRunning(); }, 20000))
        return false;
    // A server chosen, as a user's click chooses it, fills the panes.
    auto* servers = child<ReportView>(&main, "lstServerList");
    click(servers->viewport(), servers->visualRect(servers->model()->index(0, 0)).center());
    waitFor([&queries] { return !queries.isRunning(); }, 3000);
    // A refresh round in which one server stays silent: its row is greyed.
    fleet.setSilent(1, true);
    main.autoRefresh().refreshNow();
    waitFor([&queries] { return !queries.isRunning(); }, 5000);
    fleet.setSilent(1, false);

    bool ok = save(&main, out, QStringLiteral("main-servers"));
    // The country column shown from the header and sorted by its title.
    toggleOptionalColumn(servers);
    QHeaderView* header = servers->header();
    const int country = servers->optionalColumns().value(0);
    click(header->viewport(),
          QPoint(header->sectionViewportPosition(country) + header->sectionSize(country) / 2, header->height() / 2));
    settle();
    ok = save(&main, out, QStringLiteral("main-countries")) && ok;
    toggleOptionalColumn(servers);
    // The smallest the window may be: nothing may be cut there.
    main.resize(FrmMain::MinimumSize);
    ok = save(&main, out, QStringLiteral("main-smallest")) && ok;
    // Maximized, the columns share the screen's width.
    main.showMaximized();
    main.resize(main.screen()->availableGeometry().size()); // no window manager does it on the virtual display
    settle();
    ok = save(&main, out, QStringLiteral("main-maximized")) && ok;
    main.showNormal();
    main.resize(FrmMain::DesignSize);
    child<QTabBar>(&main, "tabSelect")->setCurrentIndex(FrmMain::PlayersTab);
    ok = save(&main, out, QStringLiteral("main-players")) && ok;
    child<QTabBar>(&main, "tabSelect")->setCurrentIndex(FrmMain::ServersTab);

    auto* options = openedBy<QDialog>(main, "cmdOptions", "frmOptions");
    auto* tabs = child<QTabWidget>(options, "tabOptions");
    ok = save(options, out, QStringLiteral("options-settings")) && ok;
    tabs->setCurrentIndex(1);
    ok = save(options, out, QStringLiteral("options-theme")) && ok;
    // The shipped dark theme, chosen as a user chooses it: shown at once on
    // every window, put back by Cancel.
    auto* themes = child<QComboBox>(options, "cmbThemes");
    const int dark = themes->findText(ThemeFile::shippedThemes().first().name);
    themes->setCurrentIndex(dark);
    emit themes->activated(dark);
    settle();
    ok = save(options, out, QStringLiteral("options-theme-dark")) && ok;
    ok = save(&main, out, QStringLiteral("main-dark")) && ok;
    main.resize(FrmMain::MinimumSize);
    ok = save(&main, out, QStringLiteral("main-dark-smallest")) && ok;
    main.showMaximized();
    main.resize(main.screen()->availableGeometry().size());
    ok = save(&main, out, QStringLiteral("main-dark-maximized")) && ok;
    main.showNormal();
    main.resize(FrmMain::DesignSize);
    tabs->setCurrentIndex(2);
    ok = save(options, out, QStringLiteral("options-servers")) && ok;
    tabs->setCurrentIndex(3);
    ok = save(options, out, QStringLiteral("options-friends")) && ok;
    child<QPushButton>(options, "cmdCancel")->click();

    auto* favourites = openedBy<QDialog>(main, "cmdOrganise", "frmFavourites");
    ok = save(favourites, out, QStringLiteral("favourites")) && ok;
    favourites->close();
    auto* filters = openedBy<QDialog>(main, "cmdFilters", "frmFilters");
    ok = save(filters, out, QStringLiteral("filters")) && ok;
    filters->hide();
    auto* recent = openedBy<QDialog>(main, "cmdRecent", "frmHistory");
    ok = save(recent, out, QStringLiteral("recently-played")) && ok;
    recent->close();

    // The About box opens from a click on the title.
    click(child<QLabel>(&main, "lblAbout"), QPoint(4, 4));
    QDialog* about = nullptr;
    waitFor(
        [&] {
            about = main.findChild<QDialog*>(QStringLiteral("frmAbout"));
            return about && about->isVisible();
        },
        3000);
    if (about) {
        ok = save(about, out, QStringLiteral("about")) && ok;
        about->close();
    }

    // The update dialogs as a newer version 1.2.3 would show them, the
    // download half way.
    const QStringList latest{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")};
    FrmUpdate update(settings, latest, &main);
    update.show();
    ok = save(&update, out, QStringLiteral("update")) && ok;
    update.hide();
    FrmDownload download(desktop, latest, &main);
    download.show();
    QMetaObject::invokeMethod(download.findChild<Downloader*>(), "progress", Q_ARG(qint64, 1048576),
                              Q_ARG(qint64, 2097152));
    ok = save(&download, out, QStringLiteral("download")) && ok;
    download.hide();
    main.close();
    return ok;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: q4vantage-shots OUTPUT_FOLDER [LANGUAGE_INDEX...]\n");
        return 2;
    }
    QList<int> languages;
    for (const QString& index : arguments.mid(2))
        languages.append(index.toInt());
    if (languages.isEmpty())
        languages = {0, 1, 2, 3, 4, 5, 6};

    const QTemporaryDir machine;
    steamGame = layOutSteam(machine);

    FleetOptions fleet;
    fleet.servers = 40;
    fleet.masterPort = 27990;
    fleet.firstServerPort = 27991;
    fleet.playersPerServer = 12;
    fleet.seed = 7;
    SimFleet simulated(fleet);
    fleet.servers = 4;
    fleet.seed = 8;
    fleet.address = QHostAddress(QStringLiteral("127.0.0.9"));
    SimFleet west(fleet);
    fleet.seed = 9;
    fleet.address = QHostAddress(QStringLiteral("127.0.0.17"));
    SimFleet east(fleet);
    for (SimFleet* started : {&simulated, &west, &east}) {
        if (const auto error = started->start()) {
            std::fprintf(stderr, "simulated fleet: %s\n", qPrintable(*error));
            return 1;
        }
    }
    bool ok = true;
    for (const int language : std::as_const(languages)) {
        const QDir out(QDir(arguments.at(1)).filePath(Language::localeName(language)));
        if (!QDir().mkpath(out.path())) {
            std::fprintf(stderr, "cannot create %s\n", qPrintable(out.path()));
            return 1;
        }
        ok = shootLanguage(simulated, language, out) && ok;
    }
    return ok ? 0 : 1;
}
