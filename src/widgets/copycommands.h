// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "userdata/copytext.h"

#include <QObject>
#include <QString>

#include <array>
#include <functional>

class QAction;
class QMenu;
class ReportView;
class SettingsStore;

// "Copy Cell", "Copy Column", "Copy Row" and "Copy All" in a list's pop-up
// menu: one implementation for every list of the program. Row and All put
// the cells in the order the user arranged the columns, as stored under
// the list's order keys (a press on a list stores them).
class CopyCommands final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CopyCommands)

public:
    // The list the commands read now, with the prefix of its order keys.
    struct Target {
        const ReportView* view = nullptr;
        QStringView orderPrefix;
    };
    using TargetOf = std::function<Target()>;

    // Adds the four entries to the menu, named mPopCopyCell, ... followed
    // by the suffix. columnJoin joins the cells of a copied column.
    CopyCommands(QMenu& menu, SettingsStore& settings, TargetOf target, const QString& columnJoin,
                 const QString& nameSuffix = {});

    void retranslate();
    // Puts the text on the clipboard; nothing without a selected row.
    void copy(CopyText::What what) const;

private:
    SettingsStore& m_settings;
    TargetOf m_target;
    QString m_columnJoin;
    std::array<QAction*, 4> m_actions{};
};
