// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/gameplaces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

// Steam's app manifest of the game, as the client writes it.
inline const QByteArray SteamManifest =
    "\"AppState\"\n{\n\t\"appid\"\t\t\"2210\"\n\t\"installdir\"\t\t\"Quake 4\"\n}\n";

// A machine as players have it, under a folder of its own: a home, a
// system root and a PATH of stand-in programs.
class FakeMachine {
public:
    FakeMachine()
    {
        QDir(m_dir.path()).mkpath(QStringLiteral("home"));
        QDir(m_dir.path()).mkpath(QStringLiteral("root"));
        QDir(m_dir.path()).mkpath(QStringLiteral("bin"));
    }
    QString path(const QString& relative) const { return QDir(m_dir.path()).filePath(relative); }
    QString home(const QString& relative = {}) const { return path(QStringLiteral("home/") + relative); }

    void write(const QString& relative, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(path(relative)).absolutePath());
        QFile file(path(relative));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(relative));
    }
    void program(const QString& relative) const
    {
        write(relative, "#!/bin/sh\n");
        QFile(path(relative)).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
    void link(const QString& target, const QString& relative) const
    {
        QDir().mkpath(QFileInfo(path(relative)).absolutePath());
        if (!QFile::link(target, path(relative)))
            qFatal("cannot link %s", qPrintable(relative));
    }
    // A Steam library holding the game.
    void steamGame(const QString& library) const
    {
        write(library + QStringLiteral("/steamapps/appmanifest_2210.acf"), SteamManifest);
        write(library + QStringLiteral("/steamapps/common/Quake 4/quake4.exe"), "MZ");
        QDir().mkpath(path(library + QStringLiteral("/steamapps/common/Quake 4/q4base")));
    }
    GamePlaces places() const { return {home(), {path(QStringLiteral("bin"))}, {}, path(QStringLiteral("root"))}; }
    QString real(const QString& relative) const { return QFileInfo(path(relative)).canonicalFilePath(); }

private:
    QTemporaryDir m_dir;
};
