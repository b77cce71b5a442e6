// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/find.h"

namespace Find {

int startRow(const QString& marker, int selectedRow, int rowCount)
{
    if (marker != QLatin1String("1"))
        return 0;
    const int next = selectedRow + 1;
    return next >= rowCount ? 0 : next;
}

int findRow(int rowCount, const std::function<QString(int row)>& textAt, QStringView text, int start)
{
    for (;;) {
        for (int row = start; row < rowCount; ++row) {
            if (textAt(row).startsWith(text, Qt::CaseInsensitive))
                return row;
        }
        for (int row = start; row < rowCount; ++row) {
            if (textAt(row).contains(text, Qt::CaseInsensitive))
                return row;
        }
        if (start == 0)
            return -1;
        start = 0;
    }
}

int nextMarked(int rowCount, const std::function<bool(int row)>& isMarked, int after)
{
    if (rowCount <= 0)
        return -1;
    const int first = after < 0 || after >= rowCount ? 0 : after + 1;
    for (int step = 0; step < rowCount; ++step) {
        const int row = (first + step) % rowCount;
        if (isMarked(row))
            return row;
    }
    return -1;
}

} // namespace Find
