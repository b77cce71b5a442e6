// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/joincommand.h"

#include <QFileInfo>

JoinCommand JoinCommand::make(const QString& executable, const QString& playerName, const QString& address,
                              const QString& password)
{
    const QFileInfo file(executable);
    JoinCommand command{file.absoluteFilePath(), {}, file.absolutePath(), file.absoluteFilePath()};
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
