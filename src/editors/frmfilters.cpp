// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmfilters.h"

#include "editors/filtersmodel.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

FrmFilters::FrmFilters(SettingsStore& settings, QString dataFolder, QWidget* parent)
    : EditableListDialog(settings, new FiltersModel, ListColumns::designWidths(FiltersModel::Columns),
                         Keys::Filters.columns, parent)
    , m_path(Filters::filePath(dataFolder))
    , m_model(static_cast<FiltersModel*>(listModel()))
{
    setObjectName(QStringLiteral("frmFilters"));
    list()->setObjectName(QStringLiteral("lstFilters"));

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
    lblBuiltInHint = new QLabel(this);
    lblBuiltInHint->setObjectName(QStringLiteral("lblBuiltInHint"));
    lblBuiltInHint->setEnabled(false); // drawn as a hint, not as a control's caption
    lblExample = new QLabel(this);
    lblExample->setObjectName(QStringLiteral("lblExample"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::hide);
    // Enter belongs to the edit box: no button may take it as the default.
    for (QPushButton* button : {cmdNew, cmdRemove, buttons->button(QDialogButtonBox::Close)}) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }

    auto* layout = new QGridLayout(this);
    layout->addWidget(list(), 0, 0, 3, 4);
    layout->addWidget(cmdNew, 0, 4);
    layout->addWidget(cmdRemove, 1, 4);
    layout->addWidget(lblBuiltIn, 3, 0);
    layout->addWidget(chkIncludeEmpty, 3, 1);
    layout->addWidget(chkIncludeFull, 3, 2);
    layout->addWidget(chkIncludePassworded, 3, 3);
    layout->addWidget(lblBuiltInHint, 3, 4);
    layout->addWidget(lblExample, 4, 0, 1, 5);
    layout->addWidget(messageLine(), 5, 0, 1, 5);
    layout->addWidget(buttons, 6, 0, 1, 5);
    layout->setRowStretch(2, 1);

    connect(cmdNew, &QPushButton::clicked, this, &FrmFilters::startNewRow);
    connect(cmdRemove, &QPushButton::clicked, this, [this] {
        if (selectedRow() >= 0)
            removeRow(selectedRow());
    });
    // The settings are where the built-in filters live: a box set from the
    // main window (or anywhere) shows here, and every change refilters.
    const auto builtInFlag = [this](QCheckBox* box, const Keys::FlagSetting& setting) {
        box->setChecked(this->settings().value(setting));
        connect(box, &QCheckBox::clicked, this, [this, setting](bool checked) {
            if (this->settings().set(setting, checked))
                return;
            // Unsaved, the box still filters the lists for this session.
            say(tr("The settings could not be saved; this change lasts until the program ends."));
            emit filtersChanged();
        });
        connect(&this->settings(), &SettingsStore::changed, this, [this, box, setting](const QString& key) {
            if (key != setting.key)
                return;
            box->setChecked(this->settings().value(setting));
            emit filtersChanged();
        });
    };
    builtInFlag(chkIncludeEmpty, Keys::IncludeEmpty);
    builtInFlag(chkIncludeFull, Keys::IncludeFull);
    builtInFlag(chkIncludePassworded, Keys::IncludePassworded);

    QHeaderView* header = list()->header();
    ColumnLayout::restore(this->settings(), Keys::Filters.columns, *header);
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
    lblBuiltInHint->setText(tr("(ticked: listed)"));
    chkIncludeEmpty->setToolTip(tr("Ticked: servers without players are listed; unticked: they are hidden"));
    chkIncludeFull->setToolTip(tr("Ticked: full servers are listed; unticked: they are hidden"));
    chkIncludePassworded->setToolTip(tr("Ticked: servers with a password are listed; unticked: they are hidden"));
    lblExample->setText(tr("Example 1: si_map                 mp/q4dm5") + QLatin1Char('\n') +
                        tr("Example 2: sv_punkbuster     1"));
    retranslateMenu();
    m_model->retranslate();
}

void FrmFilters::commitCell(int row, int column, const QString& text)
{
    if (column == 0)
        m_model->setCell(row, 0, Filters::storedVariable(text));
    else
        m_model->setCell(row, 1, Filters::storedValue(m_model->filters().at(row).variable, text));
    save();
    emit filtersChanged();
}

void FrmFilters::save()
{
    // The lists follow the change all the same; the user must know it will
    // not be there next time.
    if (Filters::writeFile(m_path, m_model->filters()))
        say(QString());
    else
        say(tr("The filters could not be saved to %1; this change lasts until the program ends.")
                .arg(QDir::toNativeSeparators(m_path)));
}

void FrmFilters::putFilter(const Filters::VariableFilter& filter)
{
    const QList<Filters::VariableFilter> now = m_model->filters();
    const auto same = std::find_if(now.cbegin(), now.cend(), [&filter](const Filters::VariableFilter& kept) {
        return kept.variable.compare(filter.variable, Qt::CaseInsensitive) == 0;
    });
    if (same == now.cend())
        m_model->append(filter);
    else
        m_model->setCell(int(same - now.cbegin()), 1, filter.value);
    save();
    emit filtersChanged();
}

void FrmFilters::newRow()
{
    m_model->append(Filters::VariableFilter{Filters::NewFilter, QString()});
}

void FrmFilters::removeRow(int row)
{
    m_model->remove(row);
    save();
    emit filtersChanged();
}

void FrmFilters::sortClicked(int column)
{
    m_sort = m_sort.flippedTo(column);
    m_model->sortByColumn(column, m_sort.qtOrder());
    ColumnLayout::saveSort(settings(), Keys::Filters.sort, m_sort);
}

void FrmFilters::columnMoved()
{
    if (m_restoringColumns)
        return;
    QHeaderView& header = *list()->header();
    ColumnLayout::saveOrder(settings(), Keys::Filters.columns, header);
    // The positions are then restored from the favourites editor's order
    // keys, which both editors share for this step.
    m_restoringColumns = true;
    ColumnLayout::applyDisplayOrder(header, ColumnLayout::readOrder(settings(), Keys::Favourites.columns, 2));
    m_restoringColumns = false;
}
