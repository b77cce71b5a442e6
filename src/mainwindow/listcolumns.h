#pragma once

#include <QList>
#include <QString>

#include <span>

// The columns of the main window's four lists, in creation order: column
// n of a list is the n in its per-column settings keys.
struct ListColumn {
    const char* caption; // English (UK) source text, translated in context "ListColumns"
    int designWidth;     // pixels on a first start
};

namespace ListColumns {

std::span<const ListColumn> serverList();
std::span<const ListColumn> playerList();
std::span<const ListColumn> serverPlayers();
std::span<const ListColumn> serverRules();

QString caption(const ListColumn& column);
QList<int> designWidths(std::span<const ListColumn> columns);

} // namespace ListColumns
