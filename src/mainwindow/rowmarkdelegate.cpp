// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/rowmarkdelegate.h"

#include "presentation/rowtones.h"
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

QIcon RowMarkDelegate::heart(const QColor& colour)
{
    static QHash<QRgb, QIcon> drawn;
    const auto found = drawn.constFind(colour.rgba());
    if (found != drawn.cend())
        return *found;
    constexpr int Size = 32;
    QPixmap pixmap(Size, Size);
    pixmap.fill(Qt::transparent);
    QPainterPath path;
    path.moveTo(Size * 0.5, Size * 0.9);
    path.cubicTo(Size * 0.1, Size * 0.6, Size * 0.0, Size * 0.35, Size * 0.12, Size * 0.2);
    path.cubicTo(Size * 0.25, Size * 0.05, Size * 0.45, Size * 0.1, Size * 0.5, Size * 0.28);
    path.cubicTo(Size * 0.55, Size * 0.1, Size * 0.75, Size * 0.05, Size * 0.88, Size * 0.2);
    path.cubicTo(Size * 1.0, Size * 0.35, Size * 0.9, Size * 0.6, Size * 0.5, Size * 0.9);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, colour);
    painter.end();
    return *drawn.insert(colour.rgba(), QIcon(pixmap));
}

QColor RowMarkDelegate::favouriteColour()
{
    return QColor(220, 60, 110);
}

void RowMarkDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const bool selected = option->state & QStyle::State_Selected;
    // A ping or a full server's players in its tone; a selected row keeps
    // the highlight's text colour, which reads on the highlight.
    if (const QVariant tone = index.data(RowMarks::ToneRole); tone.isValid() && !selected)
        option->palette.setColor(QPalette::Text,
                                 RowTones::colour(RowTones::Tier(tone.toInt()), option->palette.color(QPalette::Base)));
    const int marks = index.data(RowMarks::Role).toInt();
    if (marks & RowMarks::Friend)
        option->font.setBold(true);
    if (index.column() != 0 || !(marks & (RowMarks::Friend | RowMarks::Favourite)))
        return;
    // The friend's star and the favourite's heart, then the row's own icon
    // (a flag). On a selected row the highlight colour would hide the star.
    const int side = option->fontMetrics.height() - 2;
    QList<QPixmap> shown;
    if (marks & RowMarks::Friend)
        shown.append(
            star(option->palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight)).pixmap(side, side));
    if (marks & RowMarks::Favourite)
        shown.append(heart(favouriteColour()).pixmap(side, side));
    if (!option->icon.isNull())
        shown.append(option->icon.pixmap(option->decorationSize));
    if (shown.size() == 1) {
        option->icon = QIcon(shown.first());
        option->decorationSize = QSize(side, side);
    } else {
        int width = 0;
        int height = 0;
        for (const QPixmap& pixmap : std::as_const(shown)) {
            width += pixmap.width() + 2;
            height = std::max(height, pixmap.height());
        }
        QPixmap all(width - 2, height);
        all.fill(Qt::transparent);
        QPainter painter(&all);
        int left = 0;
        for (const QPixmap& pixmap : std::as_const(shown)) {
            painter.drawPixmap(left, (height - pixmap.height()) / 2, pixmap);
            left += pixmap.width() + 2;
        }
        painter.end();
        option->icon = QIcon(all);
        option->decorationSize = all.size();
    }
    option->features |= QStyleOptionViewItem::HasDecoration;
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
