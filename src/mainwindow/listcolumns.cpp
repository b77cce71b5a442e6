#include "listcolumns.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr std::array ServerListColumns{
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server"), 220},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Map"), 90},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Players"), 60},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Ping"), 45},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Pw"), 32},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Type"), 60},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Game"), 100},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server IP Address"), 140},
};

constexpr std::array PlayerListColumns{
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Player"), 140},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Clan"), 70},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Ping"), 45},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Rate"), 55},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server"), 180},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Map"), 90},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Players"), 60},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Svr Ping"), 60},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Pw"), 32},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Mod"), 100},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Game"), 60},
};

constexpr std::array ServerPlayersColumns{
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Num"), 40},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Player"), 150},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Clan"), 80},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Ping"), 45},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Rate"), 55},
};

constexpr std::array ServerRulesColumns{
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Variable"), 140},
    ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Value"), 180},
};

} // namespace

namespace ListColumns {

std::span<const ListColumn> serverList()
{
    return ServerListColumns;
}

std::span<const ListColumn> playerList()
{
    return PlayerListColumns;
}

std::span<const ListColumn> serverPlayers()
{
    return ServerPlayersColumns;
}

std::span<const ListColumn> serverRules()
{
    return ServerRulesColumns;
}

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
