// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/columnlayout.h"
#include "widgets/editablelistdialog.h"
#include "widgets/reportmodel.h"

class QPushButton;

// The favourites as the editor lists them: "Server Name", "Server IP
// Address", "Password", each cell the text the user sees and edits.
class FavouritesModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FavouritesModel)

public:
    enum Column { Name, Address, Password, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server Name"), 180},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server IP Address"), 150},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Password"), 110},
    }};
    using Row = std::array<QString, ColumnCount>;

    explicit FavouritesModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    const QList<Row>& rows() const { return m_rows; }
    void setRows(const QList<Row>& rows);
    void append(const Row& row);
    void remove(int row);
    void setCell(int row, int column, const QString& text);

private:
    QList<Row> m_rows;
};

// The favourites editor: New, Remove and in-place edits change the list;
// Apply or OK writes favourites.dat, Cancel leaves it as it was.
class FrmFavourites final : public EditableListDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmFavourites)

public:
    FrmFavourites(SettingsStore& settings, QString dataFolder, QWidget* parent = nullptr);

    const QList<FavouritesModel::Row>& rows() const { return m_model->rows(); }
    // Writes the whole file from the list; false, with a message in the
    // dialog, when it could not be written or may not be (a file too large
    // to be read whole).
    bool apply();
    QList<FavouritesModel::Row> rowsOnDisk(bool* complete) const;

protected:
    void commitCell(int row, int column, const QString& text) override;
    void newRow() override;
    void removeRow(int row) override;
    void retranslateUi() override;

private:
    void sortClicked(int column);
    void sayTooLarge();

    QString m_path;
    bool m_complete = true;
    // The rows of the file as last read or written here.
    QList<FavouritesModel::Row> m_onDisk;
    FavouritesModel* m_model = nullptr;
    ColumnLayout::SortState m_sort;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdApply = nullptr;
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdRemove = nullptr;
};
