// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/messageline.h"

MessageLine::MessageLine(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("lblMessage"));
    // Much of what it says names files and addresses the user typed.
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void MessageLine::say(const QString& text)
{
    setText(text);
    setVisible(!text.isEmpty());
}
