// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

// Themes.ini: the saved colour themes and the name of the current one.
// Plain text, CR LF lines: "CurrentTheme=NAME", then ten lines per theme,
// "[NAME]" and nine "key:value" lines whose keys are eight characters
// with the colon. Numbers are signed decimals.
namespace ThemeFile {

inline const QString FileName = QStringLiteral("Themes.ini");
inline const QString DefaultName = QStringLiteral("Default");

// A colour: red in the low byte, then green, then blue; or, with the top
// bit set, a system colour whose number is in the low byte.
using Colour = qint32;
inline constexpr Colour ButtonFace = Colour(0x8000000F);       // -2147483633
inline constexpr Colour WindowBackground = Colour(0x80000005); // -2147483643
inline constexpr Colour WindowText = Colour(0x80000008);       // -2147483640

inline constexpr bool isSystemColour(Colour colour)
{
    return colour < 0;
}
inline constexpr int systemColourNumber(Colour colour)
{
    return colour & 0xFF;
}
inline constexpr Colour rgbColour(int red, int green, int blue)
{
    return Colour(red | (green << 8) | (blue << 16));
}

// The progress bar looks and tab styles, as list indexes.
enum ProgressType : qint16 { Standard = 0, Segmented = 1, Smooth = 2 };
enum TabStyle : qint16 { SmallTabs = 0, LargeTabs = 1 };

struct Theme {
    QString name;
    Colour formBack = 0;
    Colour listBack = 0;
    Colour listText = 0;
    Colour textBack = 0;
    Colour textText = 0;
    qint16 progressType = 0;
    Colour progressBack = 0;
    Colour progressBar = 0;
    qint16 tabStyle = 0;

    friend bool operator==(const Theme&, const Theme&) = default;
};

// The system colours and styles a missing file, and "Defaults", give.
Theme systemTheme(const QString& name = DefaultName);

// The themes the program brings along, named in the language in use: a
// dark one, and the desktop's own colours (which follow its palette). They
// are offered beside the saved ones and join the file once saved.
QList<Theme> shippedThemes();

struct Themes {
    QString current = DefaultName;
    QList<Theme> list; // file order; names may repeat, the first wins

    friend bool operator==(const Themes&, const Themes&) = default;
};

// Line by line: "CurrentTheme=" names the current theme, "[...]" starts a
// theme, a known eight-character key sets that field of the theme begun
// last (numbers read leniently), anything else is ignored.
Themes parse(const QByteArray& bytes);
// The whole file; themes with an empty name are not written.
QByteArray toBytes(const Themes& themes);

// The first theme of the current name, if any.
std::optional<Theme> currentTheme(const Themes& themes);
// Replaces the first theme of that name or appends it, and makes it the
// current one.
void saveTheme(Themes& themes, const Theme& theme);

QString filePath(const QString& dataFolder);
// Nothing when the file is missing or cannot be read.
std::optional<Themes> readFile(const QString& path);
// Replaces the file whole; false when it could not be written.
bool writeFile(const QString& path, const Themes& themes);

} // namespace ThemeFile
