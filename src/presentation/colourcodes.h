// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// Names arrive with "^" colour codes: a caret and one character whose low
// three bits pick one of eight colours. These turn a coded name into the
// plain text the lists show, sort, find and copy. The two rules differ on
// purpose: each is the twin of the label that draws that kind of name.
namespace ColourCodes {

// Player names and clans: a caret followed by any character but another
// caret is a code and both vanish; "^^" keeps the first caret as text; a
// caret at the very end stays.
QString StripColourCodes(QStringView text);

// A colour as 0xAARRGGBB with alpha 0xFF, the layout of QRgb, so the label
// can use it directly while these rules stay free of any GUI library.
using Rgb = quint32;
constexpr Rgb rgb(int red, int green, int blue)
{
    return 0xFF000000u | (quint32(red) << 16) | (quint32(green) << 8) | quint32(blue);
}
inline constexpr Rgb Black = rgb(0, 0, 0);
inline constexpr Rgb White = rgb(255, 255, 255);

// The colour of a code character: its code modulo 8 into the table black,
// red, green, yellow, blue, cyan, magenta, white.
Rgb codeColour(QChar code);

// A name as a label draws it: its characters and one colour each.
struct ColouredText {
    QString text;
    QList<Rgb> colours;
    friend bool operator==(const ColouredText&, const ColouredText&) = default;
};

// Server names: carets are counted. One or two pending carets swallow the
// next character, three or more give back literal carets; pending carets
// at the end come back one more than there were. SOH (code 1) is dropped.
QString StripColourCodesCounted(QStringView text);

// The selected server's name, by the counted-caret grammar whose plain text
// StripColourCodesCounted gives: one or two pending carets take the next
// character as a code (the first one sets the colour), three or more give
// back literal carets, characters above code 127 are black.
ColouredText ShowServerName(QStringView text);

// The selected player's name, pairwise as StripColourCodes: "^0" is black
// only right after a literal caret ("^^0"), white otherwise; characters
// above code 127 are white.
ColouredText ShowPlayerName(QStringView text);

} // namespace ColourCodes
