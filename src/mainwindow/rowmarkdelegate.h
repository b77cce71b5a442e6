// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

// Draws the marks of the big lists' rows: a friend's row (or a server with
// a friend) in bold with a star before its name, a favourite server with a
// heart, a server that did not answer the last refresh faded; pings in
// their tone (good, fair, poor), a full server's players in the poor one.
// The colours follow the view's theme, so every theme keeps them readable.
class RowMarkDelegate final : public QStyledItemDelegate {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RowMarkDelegate)

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr double SilentOpacity = 0.45;

    static QIcon star(const QColor& colour);
    static QIcon heart(const QColor& colour);
    // The heart of a favourite: the same in every theme, as the flags are.
    static QColor favouriteColour();
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
