// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QComboBox>
#include <QStringList>

// An editable combo box that remembers entries the user confirmed with
// Enter and forgets a picked entry on Delete, Backspace or DEL. "Picked"
// means chosen from the list and not edited since, so Backspace while
// typing only edits the text.
class HistoryComboBox final : public QComboBox {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HistoryComboBox)

public:
    explicit HistoryComboBox(QWidget* parent = nullptr);

    QStringList entries() const;
    // Replaces the remembered entries and keeps the text being edited.
    void setEntries(const QStringList& entries);
    // Appends the text unless an entry is exactly equal to it (case
    // matters). Returns true when it was added.
    bool remember(const QString& text);
    // The entry picked from the list, or -1 once the text was edited.
    int pickedIndex() const { return m_picked; }

signals:
    void enterPressed();
    // The user chose an entry from the list (with the mouse or the arrow
    // keys). Qt's activated() also fires when the box loses the focus with
    // the text of an entry in it; that is no choice.
    void picked(int index);

protected:
    // The box has the focus, not its line edit (the line edit's focus proxy
    // is the box), so the keys arrive here.
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void forgetPicked();
    // Puts back the text after the items changed, without telling anyone:
    // to the user the text never changed.
    void restoreText(int index, const QString& text);

    int m_picked = -1;
    bool m_leaving = false;
};
