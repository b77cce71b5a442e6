// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/statustone.h"

#include <QObject>

class QFrame;
class QProgressBar;
class QPushButton;
class QStackedLayout;
class QueryController;
class StatusLine;

// What the user sees of the queries: "Query Masters", "Query Favourites",
// "Query LAN" and "Cancel Query", the status line (its tooltip says what
// each source gave) and the progress bar, all driven by the query
// controller.
class QueryBar final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QueryBar)

public:
    QueryBar(QueryController& queries, QWidget* window);

    QFrame* buttons() const { return fraQuery; }
    StatusLine* statusLine() const { return lblStatus; }
    QProgressBar* progressBar() const { return prbProgress; }

    void setStatus(const QString& text, StatusTone tone);
    void retranslate();

private:
    void setBusy(bool busy);

    QFrame* fraQuery = nullptr;
    QPushButton* cmdGet = nullptr;
    QPushButton* cmdFav = nullptr;
    QPushButton* cmdLan = nullptr;
    QPushButton* cmdCancel = nullptr;
    QStackedLayout* m_swap = nullptr;
    StatusLine* lblStatus = nullptr;
    QProgressBar* prbProgress = nullptr;
};
