// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/reportmodel.h"

// The selected server's rules, two tokens per row: "Variable", "Value".
class ServerRulesModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerRulesModel)

public:
    enum Column { Variable, Value, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Variable"), 140},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Value"), 180},
    }};

    explicit ServerRulesModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    void setTokens(const QStringList& tokens);
    // The texts of one rule as the pane shows them: the server's name by
    // the server-name rule, everything else by the player-name rule, and
    // exactly "1" and "0" as the language's true and false.
    static QPair<QString, QString> displayed(const QString& key, const QString& value);

private:
    // The raw tokens stay, so the true/false words follow the language.
    QList<QPair<QString, QString>> m_rules;
};
