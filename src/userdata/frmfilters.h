#pragma once

#include "columnlayout.h"
#include "filters.h"

#include <QDialog>

class FiltersModel;
class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class ReportView;
class SettingsStore;

// The filters editor: variable filters edited in place, and the three
// built-in check boxes. One instance lives as long as the main window
// (hidden when closed), so the filters it holds are the ones in force even
// though filters.dat gives back only its first line at the next start.
class FrmFilters final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmFilters)

public:
    FrmFilters(SettingsStore& settings, QString dataFolder, QWidget* parent = nullptr);

    QList<Filters::VariableFilter> filters() const;
    Filters::BuiltIn builtIn() const;

    // Puts the edit box over a cell; what is typed is committed on Enter or
    // when the box loses the focus.
    void editCell(int row, int column);

signals:
    // Every change: the lists must be filtered again.
    void filtersChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void retranslateUi();
    void commitEdit();
    void save();
    void newFilter();
    void removeFilter();
    void sortClicked(int column);
    void columnMoved();
    void copyCells(int what);

    SettingsStore& m_settings;
    QString m_path;
    FiltersModel* m_model = nullptr;
    ColumnLayout::SortState m_sort;
    int m_lastButton = 0;
    int m_editRow = -1;
    int m_editColumn = -1;
    int m_menuColumn = 0;
    bool m_restoringColumns = false;

    ReportView* lstFilters = nullptr;
    QLineEdit* txtEdit = nullptr;
    QPushButton* cmdNew = nullptr;
    QPushButton* cmdRemove = nullptr;
    QLabel* lblBuiltIn = nullptr;
    QCheckBox* chkIncludeEmpty = nullptr;
    QCheckBox* chkIncludeFull = nullptr;
    QCheckBox* chkIncludePassworded = nullptr;
    QLabel* lblExample = nullptr;
    QMenu* mPopup = nullptr;
    QAction* mPopCopyCell = nullptr;
    QAction* mPopCopyColumn = nullptr;
    QAction* mPopCopyRow = nullptr;
    QAction* mPopCopyAll = nullptr;
    QAction* mPopEditCell = nullptr;
    QAction* mPopNew = nullptr;
    QAction* mPopRemove = nullptr;
};
