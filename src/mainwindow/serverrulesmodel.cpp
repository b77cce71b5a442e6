// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverrulesmodel.h"

#include "presentation/colourcodes.h"

#include <algorithm>

ServerRulesModel::ServerRulesModel(QObject* parent)
    : ReportModel(ServerRulesModel::Columns, parent)
{
}

int ServerRulesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rules.size());
}

QPair<QString, QString> ServerRulesModel::displayed(const QString& key, const QString& value)
{
    const QString plainKey = ColourCodes::StripColourCodes(key);
    if (value == QLatin1String("1"))
        return {plainKey, tr("True")};
    if (value == QLatin1String("0"))
        return {plainKey, tr("False")};
    return {plainKey, plainKey == QLatin1String("si_name") ? ColourCodes::StripColourCodesCounted(value)
                                                           : ColourCodes::StripColourCodes(value)};
}

QVariant ServerRulesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rules.size() || role != Qt::DisplayRole)
        return {};
    const auto& [key, value] = m_rules.at(index.row());
    const auto shown = displayed(key, value);
    return index.column() == 0 ? shown.first : shown.second;
}

void ServerRulesModel::setTokens(const QStringList& tokens)
{
    beginResetModel();
    m_rules.clear();
    for (qsizetype i = 0; i < tokens.size(); i += 2)
        m_rules.append({tokens.at(i), i + 1 < tokens.size() ? tokens.at(i + 1) : QString()});
    endResetModel();
}

void ServerRulesModel::sort(int column, Qt::SortOrder order)
{
    emit layoutAboutToBeChanged();
    std::stable_sort(m_rules.begin(), m_rules.end(), [&](const auto& a, const auto& b) {
        const auto left = displayed(a.first, a.second);
        const auto right = displayed(b.first, b.second);
        const int compared = (column == 0 ? left.first.compare(right.first, Qt::CaseInsensitive)
                                          : left.second.compare(right.second, Qt::CaseInsensitive));
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    emit layoutChanged();
}
