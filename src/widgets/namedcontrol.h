// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>
#include <QLatin1String>
#include <QPushButton>

#include <type_traits>

// A control created with the object name that tests, settings and style
// sheets know it by. Buttons never take Enter by themselves: only a
// dialog's chosen default button does. Labels show their text as it is:
// much of it comes from the network, and markup there is not ours.
template <typename T> T* makeControl(QWidget* parent, const char* objectName)
{
    auto* control = new T(parent);
    control->setObjectName(QLatin1String(objectName));
    if constexpr (std::is_base_of_v<QPushButton, T>)
        control->setAutoDefault(false);
    if constexpr (std::is_base_of_v<QLabel, T>)
        control->setTextFormat(Qt::PlainText);
    return control;
}
