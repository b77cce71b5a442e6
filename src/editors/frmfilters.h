// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/filters.h"
#include "widgets/columnlayout.h"
#include "widgets/editablelistdialog.h"

class FiltersModel;
class QCheckBox;
class QLabel;
class QPushButton;

// The filters editor: variable filters edited in place, and the three
// built-in check boxes. One instance lives as long as the main window
// (hidden when closed), so the filters it holds are the ones in force even
// though filters.dat gives back only its first line at the next start.
class FrmFilters final : public EditableListDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmFilters)

public:
    FrmFilters(SettingsStore& settings, QString dataFolder, QWidget* parent = nullptr);

    QList<Filters::VariableFilter> filters() const;
    Filters::BuiltIn builtIn() const;
    // A filter from elsewhere (a row's menu): it takes the place of one on
    // the same variable, which would otherwise leave nothing listed.
    void putFilter(const Filters::VariableFilter& filter);

signals:
    // Every change: the lists must be filtered again.
    void filtersChanged();

protected:
    void commitCell(int row, int column, const QString& text) override;
    void newRow() override;
    void removeRow(int row) override;
    void retranslateUi() override;

private:
    void save();
    void sortClicked(int column);
    void columnMoved();

    QString m_path;
    FiltersModel* m_model = nullptr;
    ColumnLayout::SortState m_sort;
    bool m_restoringColumns = false;

    QPushButton* cmdNew = nullptr;
    QPushButton* cmdRemove = nullptr;
    QLabel* lblBuiltIn = nullptr;
    QLabel* lblBuiltInHint = nullptr; // says what a tick means
    QCheckBox* chkIncludeEmpty = nullptr;
    QCheckBox* chkIncludeFull = nullptr;
    QCheckBox* chkIncludePassworded = nullptr;
    QLabel* lblExample = nullptr;
};
