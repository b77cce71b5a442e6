#include "desktop.h"
#include "folders.h"
#include "frmmain.h"
#include "language.h"
#include "settingsstore.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Quake 4 Vantage"));
    QApplication::setApplicationName(QStringLiteral("Quake 4 Vantage"));
    QApplication::setApplicationVersion(QStringLiteral(Q4V_VERSION));

    SettingsStore settings;
    QtDesktop desktop;
    Language language;
    FrmMain window(settings, desktop, language, Folders::dataFolder());
    window.show();
    return QApplication::exec();
}
