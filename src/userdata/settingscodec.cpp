// SPDX-License-Identifier: GPL-2.0-or-later
#include "userdata/settingscodec.h"

#include "query/lenientnumber.h"

#include <limits>

namespace SettingsCodec {

int toNumber(QStringView text)
{
    return LenientNumber::toInt(text);
}

bool isOn(QStringView text)
{
    return text == QLatin1String("1");
}

QString flagText(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

bool toTruth(QStringView text, bool fallback)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    bool isNumber = false;
    const double number = trimmed.toDouble(&isNumber);
    if (isNumber)
        return number != 0.0;
    return fallback;
}

QString truthText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString encodeEntries(const QStringList& entries)
{
    QString text;
    for (const QString& entry : entries) {
        text += entry;
        text += EntryTerminator;
    }
    return text;
}

QStringList decodeEntries(QStringView text)
{
    QStringList entries;
    qsizetype position = 0;
    for (;;) {
        const qsizetype end = text.indexOf(EntryTerminator, position);
        if (end < 0)
            break;
        entries.append(text.mid(position, end - position).toString());
        position = end + 1;
    }
    return entries;
}

QString columnOrderKey(QStringView prefix, int column)
{
    return prefix.toString() + QLatin1String("ColumnOrder") + QString::number(column);
}

QString columnWidthKey(QStringView prefix, int column)
{
    return prefix.toString() + QLatin1String("ColumnWidth") + QString::number(column);
}

QString columnShownKey(QStringView prefix, int column)
{
    return prefix.toString() + QLatin1String("ColumnShown") + QString::number(column);
}

QString sortOrderKey(QStringView prefix)
{
    return prefix.toString() + QLatin1String("SortOrder");
}

QString sortKeyKey(QStringView prefix)
{
    return prefix.toString() + QLatin1String("SortKey");
}

} // namespace SettingsCodec
