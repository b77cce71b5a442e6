// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/themefile.h"

#include "query/lenientnumber.h"
#include "userdata/datafield.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <limits>

namespace ThemeFile {

namespace {

const QByteArray CurrentKey = QByteArrayLiteral("CurrentTheme=");
constexpr qsizetype KeyLength = 8;

// One field of a theme, by its key in the file.
struct Field {
    const char* key;
    Colour Theme::*colour;
    qint16 Theme::*index;
};

const Field Fields[] = {
    {"frmBack:", &Theme::formBack, nullptr},     {"lstBack:", &Theme::listBack, nullptr},
    {"lstFore:", &Theme::listText, nullptr},     {"txtBack:", &Theme::textBack, nullptr},
    {"txtFore:", &Theme::textText, nullptr},     {"cmbScrl:", nullptr, &Theme::progressType},
    {"prbBack:", &Theme::progressBack, nullptr}, {"prbFore:", &Theme::progressBar, nullptr},
    {"cmbTabS:", nullptr, &Theme::tabStyle},
};

QString latin1(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes);
}

} // namespace

Theme systemTheme(const QString& name)
{
    Theme theme;
    theme.name = name;
    theme.formBack = ButtonFace;
    theme.progressBack = ButtonFace;
    theme.listBack = WindowBackground;
    theme.textBack = WindowBackground;
    theme.listText = WindowText;
    theme.textText = WindowText;
    theme.progressBar = WindowText;
    theme.progressType = Segmented;
    theme.tabStyle = SmallTabs;
    return theme;
}

QList<Theme> shippedThemes()
{
    Theme dark;
    dark.name = QCoreApplication::translate("ThemeFile", "Dark");
    dark.formBack = rgbColour(45, 45, 48);
    dark.listBack = rgbColour(30, 30, 30);
    dark.listText = rgbColour(220, 220, 220);
    dark.textBack = rgbColour(30, 30, 30);
    dark.textText = rgbColour(230, 230, 230);
    dark.progressType = Smooth;
    dark.progressBack = rgbColour(30, 30, 30);
    dark.progressBar = rgbColour(86, 156, 214);
    dark.tabStyle = SmallTabs;
    return {dark, systemTheme(QCoreApplication::translate("ThemeFile", "Desktop Colours"))};
}

Themes parse(const QByteArray& bytes)
{
    Themes themes;
    bool named = false;
    qsizetype start = 0;
    while (start < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', start);
        if (end < 0)
            end = bytes.size();
        QByteArray line = bytes.mid(start, end - start);
        start = end + 1;
        if (line.endsWith('\r'))
            line.chop(1);

        if (line.startsWith(CurrentKey)) {
            themes.current = latin1(line.mid(CurrentKey.size()));
            named = true;
        } else if (line.startsWith('[') && line.endsWith(']') && line.size() >= 2) {
            Theme theme;
            theme.name = latin1(line.mid(1, line.size() - 2));
            themes.list.append(theme);
        } else if (line.size() >= KeyLength && !themes.list.isEmpty()) {
            const QByteArray key = line.left(KeyLength);
            const auto field =
                std::find_if(std::begin(Fields), std::end(Fields), [&key](const Field& f) { return key == f.key; });
            if (field == std::end(Fields))
                continue;
            const int value = LenientNumber::toInt(latin1(line.mid(KeyLength)));
            Theme& theme = themes.list.last();
            if (field->colour)
                theme.*(field->colour) = value;
            else
                theme.*(field->index) = qint16(
                    std::clamp<int>(value, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
        }
    }
    if (!named)
        themes.current = DefaultName;
    return themes;
}

QByteArray toBytes(const Themes& themes)
{
    QByteArray bytes = CurrentKey + dataFileField(themes.current) + "\r\n";
    for (const Theme& theme : themes.list) {
        if (theme.name.isEmpty())
            continue;
        bytes += '[' + dataFileField(theme.name) + "]\r\n";
        for (const Field& field : Fields) {
            const int value = field.colour ? theme.*(field.colour) : theme.*(field.index);
            bytes += field.key + QByteArray::number(value) + "\r\n";
        }
    }
    return bytes;
}

std::optional<Theme> currentTheme(const Themes& themes)
{
    for (const Theme& theme : themes.list) {
        if (theme.name == themes.current)
            return theme;
    }
    return std::nullopt;
}

void saveTheme(Themes& themes, const Theme& theme)
{
    const auto same = std::find_if(themes.list.begin(), themes.list.end(),
                                   [&theme](const Theme& saved) { return saved.name == theme.name; });
    if (same != themes.list.end())
        *same = theme;
    else
        themes.list.append(theme);
    themes.current = theme.name;
}

QString filePath(const QString& dataFolder)
{
    return QDir(dataFolder).filePath(FileName);
}

std::optional<Themes> readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // A real file is a few kilobytes; a huge one is not read whole.
    return parse(file.read(4 * 1024 * 1024));
}

bool writeFile(const QString& path, const Themes& themes)
{
    return writeWholeFile(path, toBytes(themes));
}

} // namespace ThemeFile
