// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/columnlayout.h"

#include "userdata/settingscodec.h"
#include "userdata/settingsstore.h"

#include <QHeaderView>

namespace ColumnLayout {

bool isPermutation(const QList<int>& order, int count)
{
    if (order.size() != count)
        return false;
    QList<bool> seen(count, false);
    for (int column : order) {
        if (column < 0 || column >= count || seen[column])
            return false;
        seen[column] = true;
    }
    return true;
}

QList<int> displayOrder(const QHeaderView& header)
{
    QList<int> order;
    order.reserve(header.count());
    for (int position = 0; position < header.count(); ++position)
        order.append(header.logicalIndex(position));
    return order;
}

bool applyDisplayOrder(QHeaderView& header, const QList<int>& order)
{
    if (!isPermutation(order, header.count()))
        return false;
    for (int position = 0; position < order.size(); ++position)
        header.moveSection(header.visualIndex(order[position]), position);
    return true;
}

QList<int> readOrder(const SettingsStore& settings, QStringView prefix, int count)
{
    QList<int> order;
    order.reserve(count);
    for (int position = 0; position < count; ++position) {
        order.append(settings.getNumber(SettingsCodec::columnOrderKey(prefix, position), position));
    }
    return order;
}

void restore(const SettingsStore& settings, QStringView prefix, QHeaderView& header)
{
    for (int column = 0; column < header.count(); ++column) {
        // A hidden column reads as 0 wide but keeps the width it will show with.
        const QString key = SettingsCodec::columnWidthKey(prefix, column);
        if (header.isSectionHidden(column) && !settings.contains(key))
            continue;
        const int width = settings.getNumber(key, header.sectionSize(column));
        header.resizeSection(column, std::max(width, 0));
    }
    applyDisplayOrder(header, readOrder(settings, prefix, header.count()));
    for (int column = 0; column < header.count(); ++column) {
        if (header.isSectionHidden(column) && settings.getNumber(SettingsCodec::columnShownKey(prefix, column), 0) == 1)
            header.showSection(column);
    }
}

void saveOrder(SettingsStore& settings, QStringView prefix, const QHeaderView& header)
{
    QList<int> order = displayOrder(header);
    while (!order.isEmpty() && order.last() == order.size() - 1 && header.isSectionHidden(order.last()))
        order.removeLast();
    for (int position = 0; position < order.size(); ++position)
        settings.saveNumber(SettingsCodec::columnOrderKey(prefix, position), order[position]);
}

void saveWidths(SettingsStore& settings, QStringView prefix, const QHeaderView& header)
{
    for (int column = 0; column < header.count(); ++column) {
        if (!header.isSectionHidden(column))
            settings.saveNumber(SettingsCodec::columnWidthKey(prefix, column), header.sectionSize(column));
    }
}

void saveShown(SettingsStore& settings, QStringView prefix, int column, bool shown)
{
    settings.saveNumber(SettingsCodec::columnShownKey(prefix, column), shown ? 1 : 0);
}

QList<int> shownOnly(QList<int> order, const QHeaderView& header)
{
    order.removeIf([&header](int column) { return header.isSectionHidden(column); });
    return order;
}

SortState readSort(const SettingsStore& settings, QStringView prefix, SortState designTime)
{
    return SortState{settings.getNumber(SettingsCodec::sortKeyKey(prefix), designTime.key),
                     settings.getNumber(SettingsCodec::sortOrderKey(prefix), designTime.order)};
}

void saveSort(SettingsStore& settings, QStringView prefix, SortState sort)
{
    settings.saveNumber(SettingsCodec::sortOrderKey(prefix), sort.order);
    settings.saveNumber(SettingsCodec::sortKeyKey(prefix), sort.key);
}

} // namespace ColumnLayout
