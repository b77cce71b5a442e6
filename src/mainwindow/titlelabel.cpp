// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/titlelabel.h"

#include "presentation/frmabout.h"

#include <QMouseEvent>
#include <QShortcut>

TitleLabel::TitleLabel(Desktop& desktop, QWidget* parent)
    : QLabel(parent)
    , m_desktop(desktop)
{
    setObjectName(QStringLiteral("lblAbout"));
    setTextFormat(Qt::PlainText);
    setCursor(Qt::PointingHandCursor);
    QFont titleFont = font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.3);
    setFont(titleFont);
    QSizePolicy keepPlace = sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepPlace);
    // On the window, not on the title: the title is hidden during a query.
    auto* aboutKey = new QShortcut(QKeySequence(Qt::Key_F1), parent);
    connect(aboutKey, &QShortcut::activated, this, &TitleLabel::openAbout);
}

void TitleLabel::openAbout()
{
    FrmAbout::openFor(m_desktop, window(), m_notes ? m_notes() : QString());
}

void TitleLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        openAbout();
    QLabel::mouseReleaseEvent(event);
}
