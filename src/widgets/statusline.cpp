// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/statusline.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

StatusLine::StatusLine(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("lblStatus"));
    // Source names and errors come from the network: shown as they are.
    setTextFormat(Qt::PlainText);
    // The status colours (orange, yellow, green, red) read best on black.
    // Both are drawn by the line itself: a theme, its style sheet or a
    // palette the application sets when a dialog closes never reach them.
    setAttribute(Qt::WA_OpaquePaintEvent);
    // Two lines, always: a long message is shortened within the line's
    // share of the row instead of widening it over the progress bar or
    // wrapping out of sight, and the lists above never move when a message
    // comes or goes.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(2 * fontMetrics().lineSpacing() + 4);
    setContentsMargins(4, 0, 4, 0);
}

void StatusLine::setStatus(const QString& text, StatusTone tone)
{
    m_tone = tone;
    setText(text);
    update(); // the same text in another tone
}

QStringList StatusLine::shownLines() const
{
    QStringList lines = text().split(QLatin1Char('\n'));
    if (lines.size() > 2)
        lines = QStringList{lines.first(), lines.mid(1).join(QLatin1Char(' '))};
    const int width = contentsRect().width();
    for (int i = 0; i < lines.size(); ++i)
        // The first line says what happens; the second names hosts and
        // addresses, whose ends tell them apart.
        lines[i] = fontMetrics().elidedText(lines.at(i), i == 0 ? Qt::ElideRight : Qt::ElideMiddle, width);
    return lines;
}

void StatusLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.setPen(colour(m_tone));
    const QStringList lines = shownLines();
    const int spacing = fontMetrics().lineSpacing();
    const QRect area = contentsRect();
    int top = area.top() + (area.height() - spacing * int(lines.size())) / 2;
    for (const QString& line : lines) {
        painter.drawText(QRect(area.left(), top, area.width(), spacing), Qt::AlignLeft | Qt::AlignVCenter, line);
        top += spacing;
    }
}

bool StatusLine::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !text().isEmpty() && shownLines() != text().split(QLatin1Char('\n'))) {
        const QString whole = toolTip().isEmpty() ? text() : text() + QStringLiteral("\n\n") + toolTip();
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole, this);
        return true;
    }
    return QLabel::event(event);
}

QColor StatusLine::colour(StatusTone tone)
{
    switch (tone) {
    case StatusTone::Requesting:
        return QColor(255, 128, 0);
    case StatusTone::Querying:
        return QColor(255, 255, 0);
    case StatusTone::Done:
        return QColor(0, 160, 16); // 6:1 on black, as the other tones
    case StatusTone::Failed:
        return QColor(255, 0, 0);
    case StatusTone::Hint:
        break;
    }
    return QColor(220, 220, 220);
}
