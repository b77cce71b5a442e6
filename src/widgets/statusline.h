// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QColor>
#include <QLabel>

// The two-line status line under the lists.
class StatusLine final : public QLabel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatusLine)

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void setStatus(const QString& text, StatusTone tone);
    StatusTone tone() const { return m_tone; }
    // The text colour of a tone on the line's black background.
    static QColor colour(StatusTone tone);
    // The two lines as drawn: lines beyond the second join it, and each is
    // shortened with "..." to the line's width. The whole text stays the
    // label's text, and shows in the tooltip when it was shortened.
    QStringList shownLines() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    StatusTone m_tone = StatusTone::Hint;
};
