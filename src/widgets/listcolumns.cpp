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

} // namespace ListColumns
