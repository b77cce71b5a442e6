// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/joincommand.h"

#include <QDir>
#include <QFileInfo>

namespace {

// A word of the runner's part as a user would type it.
QString shown(const QString& word)
{
    return word.contains(QLatin1Char(' ')) ? QLatin1Char('"') + word + QLatin1Char('"') : word;
}

} // namespace

JoinCommand JoinCommand::make(const QString& executable, const QString& playerName, const QString& address,
                              const QString& password)
{
    return make(GameInstall::picked(executable, QString()), playerName, address, password);
}

JoinCommand JoinCommand::make(const GameInstall& install, const QString& playerName, const QString& address,
                              const QString& password)
{
    JoinCommand command{install.program, {}, install.folder, {}, {}};
    QStringList before; // what comes ahead of the game's own arguments
    switch (install.kind) {
    case GameInstall::Kind::Program: {
        // The documented line: the path as it is, unquoted.
        const QFileInfo file(install.program);
        command.program = file.absoluteFilePath();
        command.workingFolder = file.absolutePath();
        command.commandLine = command.program;
        break;
    }
    case GameInstall::Kind::LinuxRelease:
        command.commandLine = shown(command.program);
        break;
    case GameInstall::Kind::Steam:
        // Steam URLs are no way in: they drop or question the arguments.
        before << QStringLiteral("-applaunch") << QString::number(GameInstall::SteamAppId);
        break;
    case GameInstall::Kind::FlatpakSteam:
        before << QStringLiteral("run") << QStringLiteral("com.valvesoftware.Steam") << QStringLiteral("-applaunch")
               << QString::number(GameInstall::SteamAppId);
        break;
    case GameInstall::Kind::Wine:
        before << install.windowsProgram;
        if (!install.prefix.isEmpty())
            command.environment << QStringLiteral("WINEPREFIX=") + install.prefix;
        break;
    }
    if (command.commandLine.isEmpty()) {
        QStringList words;
        for (const QString& variable : command.environment)
            words << shown(variable);
        words << shown(command.program);
        for (const QString& word : before)
            words << shown(word);
        command.commandLine = words.join(QLatin1Char(' '));
    }
    command.arguments = before;

    const QChar quote = QLatin1Char('"');
    if (!playerName.isEmpty()) {
        command.arguments << QStringLiteral("+set") << QStringLiteral("ui_name") << playerName;
        command.commandLine += QStringLiteral(" +set ui_name ") + quote + playerName + quote;
    }
    command.arguments << QStringLiteral("+connect") << address;
    command.commandLine += QStringLiteral(" +connect ") + address;
    if (!password.isEmpty()) {
        command.arguments << QStringLiteral("+set") << QStringLiteral("password") << password;
        command.commandLine += QStringLiteral(" +set password ") + quote + password + quote;
    }
    return command;
}
