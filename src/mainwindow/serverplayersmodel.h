// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "query/records.h"
#include "widgets/reportmodel.h"

// The selected server's players: "Num", "Player", "Clan", "Ping", "Rate".
class ServerPlayersModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerPlayersModel)

public:
    enum Column { Number, Name, Clan, Ping, Rate, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Num"), 40},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Player"), 150},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Clan"), 80},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Ping"), 45},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Rate"), 55},
    }};

    explicit ServerPlayersModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    // Numbers by number, names by case-folded text; equal rows keep order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    void setPlayers(const QList<PlayerRecord>& players);
    // The name of a row without its colour codes; empty past the end.
    QString plainNameAt(int row) const { return m_rows.value(row).plainName; }

private:
    struct Row {
        PlayerRecord player;
        QString plainName;
        QString plainClan;
    };
    QList<Row> m_rows;
};
