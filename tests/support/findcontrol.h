// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QtGlobal>

// The control of that name below root, which a test needs to be there: a
// missing one ends the test at once, naming it.
template <typename T> T* findControl(const QObject* root, const char* name)
{
    T* control = root->findChild<T*>(QLatin1String(name));
    if (!control)
        qFatal("no control named %s", name);
    return control;
}
