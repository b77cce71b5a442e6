#include "findbar.h"

#include "find.h"
#include "historycombobox.h"
#include "reportview.h"

#include <QPushButton>

FindBar::FindBar(TargetOf target, QWidget* parent)
    : QObject(parent)
    , m_target(std::move(target))
    , m_box(new HistoryComboBox(parent))
    , m_button(new QPushButton(parent))
{
    m_box->setObjectName(QStringLiteral("cmbFind"));
    m_button->setObjectName(QStringLiteral("cmdFind"));
    m_button->setAutoDefault(false);
    m_normalPalette = m_box->palette();
    connect(m_box, &QComboBox::editTextChanged, this, &FindBar::run);
    connect(m_box, &HistoryComboBox::picked, this, &FindBar::run);
    connect(m_box, &HistoryComboBox::enterPressed, this, &FindBar::findNext);
    connect(m_button, &QPushButton::clicked, this, &FindBar::findNext);
}

void FindBar::retranslate()
{
    m_button->setText(tr("Find"));
    m_box->setAccessibleName(tr("Find"));
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
        m_box->setPalette(m_normalPalette);
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
        QPalette notFound = m_normalPalette;
        notFound.setColor(QPalette::Base, QColor(255, 102, 102));
        m_box->setPalette(notFound);
        emit selectionCleared();
        emit status(tr("Text Not Found"), StatusTone::Failed);
        return;
    }
    const QModelIndex index = list->model()->index(row, 0);
    list->setCurrentIndex(index);
    list->scrollTo(index);
    m_box->setPalette(m_normalPalette);
    // Also when the row was current already and no change signal came.
    emit found(index);
}
