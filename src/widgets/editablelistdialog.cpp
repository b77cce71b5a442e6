// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/editablelistdialog.h"

#include "userdata/settingsstore.h"
#include "widgets/columnlayout.h"
#include "widgets/copycommands.h"
#include "widgets/messageline.h"
#include "widgets/mnemonics.h"
#include "widgets/reportview.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

namespace {

QAction* createAction(QMenu* menu, const char* objectName)
{
    auto* action = menu->addAction(QString());
    action->setObjectName(QLatin1String(objectName));
    return action;
}

} // namespace

EditableListDialog::EditableListDialog(SettingsStore& settings, QAbstractItemModel* model,
                                       const QList<int>& designWidths, QStringView columnsPrefix, QWidget* parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_model(model)
    , m_columnsPrefix(columnsPrefix.toString())
{
    setWindowModality(Qt::ApplicationModal);
    model->setParent(this);
    m_list = new ReportView(model, designWidths, this);
    txtEdit = new QLineEdit(m_list->viewport());
    txtEdit->setObjectName(QStringLiteral("txtEdit"));
    txtEdit->hide();
    connect(txtEdit, &QLineEdit::editingFinished, this, &EditableListDialog::commitEdit);
    txtEdit->installEventFilter(this);

    lblMessage = new MessageLine(this);

    m_menu = new QMenu(this);
    // In the editors a copied column comes out on one line.
    m_copy = new CopyCommands(
        *m_menu, m_settings,
        [this] {
            return CopyCommands::Target{m_list, m_columnsPrefix};
        },
        CopyText::CellSeparator);
    m_menu->addSeparator();
    mPopEditCell = createAction(m_menu, "mPopEditCell");
    mPopNew = createAction(m_menu, "mPopNew");
    mPopRemove = createAction(m_menu, "mPopRemove");
    connect(mPopEditCell, &QAction::triggered, this, [this] { editCell(selectedRow(), m_list->pressedColumn()); });
    connect(mPopNew, &QAction::triggered, this, &EditableListDialog::startNewRow);
    connect(mPopRemove, &QAction::triggered, this, [this] {
        if (selectedRow() >= 0)
            removeRow(selectedRow());
    });
    connect(m_list, &ReportView::menuRequested, this,
            [this](const QModelIndex&, const QPoint& globalPos) { m_menu->popup(globalPos); });
    connect(m_list, &ReportView::rowDoubleClicked, this,
            [this](const QModelIndex& index) { editCell(index.row(), index.column()); });
}

EditableListDialog::~EditableListDialog()
{
    // A dialog destroyed while shown is hidden by QDialog's destructor; the
    // edit box then loses the focus, and its commit must not reach an editor
    // that is already gone.
    txtEdit->disconnect(this);
}

void EditableListDialog::say(const QString& text)
{
    lblMessage->say(text);
}

int EditableListDialog::selectedRow() const
{
    return m_list->selectedRow();
}

void EditableListDialog::retranslateMenu()
{
    m_copy->retranslate();
    mPopEditCell->setText(tr("Edit Cell"));
    mPopNew->setText(tr("New"));
    mPopRemove->setText(tr("Remove"));
}

void EditableListDialog::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        Mnemonics::assign(this);
    }
}

void EditableListDialog::showEvent(QShowEvent* event)
{
    Mnemonics::assign(this);
    QDialog::showEvent(event);
}

void EditableListDialog::hideEvent(QHideEvent* event)
{
    commitEdit();
    QDialog::hideEvent(event);
    if (m_keepsOrder)
        ColumnLayout::saveOrder(m_settings, m_columnsPrefix, *m_list->header());
    ColumnLayout::saveWidths(m_settings, m_columnsPrefix, *m_list->header());
}

bool EditableListDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == txtEdit && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) {
            cancelEdit();
            return true;
        }
        // Tab and Shift+Tab move to the next and the previous cell of the
        // row, as in a table: the cell left is committed first.
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            const int row = m_editRow;
            const int next = m_list->header()->visualIndex(m_editColumn) + (key == Qt::Key_Tab ? 1 : -1);
            commitEdit();
            if (row >= 0 && next >= 0 && next < m_model->columnCount())
                editCell(row, m_list->header()->logicalIndex(next));
            else
                m_list->setFocus();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void EditableListDialog::editCell(int row, int column)
{
    if (row < 0 || row >= m_model->rowCount() || column < 0 || column >= m_model->columnCount())
        return;
    const QModelIndex index = m_model->index(row, column);
    m_editRow = row;
    m_editColumn = column;
    txtEdit->setGeometry(m_list->visualRect(index));
    txtEdit->setText(index.data().toString());
    txtEdit->show();
    txtEdit->setFocus();
    txtEdit->selectAll();
}

void EditableListDialog::startNewRow()
{
    newRow();
    const int row = m_model->rowCount() - 1;
    if (row < 0)
        return;
    const int first = m_list->header()->logicalIndex(0);
    m_list->setCurrentIndex(m_model->index(row, first));
    m_list->scrollTo(m_model->index(row, first));
    editCell(row, first);
}

void EditableListDialog::cancelEdit()
{
    // No row to edit first: the focus leaving the box must not commit.
    m_editRow = -1;
    txtEdit->hide();
    m_list->setFocus();
}

void EditableListDialog::commitEdit()
{
    if (m_editRow < 0)
        return;
    const int row = m_editRow;
    m_editRow = -1;
    txtEdit->hide();
    // Leaving a cell as it was changes nothing: a new row that was only
    // looked at stays unsaved, as New leaves it.
    if (row < m_model->rowCount() && txtEdit->text() != m_model->index(row, m_editColumn).data().toString())
        commitCell(row, m_editColumn, txtEdit->text());
}
