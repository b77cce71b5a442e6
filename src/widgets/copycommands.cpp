// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/copycommands.h"

#include "widgets/columnlayout.h"
#include "widgets/reportview.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

CopyCommands::CopyCommands(QMenu& menu, SettingsStore& settings, TargetOf target, const QString& columnJoin,
                           const QString& nameSuffix)
    : QObject(&menu)
    , m_settings(settings)
    , m_target(std::move(target))
    , m_columnJoin(columnJoin)
{
    const char* names[] = {"mPopCopyCell", "mPopCopyColumn", "mPopCopyRow", "mPopCopyAll"};
    for (size_t i = 0; i < m_actions.size(); ++i) {
        QAction* action = menu.addAction(QString());
        action->setObjectName(QLatin1String(names[i]) + nameSuffix);
        const auto what = static_cast<CopyText::What>(i);
        connect(action, &QAction::triggered, this, [this, what] { copy(what); });
        m_actions[i] = action;
    }
    retranslate();
}

void CopyCommands::retranslate()
{
    m_actions[0]->setText(tr("Copy Cell"));
    m_actions[1]->setText(tr("Copy Column"));
    m_actions[2]->setText(tr("Copy Row"));
    m_actions[3]->setText(tr("Copy All"));
}

void CopyCommands::copy(CopyText::What what) const
{
    const Target target = m_target();
    const QAbstractItemModel* model = target.view->model();
    CopyText::List source;
    source.rowCount = model->rowCount();
    source.cell = [model](int row, int column) { return model->index(row, column).data().toString(); };
    source.selectedRow = target.view->selectedRow();
    source.clickedColumn = std::clamp(target.view->pressedColumn(), 0, model->columnCount() - 1);
    source.displayOrder = ColumnLayout::shownOnly(
        ColumnLayout::readOrder(m_settings, target.orderPrefix, model->columnCount()), *target.view->header());
    source.columnJoin = m_columnJoin;
    const auto text = CopyText::build(what, source);
    if (!text)
        return;
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(*text);
}
