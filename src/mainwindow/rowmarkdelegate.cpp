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
            const QIcon marked = star(option->palette.color(
                option->state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Highlight));
            const int side = option->fontMetrics.height() - 2;
            if (option->icon.isNull()) {
                option->icon = marked;
                option->decorationSize = QSize(side, side);
            } else {
                // The star, then the row's own icon (a flag) beside it.
                const QSize own = option->decorationSize;
                QPixmap both(side + 2 + own.width(), std::max(side, own.height()));
                both.fill(Qt::transparent);
                QPainter painter(&both);
                painter.drawPixmap(0, (both.height() - side) / 2, marked.pixmap(side, side));
                painter.drawPixmap(side + 2, (both.height() - own.height()) / 2, option->icon.pixmap(own));
                painter.end();
                option->icon = QIcon(both);
                option->decorationSize = both.size();
            }
            option->features |= QStyleOptionViewItem::HasDecoration;
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
