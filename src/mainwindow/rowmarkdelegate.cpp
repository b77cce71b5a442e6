// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/rowmarkdelegate.h"

#include "presentation/rowtones.h"
#include "widgets/reportmodel.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

constexpr int IconSize = 32;

// A mark filled in one colour, drawn once per colour and kept.
QIcon filledIcon(QHash<QRgb, QIcon>& drawn, const QColor& colour, const QPainterPath& path)
{
    const auto found = drawn.constFind(colour.rgba());
    if (found != drawn.cend())
        return *found;
    QPixmap pixmap(IconSize, IconSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, colour);
    painter.end();
    return *drawn.insert(colour.rgba(), QIcon(pixmap));
}

} // namespace

QIcon RowMarkDelegate::star(const QColor& colour)
{
    static QHash<QRgb, QIcon> drawn;
    static const QPainterPath path = [] {
        QPainterPath star;
        for (int point = 0; point < 10; ++point) {
            const double radius = point % 2 == 0 ? IconSize * 0.48 : IconSize * 0.2;
            const double angle = -M_PI / 2 + point * M_PI / 5;
            const QPointF at(IconSize / 2.0 + radius * std::cos(angle), IconSize / 2.0 + radius * std::sin(angle));
            point == 0 ? star.moveTo(at) : star.lineTo(at);
        }
        star.closeSubpath();
        return star;
    }();
    return filledIcon(drawn, colour, path);
}

QIcon RowMarkDelegate::heart(const QColor& colour)
{
    static QHash<QRgb, QIcon> drawn;
    static const QPainterPath path = [] {
        constexpr double Size = IconSize;
        QPainterPath heart;
        heart.moveTo(Size * 0.5, Size * 0.9);
        heart.cubicTo(Size * 0.1, Size * 0.6, Size * 0.0, Size * 0.35, Size * 0.12, Size * 0.2);
        heart.cubicTo(Size * 0.25, Size * 0.05, Size * 0.45, Size * 0.1, Size * 0.5, Size * 0.28);
        heart.cubicTo(Size * 0.55, Size * 0.1, Size * 0.75, Size * 0.05, Size * 0.88, Size * 0.2);
        heart.cubicTo(Size * 1.0, Size * 0.35, Size * 0.9, Size * 0.6, Size * 0.5, Size * 0.9);
        return heart;
    }();
    return filledIcon(drawn, colour, path);
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
