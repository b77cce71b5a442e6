// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <span>

// A column of a report list. Each model lists its columns beside its
// column enum, in creation order: column n of a list is the n in its
// per-column settings keys.
struct ListColumn {
    const char* caption; // English (UK) source text, translated in context "ListColumns"
    int designWidth;     // pixels on a first start
    // Hidden until the user shows it from the header's menu.
    bool optional = false;
};

namespace ListColumns {

QString caption(const ListColumn& column);
QList<int> designWidths(std::span<const ListColumn> columns);
QList<int> optional(std::span<const ListColumn> columns);

} // namespace ListColumns
