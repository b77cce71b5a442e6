// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QColor>
#include <QPalette>
#include <QWidget>

#include <functional>

class HistoryComboBox;
class QPushButton;
class QToolButton;
class ReportView;

// The find box and its button: finds a name in the list on show, as the
// user types (from the top) and with Find or Enter (after the selected
// row, wrapping round).
class FindBar final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FindBar)

public:
    // The list to search now, and the plain text of each of its rows.
    struct Target {
        ReportView* view = nullptr;
        std::function<QString(int row)> textAt;
    };
    using TargetOf = std::function<Target()>;

    explicit FindBar(TargetOf target, QWidget* parent = nullptr);

    HistoryComboBox* box() const { return m_box; }
    QPushButton* button() const { return m_button; }
    // "Next Friend": the next row marked as a friend's, wrapping round. A
    // star, as friends are marked in the lists, so the find row still fits
    // the narrowest window in every language.
    QToolButton* friendButton() const { return m_friendButton; }
    // Whether the user has any friends, for what to say when none is found.
    void setHasFriends(std::function<bool()> hasFriends) { m_hasFriends = std::move(hasFriends); }
    void retranslate();
    // The box's colour while its text is not found.
    static QColor notFoundColour();

signals:
    // A row was found and made current.
    void found(const QModelIndex& index);
    // Nothing is selected any more (an empty box, or no match).
    void selectionCleared();
    void status(const QString& text, StatusTone tone);

private:
    void findNext();
    void run();
    void findFriend();
    void showNotFound(bool notFound);

    TargetOf m_target;
    HistoryComboBox* m_box = nullptr;
    QPushButton* m_button = nullptr;
    QToolButton* m_friendButton = nullptr;
    std::function<bool()> m_hasFriends;
    // "1": the next search continues after the selected row.
    QString m_marker = QStringLiteral("0");
};
