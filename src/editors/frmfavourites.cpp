// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmfavourites.h"

#include "userdata/datafield.h"
#include "userdata/favourites.h"
#include "userdata/settingscodec.h"
#include "userdata/settingskeys.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

FavouritesModel::FavouritesModel(QObject* parent)
    : ReportModel(Columns, parent)
{
}

int FavouritesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant FavouritesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return m_rows.at(index.row()).at(size_t(index.column()));
}

void FavouritesModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column > 2)
        return;
    emit layoutAboutToBeChanged();
    std::stable_sort(m_rows.begin(), m_rows.end(), [column, order](const Row& a, const Row& b) {
        const int compared = a.at(size_t(column)).compare(b.at(size_t(column)), Qt::CaseInsensitive);
        return order == Qt::AscendingOrder ? compared < 0 : compared > 0;
    });
    emit layoutChanged();
}

void FavouritesModel::setRows(const QList<Row>& rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

void FavouritesModel::append(const Row& row)
{
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size()));
    m_rows.append(row);
    endInsertRows();
}

void FavouritesModel::remove(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}

void FavouritesModel::setCell(int row, int column, const QString& text)
{
    if (row < 0 || row >= m_rows.size() || column < 0 || column > 2)
        return;
    m_rows[row][size_t(column)] = text;
    emit dataChanged(index(row, column), index(row, column));
}

FrmFavourites::FrmFavourites(SettingsStore& settings, QString dataFolder, QWidget* parent)
    : EditableListDialog(settings, new FavouritesModel, ListColumns::designWidths(FavouritesModel::Columns),
                         Keys::Favourites.columns, parent)
    , m_path(Favourites::filePath(dataFolder))
    , m_model(static_cast<FavouritesModel*>(listModel()))
{
    setObjectName(QStringLiteral("frmFavourites"));
    list()->setObjectName(QStringLiteral("lvwFavourites"));
    keepColumnOrder();
    const auto button = [this](const char* name) {
        auto* created = new QPushButton(this);
        created->setObjectName(QLatin1String(name));
        // Enter belongs to the edit box: no button takes it as the default.
        created->setAutoDefault(false);
        return created;
    };
    cmdNew = button("cmdNew");
    cmdRemove = button("cmdRemove");
    cmdOK = button("cmdOK");
    cmdCancel = button("cmdCancel");
    cmdApply = button("cmdApply");

    auto* layout = new QGridLayout(this);
    layout->addWidget(list(), 0, 0, 3, 4);
    layout->addWidget(cmdNew, 0, 4);
    layout->addWidget(cmdRemove, 1, 4);
    layout->addWidget(cmdOK, 3, 1);
    layout->addWidget(cmdCancel, 3, 2);
    layout->addWidget(cmdApply, 3, 3);
    layout->addWidget(messageLine(), 4, 0, 1, 5);
    layout->setRowStretch(2, 1);
    layout->setColumnStretch(0, 1);

    connect(cmdNew, &QPushButton::clicked, this, &FrmFavourites::startNewRow);
    connect(cmdRemove, &QPushButton::clicked, this, [this] {
        if (selectedRow() >= 0)
            removeRow(selectedRow());
    });
    connect(cmdApply, &QPushButton::clicked, this, &FrmFavourites::apply);
    connect(cmdOK, &QPushButton::clicked, this, [this] {
        commitEdit();
        // A failed write keeps the dialog, and the user's rows, open.
        if (apply())
            close();
    });
    connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);

    const QList<FavouritesModel::Row> rows = rowsOnDisk(&m_complete);
    m_model->setRows(rows);
    m_onDisk = rows;
    if (!m_complete)
        sayTooLarge();

    QHeaderView* header = list()->header();
    ColumnLayout::restore(this->settings(), Keys::Favourites.columns, *header);
    if (this->settings().contains(SettingsCodec::sortKeyKey(Keys::Favourites.sort))) {
        m_sort = ColumnLayout::readSort(this->settings(), Keys::Favourites.sort, m_sort);
        m_model->sort(m_sort.key, m_sort.qtOrder());
    }
    connect(header, &QHeaderView::sectionClicked, this, &FrmFavourites::sortClicked);
    connect(header, &QHeaderView::sectionMoved, this,
            [this] { ColumnLayout::saveOrder(this->settings(), Keys::Favourites.columns, *list()->header()); });
    retranslateUi();
    resize(540, 320);
}

void FrmFavourites::sayTooLarge()
{
    say(tr("This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in "
           "part and not saved, so that no server is lost.")
            .arg(Favourites::MaxFavourites)
            .arg(Favourites::MaxFileBytes / (1024 * 1024)));
}

QList<FavouritesModel::Row> FrmFavourites::rowsOnDisk(bool* complete) const
{
    QList<FavouritesModel::Row> rows;
    for (const auto& favourite : Favourites::readFile(m_path, complete).value_or(QList<Favourites::Favourite>{}))
        rows.append({favourite.name, Favourites::addressText(favourite), favourite.password});
    return rows;
}

bool FrmFavourites::apply()
{
    if (!m_complete) {
        sayTooLarge();
        return false;
    }
    // Another window of the program (or the server list's "Add To
    // Favourites") may have written the file since it was read here: what
    // it added is kept, beside this editor's rows.
    bool complete = true;
    const QList<FavouritesModel::Row> now = rowsOnDisk(&complete);
    int added = 0;
    if (complete && now != m_onDisk) {
        for (const FavouritesModel::Row& row : now) {
            if (!m_onDisk.contains(row) && !m_model->rows().contains(row)) {
                m_model->append(row);
                ++added;
            }
        }
    }
    QByteArray bytes;
    for (const FavouritesModel::Row& row : m_model->rows())
        bytes += Favourites::line(row.at(FavouritesModel::Address), row.at(FavouritesModel::Password),
                                  row.at(FavouritesModel::Name));
    if (!writeWholeFile(m_path, bytes)) {
        say(tr("The favourites could not be saved to %1. Your changes are still here.")
                .arg(QDir::toNativeSeparators(m_path)));
        return false;
    }
    // As the file reads back, so the next comparison is like with like.
    m_onDisk = rowsOnDisk(&complete);
    say(added == 0 ? QString()
                   : tr("%n servers added elsewhere since this list was opened are kept as well.", nullptr, added));
    return true;
}

void FrmFavourites::retranslateUi()
{
    setWindowTitle(tr("Favourites"));
    cmdOK->setText(tr("OK"));
    cmdCancel->setText(tr("Cancel"));
    cmdApply->setText(tr("Apply"));
    cmdNew->setText(tr("New"));
    cmdRemove->setText(tr("Remove"));
    retranslateMenu();
    m_model->retranslate();
}

void FrmFavourites::commitCell(int row, int column, const QString& text)
{
    // An address the queries and the game cannot use is not taken: it
    // would be saved, then skipped by every query without a word.
    if (column == FavouritesModel::Address && !text.trimmed().isEmpty() && !isServerAddress(text)) {
        say(tr("\"%1\" is not a server address. Type a host name or an IP address, followed by a colon and "
               "a port from 1 to 65535.")
                .arg(text));
        return;
    }
    say(QString());
    m_model->setCell(row, column, text.trimmed());
}

void FrmFavourites::newRow()
{
    m_model->append({tr("New Server"), QString(), QString()});
}

void FrmFavourites::removeRow(int row)
{
    m_model->remove(row);
}

void FrmFavourites::sortClicked(int column)
{
    m_sort = m_sort.flippedTo(column);
    m_model->sort(column, m_sort.qtOrder());
    ColumnLayout::saveSort(settings(), Keys::Favourites.sort, m_sort);
}
