// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

class Desktop;

// The program's name above the lists, in large bold letters; a click
// shows the About box. It keeps its place while hidden (during a query),
// so the lists are not laid out again (slow with many rows); F1 shows the
// About box whether the title is shown or not.
class TitleLabel final : public QLabel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TitleLabel)

public:
    explicit TitleLabel(Desktop& desktop, QWidget* parent = nullptr);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Desktop& m_desktop;
};
