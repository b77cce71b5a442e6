#include "historycombobox.h"

#include <QKeyEvent>
#include <QLineEdit>

HistoryComboBox::HistoryComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setEditable(true);
    // We decide what is remembered; Qt's own insert-on-Enter and inline
    // completion would add duplicates and change the text under the user.
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    lineEdit()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, [this](int index) { m_picked = index; });
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

void HistoryComboBox::setEntries(const QStringList& entries)
{
    // Adding the first item would make it current and overwrite the text.
    const QString text = currentText();
    clear();
    addItems(entries);
    setCurrentIndex(-1);
    setEditText(text);
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
    addItem(text);
    setCurrentIndex(index);
    setEditText(current);
    return true;
}

void HistoryComboBox::forgetPicked()
{
    const QString text = currentText();
    removeItem(m_picked);
    setCurrentIndex(-1);
    setEditText(text);
    m_picked = -1;
}

bool HistoryComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit() && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit enterPressed();
            return true;
        case Qt::Key_Delete:
        case Qt::Key_Backspace:
            if (m_picked >= 0 && m_picked < count())
                forgetPicked();
            break;
        default:
            if (key->text() == QString(QChar(127)) && m_picked >= 0 && m_picked < count())
                forgetPicked();
            break;
        }
    }
    return QComboBox::eventFilter(watched, event);
}
