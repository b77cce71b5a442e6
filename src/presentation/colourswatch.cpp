// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/colourswatch.h"

#include "presentation/themeservice.h"

#include <QPainter>
#include <QStyleOptionButton>

ColourSwatch::ColourSwatch(const ThemeService& themes, QWidget* parent)
    : QPushButton(parent)
    , m_themes(themes)
{
    setMinimumSize(48, 22);
    setAutoDefault(false);
}

void ColourSwatch::setValue(ThemeFile::Colour value)
{
    m_value = value;
    update();
}

QColor ColourSwatch::color() const
{
    return m_themes.toColor(m_value);
}

void ColourSwatch::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect inside = rect().adjusted(4, 4, -5, -5);
    painter.fillRect(inside, color());
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(inside);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}
