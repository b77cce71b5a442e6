// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/historycombobox.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

HistoryComboBox::HistoryComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(true);
    // We decide what is remembered; Qt's own insert-on-Enter and inline
    // completion would add duplicates and change the text under the user.
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (m_leaving)
            return;
        m_picked = index;
        emit picked(index);
    });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_picked = -1; });
}

QStringList HistoryComboBox::entries() const
{
    QStringList list;
    list.reserve(count());
    for (int i = 0; i < count(); ++i)
        list.append(itemText(i));
    return list;
}

void HistoryComboBox::restoreText(int index, const QString& text)
{
    setCurrentIndex(index);
    setEditText(text);
}

void HistoryComboBox::setEntries(const QStringList& entries)
{
    // Adding the first item would make it current and overwrite the text.
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    clear();
    addItems(entries);
    restoreText(-1, text);
    m_picked = -1;
}

bool HistoryComboBox::remember(const QString& text)
{
    for (int i = 0; i < count(); ++i) {
        if (itemText(i) == text)
            return false;
    }
    const QString current = currentText();
    const int index = currentIndex();
    const QSignalBlocker quiet(this);
    addItem(text);
    restoreText(index, current);
    return true;
}

void HistoryComboBox::forgetPicked()
{
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    removeItem(m_picked);
    restoreText(-1, text);
    m_picked = -1;
}

void HistoryComboBox::focusOutEvent(QFocusEvent* event)
{
    m_leaving = true;
    QComboBox::focusOutEvent(event);
    m_leaving = false;
}

void HistoryComboBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Not Qt's own Enter handling: it would pick a matching entry and
        // report it as chosen from the list.
        event->accept();
        emit enterPressed();
        return;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        if (m_picked >= 0 && m_picked < count())
            forgetPicked();
        break;
    default:
        if (event->text() == QString(QChar(127)) && m_picked >= 0 && m_picked < count())
            forgetPicked();
        break;
    }
    QComboBox::keyPressEvent(event);
}
