// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmhistory.h"

#include "widgets/copycommands.h"
#include "widgets/reportview.h"

#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Nobody saves this list's column order: the copy commands find none
// under this prefix and take the columns as they are.
constexpr QStringView OrderPrefix = u"H";

} // namespace

HistoryModel::HistoryModel(QObject* parent)
    : ReportModel(Columns, parent)
{
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size() || role != Qt::DisplayRole)
        return {};
    const PlayHistory::Entry& entry = m_entries.at(index.row());
    switch (index.column()) {
    case Name:
        return entry.name;
    case Address:
        return entry.endpointText();
    case Played:
        return QLocale().toString(QDateTime::fromSecsSinceEpoch(entry.joinedAt), QLocale::ShortFormat);
    default:
        return {};
    }
}

void HistoryModel::sort(int column, Qt::SortOrder order)
{
    emit layoutAboutToBeChanged();
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [column, order](const PlayHistory::Entry& a, const PlayHistory::Entry& b) {
                         const PlayHistory::Entry& first = order == Qt::AscendingOrder ? a : b;
                         const PlayHistory::Entry& second = order == Qt::AscendingOrder ? b : a;
                         if (column == Played)
                             return first.joinedAt < second.joinedAt;
                         const QString left = column == Name ? first.name : first.endpointText();
                         const QString right = column == Name ? second.name : second.endpointText();
                         return left.compare(right, Qt::CaseInsensitive) < 0;
                     });
    emit layoutChanged();
}

void HistoryModel::setEntries(const PlayHistory::List& entries)
{
    beginResetModel();
    m_entries = entries;
    endResetModel();
}

FrmHistory::FrmHistory(SettingsStore& settings, QString dataFolder, QWidget* parent)
    : QDialog(parent)
    , m_path(PlayHistory::filePath(dataFolder))
    , m_model(new HistoryModel(this))
{
    setObjectName(QStringLiteral("frmHistory"));
    lstHistory = new ReportView(m_model, m_model->designWidths(), this);
    lstHistory->setObjectName(QStringLiteral("lstHistory"));
    lstHistory->setSortingEnabled(true);
    // Newest first, as the file keeps them; a click sorts by a column.
    lstHistory->header()->setSortIndicator(-1, Qt::DescendingOrder);
    lblEmpty = new QLabel(this);
    lblEmpty->setObjectName(QStringLiteral("lblEmpty"));
    lblEmpty->setWordWrap(true);
    m_menu = new QMenu(this);
    m_copy = new CopyCommands(
        *m_menu, settings,
        [this] {
            return CopyCommands::Target{lstHistory, OrderPrefix};
        },
        CopyText::LineSeparator);
    connect(lstHistory, &ReportView::menuRequested, this, [this](const QModelIndex& index, const QPoint& at) {
        if (index.isValid())
            m_menu->popup(at);
    });
    connect(lstHistory, &ReportView::rowDoubleClicked, this, [this](const QModelIndex& index) {
        emit serverChosen(index.siblingAtColumn(HistoryModel::Address).data().toString(),
                          index.siblingAtColumn(HistoryModel::Name).data().toString());
    });

    cmdQueryHistory = new QPushButton(this);
    cmdQueryHistory->setObjectName(QStringLiteral("cmdQueryHistory"));
    cmdRemove = new QPushButton(this);
    cmdRemove->setObjectName(QStringLiteral("cmdRemove"));
    cmdClose = new QPushButton(this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    connect(cmdQueryHistory, &QPushButton::clicked, this, &FrmHistory::queryRequested);
    connect(cmdRemove, &QPushButton::clicked, this, &FrmHistory::removeSelected);
    connect(lstHistory->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FrmHistory::showState);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::close);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdQueryHistory);
    buttons->addWidget(cmdRemove);
    buttons->addStretch();
    buttons->addWidget(cmdClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lstHistory, 1);
    layout->addWidget(lblEmpty);
    layout->addLayout(buttons);
    resize(540, 340);

    retranslateUi();
    reload();
}

void FrmHistory::reload()
{
    m_model->setEntries(PlayHistory::readFile(m_path));
    lstHistory->header()->setSortIndicator(-1, Qt::DescendingOrder);
    showState();
}

void FrmHistory::showState()
{
    // A failure first; else, for an empty list, what will fill it.
    lblEmpty->setText(!m_error.isEmpty() ? m_error : m_model->rowCount() == 0 ? m_emptyText : QString());
    lblEmpty->setVisible(!lblEmpty->text().isEmpty());
    cmdQueryHistory->setEnabled(m_model->rowCount() > 0);
    cmdRemove->setEnabled(lstHistory->selectedRow() >= 0);
}

void FrmHistory::say(const QString& text)
{
    lblEmpty->setText(text);
    lblEmpty->setVisible(!text.isEmpty());
}

void FrmHistory::removeSelected()
{
    const int row = lstHistory->selectedRow();
    if (row < 0)
        return;
    PlayHistory::List entries = PlayHistory::readFile(m_path);
    const QString address = m_model->entries().at(row).endpointText();
    entries.removeIf([&address](const PlayHistory::Entry& entry) { return entry.endpointText() == address; });
    // On failure the row stays: it is still in the file.
    m_error =
        PlayHistory::writeFile(m_path, entries) ? QString() : tr("The list could not be saved to %1.").arg(m_path);
    reload();
}

void FrmHistory::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
}

void FrmHistory::retranslateUi()
{
    setWindowTitle(tr("Recently Played"));
    m_emptyText = tr("No servers yet: every server you join from this program is listed here.");
    showState();
    cmdQueryHistory->setText(tr("Query Recently Played"));
    cmdRemove->setText(tr("Remove"));
    cmdClose->setText(tr("Close"));
    m_copy->retranslate();
    m_model->retranslate();
}
