// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/copytext.h"

namespace CopyText {

namespace {

QString rowText(const List& list, int row)
{
    QString text;
    for (qsizetype position = 0; position < list.displayOrder.size(); ++position) {
        if (position > 0)
            text += CellSeparator;
        text += list.cell(row, list.displayOrder.at(position));
    }
    return text;
}

} // namespace

std::optional<QString> build(What what, const List& list)
{
    if (list.selectedRow < 0 || list.selectedRow >= list.rowCount)
        return std::nullopt;
    QString text;
    switch (what) {
    case What::Cell:
        text = list.cell(list.selectedRow, list.clickedColumn);
        break;
    case What::Column:
        for (int row = 0; row < list.rowCount; ++row) {
            if (row > 0)
                text += list.columnJoin;
            text += list.cell(row, list.clickedColumn);
        }
        break;
    case What::Row:
        text = rowText(list, list.selectedRow);
        break;
    case What::All:
        for (int row = 0; row < list.rowCount; ++row) {
            if (row > 0)
                text += LineSeparator;
            text += rowText(list, row);
        }
        break;
    }
    text.replace(QChar(11), QLatin1Char('|'));
    return text;
}

} // namespace CopyText
