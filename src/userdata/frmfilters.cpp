#include "frmfilters.h"

#include "copytext.h"
#include "filtersmodel.h"
#include "reportview.h"
#include "settingskeys.h"
#include "settingsstore.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>

namespace {

QAction* createAction(QMenu* menu, const char* objectName)
{
    auto* action = menu->addAction(QString());
    action->setObjectName(QLatin1String(objectName));
    return action;
}

} // namespace

FrmFilters::FrmFilters(SettingsStore& settings, QString dataFolder, QWidget* parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_path(QDir(dataFolder).filePath(Filters::FileName))
    , m_model(new FiltersModel(this))
{
    setObjectName(QStringLiteral("frmFilters"));
    setWindowModality(Qt::ApplicationModal);

    lstFilters = new ReportView(m_model, {160, 200}, this);
    lstFilters->setObjectName(QStringLiteral("lstFilters"));
    lstFilters->viewport()->installEventFilter(this);
    txtEdit = new QLineEdit(lstFilters->viewport());
    txtEdit->setObjectName(QStringLiteral("txtEdit"));
    txtEdit->hide();
    connect(txtEdit, &QLineEdit::editingFinished, this, &FrmFilters::commitEdit);

    cmdNew = new QPushButton(this);
    cmdNew->setObjectName(QStringLiteral("cmdNew"));
    cmdRemove = new QPushButton(this);
    cmdRemove->setObjectName(QStringLiteral("cmdRemove"));
    lblBuiltIn = new QLabel(this);
    lblBuiltIn->setObjectName(QStringLiteral("lblBuiltIn"));
    chkIncludeEmpty = new QCheckBox(this);
    chkIncludeEmpty->setObjectName(QStringLiteral("chkIncludeEmpty"));
    chkIncludeFull = new QCheckBox(this);
    chkIncludeFull->setObjectName(QStringLiteral("chkIncludeFull"));
    chkIncludePassworded = new QCheckBox(this);
    chkIncludePassworded->setObjectName(QStringLiteral("chkIncludePassworded"));
    lblExample = new QLabel(this);
    lblExample->setObjectName(QStringLiteral("lblExample"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::hide);
    // Enter belongs to the edit box: no button may take it as the default.
    for (QPushButton* button : {cmdNew, cmdRemove, buttons->button(QDialogButtonBox::Close)}) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }

    mPopup = new QMenu(this);
    mPopCopyCell = createAction(mPopup, "mPopCopyCell");
    mPopCopyColumn = createAction(mPopup, "mPopCopyColumn");
    mPopCopyRow = createAction(mPopup, "mPopCopyRow");
    mPopCopyAll = createAction(mPopup, "mPopCopyAll");
    mPopup->addSeparator();
    mPopEditCell = createAction(mPopup, "mPopEditCell");
    mPopNew = createAction(mPopup, "mPopNew");
    mPopRemove = createAction(mPopup, "mPopRemove");

    auto* layout = new QGridLayout(this);
    layout->addWidget(lstFilters, 0, 0, 3, 4);
    layout->addWidget(cmdNew, 0, 4);
    layout->addWidget(cmdRemove, 1, 4);
    layout->addWidget(lblBuiltIn, 3, 0);
    layout->addWidget(chkIncludeEmpty, 3, 1);
    layout->addWidget(chkIncludeFull, 3, 2);
    layout->addWidget(chkIncludePassworded, 3, 3);
    layout->addWidget(lblExample, 4, 0, 1, 5);
    layout->addWidget(buttons, 5, 0, 1, 5);
    layout->setRowStretch(2, 1);

    connect(cmdNew, &QPushButton::clicked, this, &FrmFilters::newFilter);
    connect(cmdRemove, &QPushButton::clicked, this, &FrmFilters::removeFilter);
    connect(mPopNew, &QAction::triggered, this, &FrmFilters::newFilter);
    connect(mPopRemove, &QAction::triggered, this, &FrmFilters::removeFilter);
    int what = 0;
    for (QAction* copy : {mPopCopyCell, mPopCopyColumn, mPopCopyRow, mPopCopyAll}) {
        connect(copy, &QAction::triggered, this, [this, what] { copyCells(what); });
        ++what;
    }
    connect(mPopEditCell, &QAction::triggered, this,
            [this] { editCell(lstFilters->currentIndex().row(), m_menuColumn); });
    const auto builtInFlag = [this](QCheckBox* box, QStringView key) {
        box->setChecked(m_settings.getFlag(key, Keys::Defaults::IncludeFilterFlag));
        connect(box, &QCheckBox::clicked, this, [this, key](bool checked) {
            m_settings.saveFlag(key, checked);
            emit filtersChanged();
        });
    };
    builtInFlag(chkIncludeEmpty, Keys::IncludeEmpty);
    builtInFlag(chkIncludeFull, Keys::IncludeFull);
    builtInFlag(chkIncludePassworded, Keys::IncludePassworded);

    QHeaderView* header = lstFilters->header();
    ColumnLayout::restore(m_settings, Keys::Filters.columns, *header);
    connect(header, &QHeaderView::sectionClicked, this, &FrmFilters::sortClicked);
    connect(header, &QHeaderView::sectionMoved, this, &FrmFilters::columnMoved);

    if (const auto first = Filters::readFirstFromFile(m_path))
        m_model->setFilters({*first});
    retranslateUi();
    resize(520, 320);
}

QList<Filters::VariableFilter> FrmFilters::filters() const
{
    return m_model->filters();
}

Filters::BuiltIn FrmFilters::builtIn() const
{
    return Filters::BuiltIn{chkIncludeEmpty->isChecked(), chkIncludeFull->isChecked(),
                            chkIncludePassworded->isChecked()};
}

void FrmFilters::retranslateUi()
{
    setWindowTitle(tr("Filters"));
    cmdNew->setText(tr("New"));
    cmdRemove->setText(tr("Remove"));
    lblBuiltIn->setText(tr("Built in filters:"));
    chkIncludeEmpty->setText(tr("Empty"));
    chkIncludeFull->setText(tr("Full"));
    chkIncludePassworded->setText(tr("Passworded"));
    lblExample->setText(tr("Example 1: si_map                 mp/q4dm5") + QLatin1Char('\n') +
                        tr("Example 2: sv_punkbuster     1"));
    mPopCopyCell->setText(tr("Copy Cell"));
    mPopCopyColumn->setText(tr("Copy Column"));
    mPopCopyRow->setText(tr("Copy Row"));
    mPopCopyAll->setText(tr("Copy All"));
    mPopEditCell->setText(tr("Edit Cell"));
    mPopNew->setText(tr("New"));
    mPopRemove->setText(tr("Remove"));
    m_model->retranslate();
}

void FrmFilters::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void FrmFilters::hideEvent(QHideEvent* event)
{
    commitEdit();
    ColumnLayout::saveWidths(m_settings, Keys::Filters.columns, *lstFilters->header());
    QDialog::hideEvent(event);
}

bool FrmFilters::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != lstFilters->viewport())
        return QDialog::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        m_lastButton = mouse->button() == Qt::RightButton ? 2 : mouse->button() == Qt::LeftButton ? 1 : 0;
        break;
    }
    case QEvent::MouseButtonRelease: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (m_lastButton == 2 && mouse->button() == Qt::RightButton) {
            const QPoint at = mouse->position().toPoint();
            m_menuColumn = lstFilters->header()->logicalIndexAt(at.x());
            const QModelIndex index = lstFilters->indexAt(at);
            if (index.isValid())
                lstFilters->setCurrentIndex(index);
            mPopup->popup(lstFilters->viewport()->mapToGlobal(at));
            return true;
        }
        break;
    }
    case QEvent::MouseButtonDblClick: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint at = mouse->position().toPoint();
        if (m_lastButton == 1 && mouse->button() == Qt::LeftButton) {
            const QModelIndex index = lstFilters->indexAt(at);
            if (index.isValid())
                editCell(index.row(), lstFilters->header()->logicalIndexAt(at.x()));
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void FrmFilters::editCell(int row, int column)
{
    if (row < 0 || row >= m_model->rowCount() || column < 0 || column > 1)
        return;
    const QModelIndex index = m_model->index(row, column);
    m_editRow = row;
    m_editColumn = column;
    txtEdit->setGeometry(lstFilters->visualRect(index));
    txtEdit->setText(index.data().toString());
    txtEdit->show();
    txtEdit->setFocus();
    txtEdit->selectAll();
}

void FrmFilters::commitEdit()
{
    if (m_editRow < 0)
        return;
    const int row = m_editRow;
    const int column = m_editColumn;
    m_editRow = -1;
    txtEdit->hide();
    if (row >= m_model->rowCount())
        return;
    const QString typed = txtEdit->text();
    if (column == 0)
        m_model->setCell(row, 0, Filters::storedVariable(typed));
    else
        m_model->setCell(row, 1, Filters::storedValue(m_model->filters().at(row).variable, typed));
    save();
    emit filtersChanged();
}

void FrmFilters::save()
{
    Filters::writeFile(m_path, m_model->filters());
}

void FrmFilters::newFilter()
{
    m_model->append(Filters::VariableFilter{Filters::NewFilter, QString()});
}

void FrmFilters::removeFilter()
{
    const QModelIndex current = lstFilters->currentIndex();
    if (!current.isValid())
        return;
    m_model->remove(current.row());
    save();
    emit filtersChanged();
}

void FrmFilters::sortClicked(int column)
{
    m_sort = ColumnLayout::SortState{column, (m_sort.order + 1) % 2};
    m_model->sortByColumn(column, m_sort.order == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
    ColumnLayout::saveSort(m_settings, Keys::Filters.sort, m_sort);
}

void FrmFilters::copyCells(int what)
{
    CopyText::List source;
    source.rowCount = m_model->rowCount();
    source.cell = [this](int row, int column) { return m_model->index(row, column).data().toString(); };
    const QModelIndex current = lstFilters->currentIndex();
    source.selectedRow =
        current.isValid() && lstFilters->selectionModel()->isRowSelected(current.row(), {}) ? current.row() : -1;
    source.clickedColumn = std::clamp(m_menuColumn, 0, 1);
    source.displayOrder = ColumnLayout::readOrder(m_settings, Keys::Filters.columns, 2);
    // In the editors a copied column comes out on one line.
    source.columnJoin = CopyText::CellSeparator;
    if (const auto text = CopyText::build(static_cast<CopyText::What>(what), source)) {
        QGuiApplication::clipboard()->clear();
        QGuiApplication::clipboard()->setText(*text);
    }
}

void FrmFilters::columnMoved()
{
    if (m_restoringColumns)
        return;
    QHeaderView& header = *lstFilters->header();
    ColumnLayout::saveOrder(m_settings, Keys::Filters.columns, header);
    // The positions are then restored from the favourites editor's order
    // keys, which both editors share for this step.
    m_restoringColumns = true;
    ColumnLayout::applyDisplayOrder(header, ColumnLayout::readOrder(m_settings, Keys::Favourites.columns, 2));
    m_restoringColumns = false;
}
