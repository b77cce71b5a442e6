// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "editors/frmfilters.h"
#include "fleet.h"
#include "testwindow.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

// Types a new variable filter into the filters editor, as a user would.
inline void addFilter(const TestWindow& w, const QString& variable, const QString& value)
{
    auto* filters = w.window->findChild<FrmFilters*>(QStringLiteral("frmFilters"));
    filters->findChild<QPushButton*>(QStringLiteral("cmdNew"))->click();
    const int row = filters->filters().size() - 1;
    auto* box = filters->findChild<QLineEdit*>(QStringLiteral("txtEdit"));
    filters->editCell(row, 0);
    box->setText(variable);
    QTest::keyClick(box, Qt::Key_Return);
    filters->editCell(row, 1);
    box->setText(value);
    QTest::keyClick(box, Qt::Key_Return);
}

// A window that has listed a running fleet.
struct Listed : RunningFleet, TestWindow {
    Listed(int servers, quint16 masterPort, bool refreshOnClick)
        : RunningFleet(fleetOf(servers, masterPort))
        , TestWindow(masterPort, TestPorts::at(2000), [refreshOnClick](SettingsStore& settings) {
            settings.save(Keys::RefreshServers.key, QLatin1String(refreshOnClick ? "1" : "0"));
        })
    {
        if (!queryMasters())
            qFatal("the query did not finish");
    }
};
