// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/messageline.h"

#include <QDialog>

class CopyCommands;
class QAbstractItemModel;
class QAction;

class QLabel;
class QLineEdit;
class QMenu;
class ReportView;
class SettingsStore;

// What the favourites and filters editors share: a list whose cells are
// edited in place (double click, or "Edit Cell" in the right-click menu),
// and the menu's copy, new and remove commands.
class EditableListDialog : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EditableListDialog)

public:
    ~EditableListDialog() override;

    // Puts the edit box over a cell; what is typed is committed on Enter or
    // when the box loses the focus.
    void editCell(int row, int column);

protected:
    // Takes the model over as its child.
    EditableListDialog(SettingsStore& settings, QAbstractItemModel* model, const QList<int>& designWidths,
                       QStringView columnsPrefix, QWidget* parent);

    virtual void commitCell(int row, int column, const QString& text) = 0;
    virtual void newRow() = 0;
    virtual void removeRow(int row) = 0;
    // The texts of the dialog, again whenever the language changes.
    virtual void retranslateUi() = 0;

    ReportView* list() const { return m_list; }
    QAbstractItemModel* listModel() const { return m_model; }
    SettingsStore& settings() const { return m_settings; }
    int selectedRow() const;
    void retranslateMenu();
    // New and mPopNew: a new row, selected, its first cell in edit.
    void startNewRow();
    void commitEdit();
    // Escape in the edit box: the cell keeps its text, the dialog stays open
    // (its Cancel would throw away every change not yet applied).
    void cancelEdit();
    // A line for what went wrong (a file that could not be written),
    // hidden while there is nothing to say; the subclass places it.
    MessageLine* messageLine() const { return lblMessage; }
    void say(const QString& text);

    // The order of the columns is kept with their widths when the dialog
    // closes (the widths are always kept).
    void keepColumnOrder() { m_keepsOrder = true; }

    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SettingsStore& m_settings;
    QAbstractItemModel* m_model;
    QString m_columnsPrefix;
    ReportView* m_list = nullptr;
    QLineEdit* txtEdit = nullptr;
    MessageLine* lblMessage = nullptr;
    QMenu* m_menu = nullptr;
    CopyCommands* m_copy = nullptr;
    QAction* mPopEditCell = nullptr;
    QAction* mPopNew = nullptr;
    QAction* mPopRemove = nullptr;
    int m_editRow = -1;
    bool m_keepsOrder = false;
    int m_editColumn = -1;
};
