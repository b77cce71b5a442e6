// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/rowmarkdelegate.h"

#include "widgets/reportmodel.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

QIcon RowMarkDelegate::star(const QColor& colour)
{
    static QHash<QRgb, QIcon> drawn;
    const auto found = drawn.constFind(colour.rgba());
    if (found != drawn.cend())
        return *found;
    constexpr int Size = 32;
    QPixmap pixmap(Size, Size);
    pixmap.fill(Qt::transparent);
    QPainterPath path;
    for (int point = 0; point < 10; ++point) {
        const double radius = point % 2 == 0 ? Size * 0.48 : Size * 0.2;
        const double angle = -M_PI / 2 + point * M_PI / 5;
        const QPointF at(Size / 2.0 + radius * std::cos(angle), Size / 2.0 + radius * std::sin(angle));
        point == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    path.closeSubpath();
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, colour);
    painter.end();
    return *drawn.insert(colour.rgba(), QIcon(pixmap));
}

void RowMarkDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const int marks = index.data(RowMarks::Role).toInt();
    if (marks & RowMarks::Friend) {
        option->font.setBold(true);
        if (index.column() == 0) {
            // On a selected row the highlight colour would hide the star.
            option->icon = star(option->palette.color(option->state & QStyle::State_Selected ? QPalette::HighlightedText
                                                                                             : QPalette::Highlight));
            option->features |= QStyleOptionViewItem::HasDecoration;
            const int side = option->fontMetrics.height() - 2;
            option->decorationSize = QSize(side, side);
        }
    }
}

void RowMarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    // Faded rather than drawn in the palette's disabled colour: the theme's
    // style sheet sets the lists' text colour and would win over a palette.
    // A selected row stays plain, so its highlight stays readable.
    if (!(index.data(RowMarks::Role).toInt() & RowMarks::Silent) || (option.state & QStyle::State_Selected)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    painter->save();
    painter->setOpacity(SilentOpacity);
    QStyledItemDelegate::paint(painter, option, index);
    painter->restore();
}
