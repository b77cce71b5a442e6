#pragma once

#include <QLatin1String>
#include <QPushButton>

#include <type_traits>

// A control created with the object name that tests, settings and style
// sheets know it by. Buttons never take Enter by themselves: only a
// dialog's chosen default button does.
template <typename T> T* makeControl(QWidget* parent, const char* objectName)
{
    auto* control = new T(parent);
    control->setObjectName(QLatin1String(objectName));
    if constexpr (std::is_base_of_v<QPushButton, T>)
        control->setAutoDefault(false);
    return control;
}
