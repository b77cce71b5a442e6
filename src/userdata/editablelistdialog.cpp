#include "editablelistdialog.h"

#include "columnlayout.h"
#include "copytext.h"
#include "reportview.h"
#include "settingsstore.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>

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
    m_list->viewport()->installEventFilter(this);
    txtEdit = new QLineEdit(m_list->viewport());
    txtEdit->setObjectName(QStringLiteral("txtEdit"));
    txtEdit->hide();
    connect(txtEdit, &QLineEdit::editingFinished, this, &EditableListDialog::commitEdit);

    m_menu = new QMenu(this);
    mPopCopyCell = createAction(m_menu, "mPopCopyCell");
    mPopCopyColumn = createAction(m_menu, "mPopCopyColumn");
    mPopCopyRow = createAction(m_menu, "mPopCopyRow");
    mPopCopyAll = createAction(m_menu, "mPopCopyAll");
    m_menu->addSeparator();
    mPopEditCell = createAction(m_menu, "mPopEditCell");
    mPopNew = createAction(m_menu, "mPopNew");
    mPopRemove = createAction(m_menu, "mPopRemove");
    int what = 0;
    for (QAction* copy : {mPopCopyCell, mPopCopyColumn, mPopCopyRow, mPopCopyAll}) {
        connect(copy, &QAction::triggered, this, [this, what] { copyCells(what); });
        ++what;
    }
    connect(mPopEditCell, &QAction::triggered, this, [this] { editCell(selectedRow(), m_menuColumn); });
    connect(mPopNew, &QAction::triggered, this, [this] { newRow(); });
    connect(mPopRemove, &QAction::triggered, this, [this] {
        if (selectedRow() >= 0)
            removeRow(selectedRow());
    });
}

int EditableListDialog::selectedRow() const
{
    const QModelIndex current = m_list->currentIndex();
    return current.isValid() && m_list->selectionModel()->isRowSelected(current.row(), {}) ? current.row() : -1;
}

void EditableListDialog::retranslateMenu()
{
    mPopCopyCell->setText(tr("Copy Cell"));
    mPopCopyColumn->setText(tr("Copy Column"));
    mPopCopyRow->setText(tr("Copy Row"));
    mPopCopyAll->setText(tr("Copy All"));
    mPopEditCell->setText(tr("Edit Cell"));
    mPopNew->setText(tr("New"));
    mPopRemove->setText(tr("Remove"));
}

void EditableListDialog::hideEvent(QHideEvent* event)
{
    commitEdit();
    QDialog::hideEvent(event);
}

bool EditableListDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_list->viewport())
        return QDialog::eventFilter(watched, event);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_lastButton = mouse->button() == Qt::RightButton ? 2 : mouse->button() == Qt::LeftButton ? 1 : 0;
        break;
    case QEvent::MouseButtonRelease:
        if (m_lastButton == 2 && mouse->button() == Qt::RightButton) {
            const QPoint at = mouse->position().toPoint();
            m_menuColumn = m_list->header()->logicalIndexAt(at.x());
            const QModelIndex index = m_list->indexAt(at);
            if (index.isValid())
                m_list->setCurrentIndex(index);
            m_menu->popup(m_list->viewport()->mapToGlobal(at));
            return true;
        }
        break;
    case QEvent::MouseButtonDblClick:
        if (m_lastButton == 1 && mouse->button() == Qt::LeftButton) {
            const QPoint at = mouse->position().toPoint();
            const QModelIndex index = m_list->indexAt(at);
            if (index.isValid())
                editCell(index.row(), m_list->header()->logicalIndexAt(at.x()));
            return true;
        }
        break;
    default:
        break;
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

void EditableListDialog::commitEdit()
{
    if (m_editRow < 0)
        return;
    const int row = m_editRow;
    m_editRow = -1;
    txtEdit->hide();
    if (row < m_model->rowCount())
        commitCell(row, m_editColumn, txtEdit->text());
}

void EditableListDialog::copyCells(int what)
{
    CopyText::List source;
    source.rowCount = m_model->rowCount();
    source.cell = [this](int row, int column) { return m_model->index(row, column).data().toString(); };
    source.selectedRow = selectedRow();
    source.clickedColumn = std::clamp(m_menuColumn, 0, m_model->columnCount() - 1);
    source.displayOrder = ColumnLayout::readOrder(m_settings, m_columnsPrefix, m_model->columnCount());
    // In the editors a copied column comes out on one line.
    source.columnJoin = CopyText::CellSeparator;
    if (const auto text = CopyText::build(static_cast<CopyText::What>(what), source)) {
        QGuiApplication::clipboard()->clear();
        QGuiApplication::clipboard()->setText(*text);
    }
}
