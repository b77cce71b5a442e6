// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

// The text the Copy Cell/Column/Row/All commands put on the clipboard; one
// rule for every list.
namespace CopyText {

enum class What { Cell, Column, Row, All };

inline const QString CellSeparator = QStringLiteral("     ");
inline const QString LineSeparator = QStringLiteral("\r\n");

struct List {
    int rowCount = 0;
    std::function<QString(int row, int column)> cell;
    int selectedRow = -1;
    int clickedColumn = 0;
    QList<int> displayOrder; // the column shown at each position
    // How the cells of one column are joined: one per line in the main
    // window, on one line in the two editors.
    QString columnJoin = LineSeparator;
};

// Cells of a row in display order joined by five spaces, rows by CR LF, no
// separator after the last; code 11 becomes "|". Nothing without a
// selected row.
std::optional<QString> build(What what, const List& list);

} // namespace CopyText
