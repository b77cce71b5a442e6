// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/findbar.h"

#include "mainwindow/find.h"
#include "mainwindow/rowmarkdelegate.h"
#include "widgets/historycombobox.h"
#include "widgets/reportmodel.h"
#include "widgets/reportview.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

FindBar::FindBar(TargetOf target, QWidget* parent)
    : QWidget(parent)
    , m_target(std::move(target))
    , m_box(new HistoryComboBox(this))
    , m_button(new QPushButton(this))
    , m_friendButton(new QToolButton(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_box, 1);
    row->addWidget(m_button);
    row->addWidget(m_friendButton);
    m_friendButton->setObjectName(QStringLiteral("cmdFindFriend"));
    m_friendButton->setAutoRaise(true);
    connect(m_friendButton, &QPushButton::clicked, this, &FindBar::findFriend);
    m_box->setObjectName(QStringLiteral("cmbFind"));
    m_button->setObjectName(QStringLiteral("cmdFind"));
    m_button->setAutoDefault(false);
    connect(m_box, &QComboBox::editTextChanged, this, &FindBar::run);
    connect(m_box, &HistoryComboBox::picked, this, &FindBar::run);
    connect(m_box, &HistoryComboBox::enterPressed, this, &FindBar::findNext);
    connect(m_button, &QPushButton::clicked, this, &FindBar::findNext);
    // Ctrl+F, as everywhere: the box takes the focus with its text chosen.
    auto* findKey = new QShortcut(QKeySequence::Find, this);
    connect(findKey, &QShortcut::activated, this, [this] {
        m_box->setFocus(Qt::ShortcutFocusReason);
        m_box->lineEdit()->selectAll();
    });
}

void FindBar::retranslate()
{
    m_button->setText(tr("Find"));
    m_box->setAccessibleName(tr("Find"));
    m_friendButton->setIcon(RowMarkDelegate::star(m_friendButton->palette().color(QPalette::Highlight)));
    m_friendButton->setAccessibleName(tr("Next Friend"));
    m_friendButton->setToolTip(tr("Next Friend") + QLatin1Char('\n') + tr("Select the next listed friend"));
}

QColor FindBar::notFoundColour()
{
    return QColor(255, 102, 102);
}

void FindBar::showNotFound(bool notFound)
{
    // The box's own style sheet: the theme's, set for every box of the
    // application, wins over any palette.
    m_box->setStyleSheet(notFound ? QStringLiteral("QComboBox, QLineEdit { background-color: %1; color: black; }")
                                        .arg(notFoundColour().name())
                                  : QString());
}

void FindBar::findFriend()
{
    const Target target = m_target();
    ReportView* list = target.view;
    const QAbstractItemModel* model = list->model();
    const int selected = list->currentIndex().isValid() ? list->currentIndex().row() : -1;
    const int row = Find::nextMarked(
        model->rowCount(),
        [model](int row) { return model->index(row, 0).data(RowMarks::Role).toInt() & RowMarks::Friend; }, selected);
    if (row < 0) {
        emit status(m_hasFriends && !m_hasFriends()
                        ? tr("No friends yet: right-click a player and choose \"Add To Friends\".")
                        : tr("None of your friends is listed."),
                    StatusTone::Hint);
        return;
    }
    const QModelIndex index = model->index(row, 0);
    list->setCurrentIndex(index);
    list->scrollTo(index);
    emit found(index);
}

void FindBar::findNext()
{
    m_marker = QStringLiteral("1");
    m_box->remember(m_box->currentText());
    run();
}

void FindBar::run()
{
    const Target target = m_target();
    ReportView* list = target.view;
    const QString text = m_box->currentText();
    if (text.isEmpty()) {
        list->clearSelection();
        showNotFound(false);
        emit selectionCleared();
        emit status(QString(), StatusTone::Hint);
        return;
    }
    const int rows = list->model()->rowCount();
    const int selected = list->currentIndex().isValid() ? list->currentIndex().row() : -1;
    const int row = Find::findRow(rows, target.textAt, text, Find::startRow(m_marker, selected, rows));
    m_marker = QStringLiteral("0");
    if (row < 0) {
        list->clearSelection();
        list->setCurrentIndex({});
        showNotFound(true);
        emit selectionCleared();
        emit status(tr("Text Not Found"), StatusTone::Failed);
        return;
    }
    const QModelIndex index = list->model()->index(row, 0);
    list->setCurrentIndex(index);
    list->scrollTo(index);
    showNotFound(false);
    // Also when the row was current already and no change signal came.
    emit found(index);
}
