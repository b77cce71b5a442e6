#include "colourcodes.h"

namespace ColourCodes {

namespace {
constexpr QChar Caret = QLatin1Char('^');
constexpr QChar StartOfHeading = QChar(1);
} // namespace

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
