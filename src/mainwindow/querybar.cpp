// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/querybar.h"

#include "mainwindow/querycontroller.h"
#include "platform/desktop.h"
#include "widgets/statusline.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace {

QPushButton* makeButton(QWidget* parent, const char* objectName)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    return button;
}

} // namespace

QueryBar::QueryBar(QueryController& queries, Desktop& desktop, QWidget* parent)
    : QWidget(parent)
    , fraQuery(new QFrame(this))
    , lblStatus(new StatusLine(this))
    , prbProgress(new QProgressBar(this))
{
    fraQuery->setObjectName(QStringLiteral("fraQuery"));
    cmdGet = makeButton(fraQuery, "cmdGet");
    cmdFav = makeButton(fraQuery, "cmdFav");
    cmdLan = makeButton(fraQuery, "cmdLan");
    cmdCancel = makeButton(fraQuery, "cmdCancel");
    cmdCancel->setEnabled(false);
    // "Query LAN" and "Cancel Query" share one place, each shown while the
    // other is of no use: the row keeps its width, so the lists are not laid
    // out again (slow with many rows) and the window's minimum stays.
    auto* swapPlace = new QWidget(fraQuery);
    swapPlace->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_swap = new QStackedLayout(swapPlace);
    m_swap->addWidget(cmdLan);
    m_swap->addWidget(cmdCancel);
    auto* layout = new QHBoxLayout(fraQuery);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(cmdGet);
    layout->addWidget(cmdFav);
    layout->addWidget(swapPlace);
    layout->addStretch();

    prbProgress->setObjectName(QStringLiteral("prbProgress"));
    prbProgress->setRange(0, 1);
    prbProgress->setValue(0);
    prbProgress->setTextVisible(false);

    m_statusRow = new QHBoxLayout;
    m_statusRow->addWidget(lblStatus, 3);
    m_statusRow->addWidget(prbProgress, 2);
    m_buttonRow = new QHBoxLayout;
    m_buttonRow->addWidget(fraQuery, 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(m_statusRow);
    rows->addLayout(m_buttonRow);

    // The keys of every browser, wherever the focus is in the window: F5
    // queries, Esc stops a query. Each does what its button does, when the
    // button could be clicked.
    auto* queryKey = new QShortcut(QKeySequence::Refresh, this);
    connect(queryKey, &QShortcut::activated, this, [this] {
        if (cmdGet->isEnabled())
            cmdGet->click();
    });
    auto* stopKey = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    connect(stopKey, &QShortcut::activated, this, [this] {
        if (cmdCancel->isEnabled() && cmdCancel->isVisible())
            cmdCancel->click();
    });
    // The window starts with the focus on "Query Masters": the first thing
    // to do, one key away.
    setFocusProxy(cmdGet);
    connect(cmdGet, &QPushButton::clicked, &queries, &QueryController::startMasterQuery);
    connect(cmdFav, &QPushButton::clicked, &queries, &QueryController::startFavouritesQuery);
    connect(cmdLan, &QPushButton::clicked, &queries, &QueryController::startLanQuery);
    connect(cmdCancel, &QPushButton::clicked, &queries, &QueryController::cancel);
    connect(&queries, &QueryController::sourcesReported, lblStatus, &QWidget::setToolTip);
    connect(&queries, &QueryController::busyChanged, this, &QueryBar::setBusy);
    connect(&queries, &QueryController::status, this, &QueryBar::setStatus);
    connect(&queries, &QueryController::progress, this, [this](int value, int maximum) {
        prbProgress->setMaximum(maximum);
        prbProgress->setValue(value);
    });
    connect(&queries, &QueryController::masterTimedOut, this, [this, &queries, &desktop] {
        // Retry and Cancel as always; "Options..." leads to where a source
        // that works is added.
        const auto answer = desktop.message(
            window(), Desktop::Icon::Critical, tr("Quake 4 Vantage"), queries.timedOutText(),
            QMessageBox::Retry | QMessageBox::Cancel | QMessageBox::Open, {{QMessageBox::Open, tr("Options...")}});
        if (answer == QMessageBox::Retry)
            queries.startMasterQuery();
        else if (answer == QMessageBox::Open)
            emit sourcesWanted();
    });
}

void QueryBar::addToStatusRow(QWidget* control)
{
    m_statusRow->addWidget(control);
}

void QueryBar::addToStatusRow(QLayout* controls)
{
    m_statusRow->addLayout(controls);
}

void QueryBar::addToButtonRow(QWidget* control)
{
    m_buttonRow->addWidget(control);
}

void QueryBar::setStatus(const QString& text, StatusTone tone)
{
    lblStatus->setStatus(text, tone);
}

void QueryBar::retranslate()
{
    cmdCancel->setText(tr("Cancel Query"));
    cmdGet->setText(tr("Query Masters"));
    cmdFav->setText(tr("Query Favourites"));
    cmdLan->setText(tr("Query LAN"));
    cmdLan->setToolTip(tr("Find the servers of your local network"));
}

void QueryBar::setBusy(bool busy)
{
    // A query started from the keyboard leaves the focus on Cancel, and
    // its end puts it back on the button that started it.
    QWidget* focused = focusWidget();
    const bool ours = focused == cmdGet || focused == cmdFav || focused == cmdLan || focused == cmdCancel;
    if (busy && ours && focused != cmdCancel)
        m_starter = focused;
    cmdGet->setEnabled(!busy);
    cmdFav->setEnabled(!busy);
    cmdLan->setEnabled(!busy);
    cmdCancel->setEnabled(busy);
    m_swap->setCurrentWidget(busy ? cmdCancel : cmdLan);
    if (ours)
        (busy ? cmdCancel : m_starter ? m_starter : cmdGet)->setFocus(Qt::OtherFocusReason);
}
