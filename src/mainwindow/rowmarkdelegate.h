// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

// Draws the marks of the big lists' rows: a friend's row (or a server with
// a friend) in bold with a star before its name, a server that did not
// answer the last refresh faded. The colours are those of the view's
// theme, so every theme keeps them readable.
class RowMarkDelegate final : public QStyledItemDelegate {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RowMarkDelegate)

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr double SilentOpacity = 0.45;

    static QIcon star(const QColor& colour);
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
