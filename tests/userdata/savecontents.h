// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "presentation/themefile.h"
#include "userdata/favourites.h"
#include "userdata/filters.h"
#include "userdata/settingsstore.h"

#include <QFile>

#include <optional>

// Two different contents of each data file, written the program's way.
namespace SaveContents {

enum class Kind { Favourites, Filters, Settings, Themes };

inline std::optional<Kind> kindNamed(const QString& name)
{
    if (name == QLatin1String("favourites"))
        return Kind::Favourites;
    if (name == QLatin1String("filters"))
        return Kind::Filters;
    if (name == QLatin1String("settings"))
        return Kind::Settings;
    if (name == QLatin1String("themes"))
        return Kind::Themes;
    return std::nullopt;
}

// The second content is longer, so a torn write cannot pass for either.
inline bool save(Kind kind, const QString& path, bool second)
{
    const int rows = second ? 400 : 150;
    const char fill = second ? 'b' : 'a';
    switch (kind) {
    case Kind::Favourites: {
        QList<Favourites::Favourite> list;
        for (int i = 0; i < rows; ++i)
            list.append({QStringLiteral("10.0.%1.%2").arg(i / 256).arg(i % 256), 27960, QString(20, QLatin1Char(fill)),
                         QString()});
        return Favourites::writeFile(path, list);
    }
    case Kind::Filters: {
        QList<Filters::VariableFilter> list;
        for (int i = 0; i < rows; ++i)
            list.append({"si_map", QString(20, QLatin1Char(fill)) + QString::number(i)});
        return Filters::writeFile(path, list);
    }
    case Kind::Settings:
        return SettingsStore(path).save(Keys::PlayerNameBox.key, QString(rows * 20, QLatin1Char(fill)));
    case Kind::Themes: {
        ThemeFile::Themes themes;
        for (int i = 0; i < rows / 10; ++i)
            ThemeFile::saveTheme(themes, ThemeFile::systemTheme(QString(8, QLatin1Char(fill)) + QString::number(i)));
        return ThemeFile::writeFile(path, themes);
    }
    }
    return false;
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace SaveContents
