// SPDX-License-Identifier: GPL-2.0-or-later
// Stands in for the game in join tests: writes the folder it was started
// in and each argument it got, each ended by a zero byte (an argument may
// hold line breaks), to the file named by Q4V_RECORD_TO.
#include <QCoreApplication>
#include <QDir>
#include <QFile>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QFile out(qEnvironmentVariable("Q4V_RECORD_TO"));
    if (!out.open(QIODevice::WriteOnly))
        return 1;
    out.write(QDir::currentPath().toUtf8() + '\0');
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        out.write(argument.toUtf8() + '\0');
    return 0;
}
