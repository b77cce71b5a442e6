// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/statusline.h"

StatusLine::StatusLine(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("lblStatus"));
    // Source names and errors come from the network: shown as they are.
    setTextFormat(Qt::PlainText);
    // The status colours (orange, yellow, green, red) read best on black.
    setAutoFillBackground(true);
    QPalette statusPalette = palette();
    statusPalette.setColor(QPalette::Window, Qt::black);
    setPalette(statusPalette);
    // Two lines, always: a long message wraps within the line's share of
    // the row instead of widening it over the progress bar, and the lists
    // above never move when a message comes or goes.
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(2 * fontMetrics().lineSpacing() + 4);
    setContentsMargins(4, 0, 4, 0);
}

void StatusLine::setStatus(const QString& text, StatusTone tone)
{
    m_tone = tone;
    QPalette textPalette = palette();
    textPalette.setColor(QPalette::WindowText, colour(tone));
    setPalette(textPalette);
    setText(text);
}

QColor StatusLine::colour(StatusTone tone)
{
    switch (tone) {
    case StatusTone::Requesting:
        return QColor(255, 128, 0);
    case StatusTone::Querying:
        return QColor(255, 255, 0);
    case StatusTone::Done:
        return QColor(0, 128, 8);
    case StatusTone::Failed:
        return QColor(255, 0, 0);
    case StatusTone::Hint:
        break;
    }
    return QColor(220, 220, 220);
}
