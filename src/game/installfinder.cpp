// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/installfinder.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QStandardPaths>

namespace InstallFinder {

namespace {

const QString FlatpakSteamRoot = QStringLiteral(".var/app/com.valvesoftware.Steam/.local/share/Steam");

bool isProgram(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isExecutable();
}

// One spelling per folder, so a root reached through ~/.steam/steam's
// link and again directly is read once.
QString canonical(const QString& path)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return real.isEmpty() ? QString() : real;
}

QString onPath(const GamePlaces& places, const QString& name)
{
    if (places.searchPath.isEmpty())
        return {};
    return QStandardPaths::findExecutable(name, places.searchPath);
}

class Finder {
public:
    explicit Finder(const GamePlaces& places)
        : m_places(places)
        , m_home(places.home.isEmpty() ? QString() : QDir(places.home).absolutePath())
    {
    }

    QList<GameInstall> run()
    {
        if (!m_home.isEmpty()) {
            const QString steam = onPath(m_places, QStringLiteral("steam"));
            for (const char* root : {".steam/steam", ".local/share/Steam", ".steam/debian-installation"})
                steamRoot(home(QLatin1String(root)), GameInstall::Kind::Steam, steam);
            steamRoot(home(FlatpakSteamRoot), GameInstall::Kind::FlatpakSteam,
                      onPath(m_places, QStringLiteral("flatpak")));
        }
        linuxReleases();
        wine();
        return m_found;
    }

private:
    QString home(const QString& relative) const { return QDir(m_home).filePath(relative); }

    // Adds an install unless its folder is listed already.
    void add(GameInstall install)
    {
        const QString real = canonical(install.folder);
        if (real.isEmpty() || m_folders.contains(real))
            return;
        m_folders.insert(real);
        // Shown to the user and kept in the settings: the real folder, not
        // the link it was reached through.
        install.folder = real;
        m_found.append(std::move(install));
    }

    void steamRoot(const QString& root, GameInstall::Kind kind, QString runner)
    {
        const QString real = canonical(root);
        if (real.isEmpty() || m_roots.contains(real) || !QFileInfo(root).isDir())
            return;
        m_roots.insert(real);
        // Valve's own script starts the client where no steam is on PATH.
        if (runner.isEmpty() && kind == GameInstall::Kind::Steam &&
            isProgram(QDir(root).filePath(QStringLiteral("steam.sh"))))
            runner = QDir(root).filePath(QStringLiteral("steam.sh"));
        if (runner.isEmpty())
            return;
        QStringList libraries{root};
        if (const auto folders =
                KeyValues::readFile(QDir(root).filePath(QStringLiteral("steamapps/libraryfolders.vdf"))))
            libraries << steamLibraries(*folders).mid(0, MaxLibraries);
        for (const QString& library : libraries) {
            const QString realLibrary = canonical(library);
            if (realLibrary.isEmpty() || m_libraries.contains(realLibrary))
                continue;
            m_libraries.insert(realLibrary);
            const QDir apps(QDir(library).filePath(QStringLiteral("steamapps")));
            const auto manifest =
                KeyValues::readFile(apps.filePath(QStringLiteral("appmanifest_%1.acf").arg(GameInstall::SteamAppId)));
            const QString dir = manifest ? installDir(*manifest) : QString();
            const QString folder = apps.filePath(QStringLiteral("common/") + dir);
            if (!dir.isEmpty() && QFileInfo(folder).isDir())
                add({kind, folder, runner, {}, {}, {}});
        }
    }

    void linuxReleases()
    {
        QStringList folders;
        if (!m_places.systemRoot.isEmpty()) {
            const QDir root(m_places.systemRoot);
            for (const char* folder : {"usr/local/games/quake4", "opt/quake4", "usr/lib/quake4"})
                folders << root.filePath(QLatin1String(folder));
        }
        if (!m_home.isEmpty())
            folders << home(QStringLiteral(".local/share/quake4"));
        const QString userFolder = m_home.isEmpty() ? QString() : home(QStringLiteral(".quake4"));
        for (const QString& folder : folders) {
            // The launcher first: it sets up the libraries the binary needs.
            for (const char* name : {"quake4", "quake4.x86", "quake4smp.x86"}) {
                const QString program = QDir(folder).filePath(QLatin1String(name));
                if (isProgram(program)) {
                    add({GameInstall::Kind::LinuxRelease, folder, program, {}, {}, userFolder});
                    break;
                }
            }
        }
        // A quake4 on PATH is often a link into one of the folders above.
        const QString launcher = onPath(m_places, QStringLiteral("quake4"));
        if (!launcher.isEmpty())
            add({GameInstall::Kind::LinuxRelease,
                 QFileInfo(canonical(launcher)).absolutePath(),
                 launcher,
                 {},
                 {},
                 userFolder});
    }

    void wine()
    {
        QStringList prefixes;
        if (!m_home.isEmpty())
            prefixes << home(QStringLiteral(".wine"));
        prefixes << m_places.winePrefixes;
        const QString runner = wineProgram(m_places);
        if (runner.isEmpty())
            return;
        QSet<QString> seen;
        for (const QString& prefix : prefixes) {
            const QString real = canonical(prefix);
            if (real.isEmpty() || seen.contains(real))
                continue;
            seen.insert(real);
            for (const char* programFiles : {"Program Files", "Program Files (x86)"}) {
                const QString exe = QDir(prefix).filePath(
                    QStringLiteral("drive_c/%1/id Software/Quake 4/quake4.exe").arg(QLatin1String(programFiles)));
                if (QFileInfo(exe).isFile()) {
                    GameInstall install = GameInstall::throughWine(exe, runner);
                    install.prefix = QDir(prefix).absolutePath();
                    add(install);
                }
            }
        }
    }

    const GamePlaces& m_places;
    QString m_home;
    QList<GameInstall> m_found;
    QSet<QString> m_folders;
    QSet<QString> m_roots;
    QSet<QString> m_libraries;
};

} // namespace

QList<GameInstall> find(const GamePlaces& places)
{
    return Finder(places).run();
}

QString wineProgram(const GamePlaces& places)
{
    return onPath(places, QStringLiteral("wine"));
}

std::optional<GameInstall> chosen(const QString& setting, const QString& path, const QList<GameInstall>& found,
                                  const GamePlaces& places)
{
    if (setting.isEmpty() || setting == GameInstall::PickedSetting) {
        if (path.trimmed().isEmpty())
            return std::nullopt;
        return GameInstall::picked(path, places.home);
    }
    for (const GameInstall& install : found)
        if (install.settingText() == setting)
            return install;
    const QString wine = QStringLiteral("wine:");
    if (setting.startsWith(wine) && QFileInfo(setting.mid(wine.size())).isFile() && !wineProgram(places).isEmpty()) {
        const GameInstall install = GameInstall::throughWine(setting.mid(wine.size()), wineProgram(places));
        return install;
    }
    return std::nullopt;
}

QStringList steamLibraries(const QList<KeyValues::Pair>& libraryFolders)
{
    QStringList paths;
    for (const KeyValues::Pair& top : libraryFolders) {
        if (top.key.compare(QLatin1String("libraryfolders"), Qt::CaseInsensitive) != 0 || !top.block)
            continue;
        for (const KeyValues::Pair& entry : top.pairs) {
            bool numbered = false;
            entry.key.toInt(&numbered);
            if (!numbered)
                continue; // "TimeNextStatsReport", "ContentStatsID"
            const QString path = entry.block ? entry.text(u"path") : entry.value;
            if (QDir::isAbsolutePath(path))
                paths << QDir::cleanPath(path);
        }
    }
    return paths;
}

QString installDir(const QList<KeyValues::Pair>& manifest)
{
    for (const KeyValues::Pair& top : manifest) {
        if (top.key.compare(QLatin1String("AppState"), Qt::CaseInsensitive) != 0 || !top.block)
            continue;
        const QString dir = top.text(u"installdir");
        // A name, never a way out of steamapps/common.
        if (dir.isEmpty() || dir == QLatin1String(".") || dir == QLatin1String("..") ||
            dir.contains(QLatin1Char('/')) || dir.contains(QLatin1Char('\\')))
            return {};
        return dir;
    }
    return {};
}

} // namespace InstallFinder
