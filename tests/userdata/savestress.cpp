// SPDX-License-Identifier: GPL-2.0-or-later
// Saves one data file over and over, alternating between two contents,
// until it is killed: the crash-safety test kills it at random moments.
//   q4_savestress favourites|filters|settings PATH
#include "savecontents.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    const auto kind = SaveContents::kindNamed(arguments.at(1));
    if (!kind)
        return 2;
    for (unsigned round = 0;; ++round) {
        if (!SaveContents::save(*kind, arguments.at(2), round % 2 == 1))
            return 1;
        // The test waits for this before it picks its moment.
        if (round == 0) {
            fputs("saving\n", stdout);
            fflush(stdout);
        }
    }
}
