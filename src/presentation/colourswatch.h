// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "presentation/themefile.h"

#include <QPushButton>

class ThemeService;

// A theme colour shown as a button of that colour. It keeps the stored
// value, so a system colour stays a system colour until the user picks
// another.
class ColourSwatch final : public QPushButton {
    Q_OBJECT

public:
    ColourSwatch(const ThemeService& themes, QWidget* parent = nullptr);

    ThemeFile::Colour value() const { return m_value; }
    void setValue(ThemeFile::Colour value);
    QColor color() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const ThemeService& m_themes;
    ThemeFile::Colour m_value = 0;
};
