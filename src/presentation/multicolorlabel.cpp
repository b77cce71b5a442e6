// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/multicolorlabel.h"

#include "presentation/contrast.h"

#include <QEvent>
#include <QPainter>

MulticolorLabel::MulticolorLabel(QWidget* parent)
    : QWidget(parent)
    , m_defaultColor(palette().color(QPalette::ButtonText))
{
    // Until a back colour is set, the window's (and its theme's) shows.
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void MulticolorLabel::setCaption(const QString& caption)
{
    m_caption = caption;
    m_colours.resize(caption.size(), QColor(Qt::black));
    updateGeometry();
    update();
    setAccessibleName(caption);
    emit propertyChanged(QStringLiteral("Caption"));
}

QColor MulticolorLabel::color(int index) const
{
    if (index < 1 || index > m_colours.size())
        return {};
    return m_colours.at(index - 1);
}

void MulticolorLabel::setColor(int index, const QColor& colour)
{
    if (index < 1 || index > m_colours.size())
        return;
    m_colours[index - 1] = colour;
    update();
    emit propertyChanged(QStringLiteral("Color"));
}

void MulticolorLabel::setDefaultColor(const QColor& colour)
{
    m_defaultColor = colour;
    emit propertyChanged(QStringLiteral("DefaultColor"));
}

void MulticolorLabel::setBackColor(const QColor& colour)
{
    m_backColor = colour;
    QPalette background = palette();
    background.setColor(QPalette::Window, colour);
    setPalette(background);
    emit propertyChanged(QStringLiteral("BackColor"));
}

void MulticolorLabel::setColouredText(const ColourCodes::ColouredText& text)
{
    setCaption(text.text);
    for (int i = 0; i < text.colours.size(); ++i)
        m_colours[i] = QColor::fromRgb(text.colours.at(i));
    update();
}

QSize MulticolorLabel::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(m_caption) + 4, metrics.height() + 2};
}

QSize MulticolorLabel::minimumSizeHint() const
{
    return {0, QFontMetrics(font()).height() + 2};
}

void MulticolorLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(font());
    const QFontMetrics metrics(font());
    const int baseline = (height() - metrics.height()) / 2 + metrics.ascent();
    const QColor background = palette().color(QPalette::Window);
    int x = 2;
    for (int i = 0; i < m_caption.size(); ++i) {
        const QString character(m_caption.at(i));
        const QColor colour = m_colours.at(i);
        // Each character keeps its colour; one that would vanish into the
        // background (white on light grey) gets a shadow below and to the
        // right that does not. A ring all round would leave thin strokes
        // looking hollow.
        if (Contrast::ratio(colour, background) < Contrast::Legible) {
            painter.setPen(Contrast::outlineFor(colour));
            for (const QPoint offset : {QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)})
                painter.drawText(x + offset.x(), baseline + offset.y(), character);
        }
        painter.setPen(colour);
        painter.drawText(x, baseline, character);
        x += metrics.horizontalAdvance(m_caption.at(i));
    }
}

void MulticolorLabel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateGeometry();
        emit propertyChanged(QStringLiteral("Font"));
    }
}
