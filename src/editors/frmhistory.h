// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/playhistory.h"
#include "widgets/reportmodel.h"

#include <QDialog>

class CopyCommands;
class QLabel;
class QMenu;
class QPushButton;
class ReportView;
class SettingsStore;

// The servers joined lately as a list: "Server", "Server IP Address",
// "Last Played", newest first; a header click sorts.
class HistoryModel final : public ReportModel {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HistoryModel)

public:
    enum Column { Name, Address, Played, ColumnCount };
    static constexpr std::array<ListColumn, ColumnCount> Columns{{
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server"), 170},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Server IP Address"), 140},
        ListColumn{QT_TRANSLATE_NOOP("ListColumns", "Last Played"), 175},
    }};

    explicit HistoryModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    // Text columns without regard to case; the time by the time itself.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    void setEntries(const PlayHistory::List& entries);
    const PlayHistory::List& entries() const { return m_entries; }

private:
    PlayHistory::List m_entries;
};

// "Recently Played": the servers the user joined, with the copy commands
// of every list, a query of just these servers, and Remove for the ones
// the user wants gone from it.
class FrmHistory final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmHistory)

public:
    FrmHistory(SettingsStore& settings, QString dataFolder, QWidget* parent = nullptr);

    // Reads history.dat again (after a join).
    void reload();
    // A word for the user under the list, until the selection changes.
    void say(const QString& text);
    const HistoryModel& model() const { return *m_model; }
    // What went wrong last (a file that could not be written); empty when
    // nothing did.
    const QString& message() const { return m_error; }

signals:
    void queryRequested();
    // A double click or Enter on a row: the user wants that server.
    void serverChosen(const QString& address, const QString& name);

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslateUi();
    void removeSelected();
    void showState();

    QString m_path;
    QString m_emptyText;
    QString m_error;
    HistoryModel* m_model = nullptr;
    ReportView* lstHistory = nullptr;
    QLabel* lblEmpty = nullptr;
    QMenu* m_menu = nullptr;
    CopyCommands* m_copy = nullptr;
    QPushButton* cmdQueryHistory = nullptr;
    QPushButton* cmdRemove = nullptr;
    QPushButton* cmdClose = nullptr;
};
