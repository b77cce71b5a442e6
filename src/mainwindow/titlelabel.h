// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

#include <functional>

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
    // A line the About box adds to its own (what the program found on
    // this machine), asked each time it opens.
    void setNotes(std::function<QString()> notes) { m_notes = std::move(notes); }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void openAbout();

    Desktop& m_desktop;
    std::function<QString()> m_notes;
};
