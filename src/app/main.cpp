// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/frmmain.h"
#include "platform/desktop.h"
#include "platform/folders.h"
#include "platform/singleinstance.h"
#include "presentation/language.h"
#include "userdata/settingsstore.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

namespace {

void nameTheProgram()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quake 4 Vantage"));
    QCoreApplication::setApplicationName(QStringLiteral("Quake 4 Vantage"));
    QCoreApplication::setApplicationVersion(QStringLiteral(Q4V_VERSION));
}

// --help and --version answer before anything needs a display, so they
// work over ssh and in scripts, and so does an option nobody knows: it is
// refused with the usage instead of being ignored. Qt's own options
// (-platform, -style, ...) are left for the GUI application to read.
void answerInformationOptions(int argc, char* argv[])
{
    QCoreApplication probe(argc, argv);
    nameTheProgram();
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A server browser for Quake 4: finds servers and players, "
                                                    "and joins a game with a double click."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addHelpOption();
    parser.addVersionOption();
    for (const char* name : {"platform", "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry",
                             "qwindowicon", "qwindowtitle", "session", "display", "geometry", "name", "title", "visual",
                             "style", "stylesheet", "fontengine", "dialogs", "qmljsdebugger"}) {
        QCommandLineOption qtOption(QLatin1String(name), QString(), QStringLiteral("value"));
        qtOption.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(qtOption);
    }
    for (const char* name : {"reverse", "widgetcount", "nograb", "dograb", "sync"}) {
        QCommandLineOption qtFlag{QString::fromLatin1(name)};
        qtFlag.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(qtFlag);
    }
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(0);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    if (!understood || !parser.positionalArguments().isEmpty()) {
        const QString why =
            !understood ? parser.errorText()
                        : QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
        std::fprintf(stderr, "q4vantage: %s\n\n%s", qPrintable(why), qPrintable(parser.helpText()));
        std::exit(2);
    }
}

[[noreturn]] int exitAtOnce(int exitCode)
{
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

} // namespace

int main(int argc, char* argv[])
{
    answerInformationOptions(argc, argv);
    QApplication app(argc, argv);
    nameTheProgram();
    QIcon icon;
    for (const char* size : {"32x32", "64x64", "128x128"})
        icon.addFile(QStringLiteral(":/icons/%1/q4vantage.png").arg(QLatin1String(size)));
    QApplication::setWindowIcon(icon);

    int exitCode = 0;
    {
        SettingsStore settings;
        // A second start shows the first one's window instead: two windows
        // would write the same favourites and settings over each other.
        SingleInstance instance(settings.filePath());
        if (!instance.claim()) {
            std::printf("Quake 4 Vantage is already running: its window was brought to the front.\n");
            return exitAtOnce(0);
        }
        QtDesktop desktop;
        Language language;
        FrmMain window(settings, desktop, language, Folders::dataFolder());
        QObject::connect(&instance, &SingleInstance::activationRequested, &window, [&window] {
            window.setWindowState((window.windowState() & ~Qt::WindowMinimized) | Qt::WindowActive);
            window.show();
            window.raise();
            window.activateWindow();
        });
        window.show();
        exitCode = QApplication::exec();
    }
    // Everything of ours is written and closed. Qt would still wait for the
    // name lookups of transfers that were cut short (a list's or the update
    // site's host) until the resolver gives up, seconds after the window
    // went: nothing is left that needs them.
    return exitAtOnce(exitCode);
}
