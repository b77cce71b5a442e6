// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/listcolumns.h"

#include <QCoreApplication>

namespace ListColumns {

QString caption(const ListColumn& column)
{
    return QCoreApplication::translate("ListColumns", column.caption);
}

QList<int> designWidths(std::span<const ListColumn> columns)
{
    QList<int> widths;
    for (const ListColumn& column : columns)
        widths.append(column.designWidth);
    return widths;
}

QList<int> optional(std::span<const ListColumn> columns)
{
    QList<int> found;
    for (size_t column = 0; column < columns.size(); ++column) {
        if (columns[column].optional)
            found.append(int(column));
    }
    return found;
}

} // namespace ListColumns
