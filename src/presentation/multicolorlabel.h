// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "presentation/colourcodes.h"

#include <QColor>
#include <QList>
#include <QWidget>

// A one-line label that draws each character of its caption in its own
// colour, edge to edge: how a coloured player or server name looks.
class MulticolorLabel final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MulticolorLabel)
    Q_PROPERTY(QString Caption READ caption WRITE setCaption)
    Q_PROPERTY(QColor DefaultColor READ defaultColor WRITE setDefaultColor)
    Q_PROPERTY(QColor BackColor READ backColor WRITE setBackColor)

public:
    explicit MulticolorLabel(QWidget* parent = nullptr);

    QString caption() const { return m_caption; }
    // Keeps the colours of the characters that remain; new ones are black
    // until set.
    void setCaption(const QString& caption);

    // Colour of character index (1 to the caption's length); an invalid
    // colour outside that range.
    QColor color(int index) const;
    void setColor(int index, const QColor& colour);

    QColor defaultColor() const { return m_defaultColor; }
    void setDefaultColor(const QColor& colour);
    QColor backColor() const { return m_backColor.isValid() ? m_backColor : palette().color(QPalette::Window); }
    void setBackColor(const QColor& colour);

    // Caption and colours at once, as the renderers produce them.
    void setColouredText(const ColourCodes::ColouredText& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void propertyChanged(const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QString m_caption;
    QList<QColor> m_colours;
    QColor m_defaultColor;
    QColor m_backColor;
};
