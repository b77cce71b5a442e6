// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// How the game is started to join a server: the executable in its own
// folder with "+set ui_name NAME +connect ADDRESS +set password PW", each
// part present only when it has a value. The name and the password are
// separate arguments, never read by a shell.
struct JoinCommand {
    QString program;
    QStringList arguments;
    QString workingFolder;
    // The same as one line, name and password in double quotes (passed as
    // they are, quotes inside included): for logs and tests, never run.
    QString commandLine;

    static JoinCommand make(const QString& executable, const QString& playerName, const QString& address,
                            const QString& password);
};
