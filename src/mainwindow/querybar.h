// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QWidget>

class Desktop;
class QFrame;
class QHBoxLayout;
class QLayout;
class QProgressBar;
class QPushButton;
class QStackedLayout;
class QueryController;
class StatusLine;

// What the user sees of the queries: "Query Masters", "Query Favourites",
// "Query LAN" and "Cancel Query", the status line (its tooltip says what
// each source gave) and the progress bar, all driven by the query
// controller; and, when every source failed, the box that offers Retry.
// Two rows: the status line and the progress bar above, the buttons below.
class QueryBar final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QueryBar)

public:
    QueryBar(QueryController& queries, Desktop& desktop, QWidget* parent = nullptr);

    StatusLine* statusLine() const { return lblStatus; }
    // Controls of the window that go at the end of a row.
    void addToStatusRow(QWidget* control);
    void addToStatusRow(QLayout* controls);
    void addToButtonRow(QWidget* control);

    void setStatus(const QString& text, StatusTone tone);
    void retranslate();

signals:
    // "Options..." in the time-out box: the sources are chosen there.
    void sourcesWanted();

private:
    void setBusy(bool busy);

    QFrame* fraQuery = nullptr;
    QPushButton* cmdGet = nullptr;
    QPushButton* cmdFav = nullptr;
    QPushButton* cmdLan = nullptr;
    QPushButton* cmdCancel = nullptr;
    QStackedLayout* m_swap = nullptr;
    QWidget* m_starter = nullptr; // the button a keyboard query came from
    QHBoxLayout* m_statusRow = nullptr;
    QHBoxLayout* m_buttonRow = nullptr;
    StatusLine* lblStatus = nullptr;
    QProgressBar* prbProgress = nullptr;
};
