// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/colourcodes.h"

namespace ColourCodes {

namespace {
constexpr QChar Caret = QLatin1Char('^');
constexpr QChar StartOfHeading = QChar(1);
} // namespace

Rgb codeColour(QChar code)
{
    static constexpr Rgb table[] = {Black,          rgb(255, 0, 0),   rgb(0, 255, 0),   rgb(255, 255, 0),
                                    rgb(0, 0, 255), rgb(0, 255, 255), rgb(255, 0, 255), White};
    return table[code.unicode() % 8];
}

namespace {
void put(ColouredText& out, QChar c, Rgb colour)
{
    out.text.append(c);
    out.colours.append(colour);
}
} // namespace

ColouredText ShowServerName(QStringView text)
{
    ColouredText out;
    int pending = 0;
    bool codePending = false;
    Rgb colour = White;
    for (const QChar c : text) {
        if (c == Caret) {
            codePending = true;
            ++pending;
            continue;
        }
        while (pending >= 3) {
            put(out, Caret, colour);
            --pending;
        }
        if (pending > 0) {
            if (codePending) {
                colour = codeColour(c);
                codePending = false;
            }
            --pending;
            continue;
        }
        put(out, c, c.unicode() > 127 ? Black : colour);
    }
    if (pending > 0) {
        for (int i = 0; i <= pending; ++i)
            put(out, Caret, colour);
    }
    return out;
}

ColouredText ShowPlayerName(QStringView text)
{
    ColouredText out;
    Rgb colour = White;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == Caret && i + 1 < text.size() && text[i + 1] != Caret) {
            const int code = text[i + 1].unicode() % 8;
            if (code != 0)
                colour = codeColour(text[i + 1]);
            else
                colour = i >= 1 && text[i - 1] == Caret ? Black : White;
            ++i;
            continue;
        }
        put(out, c, c != Caret && c.unicode() > 127 ? White : colour);
    }
    return out;
}

QString StripColourCodes(QStringView text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == Caret && i + 1 < text.size() && text[i + 1] != Caret) {
            ++i;
            continue;
        }
        plain.append(text[i]);
    }
    return plain;
}

QString StripColourCodesCounted(QStringView text)
{
    QString plain;
    plain.reserve(text.size());
    int pending = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == StartOfHeading)
            continue;
        if (c == Caret) {
            ++pending;
            continue;
        }
        // Three or more pending carets each give back a literal one until
        // two are left; those two (or one) swallow this character.
        while (pending >= 3) {
            plain.append(Caret);
            --pending;
        }
        if (pending > 0)
            --pending;
        else
            plain.append(c);
    }
    if (pending > 0)
        plain.append(QString(pending + 1, Caret));
    return plain;
}

} // namespace ColourCodes
