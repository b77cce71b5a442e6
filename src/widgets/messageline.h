// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

// The line of a dialog that says what went wrong (a file not saved, an
// address refused), shown only while it has something to say. Its colour
// is the theme's (ThemeService), never set here.
class MessageLine final : public QLabel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MessageLine)

public:
    explicit MessageLine(QWidget* parent = nullptr);

    // An empty text hides the line.
    void say(const QString& text);
};
