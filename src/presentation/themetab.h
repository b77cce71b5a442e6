// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "presentation/themefile.h"

#include <QWidget>

class ColourSwatch;
class Desktop;
class QComboBox;
class QLabel;
class QPushButton;
class ThemeService;

// The "Theme" tab of the options: seven colours, the progress bar's type,
// the tab style and the saved themes of Themes.ini. What it shows is
// applied to every window at once; the dialog's Cancel puts the file's
// theme back.
class ThemeTab final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ThemeTab)

public:
    ThemeTab(ThemeService& themes, Desktop& desktop, QWidget* parent = nullptr);

    // The theme applied now, and the saved themes of the file.
    void load();
    // Saves what is shown under the chosen name (or "Default").
    bool save();
    // The system's colours, shown and applied.
    void resetToDefaults();
    void retranslateUi();

    // The colours and styles the controls show now.
    ThemeFile::Theme shownTheme(const QString& name) const;
    const ThemeFile::Themes& themes() const { return m_themes; }

signals:
    // Empty once the file was written again.
    void message(const QString& text);

private:
    // The saved themes in file order, then the shipped ones not saved
    // under their names: the entries of cmbThemes.
    QList<ThemeFile::Theme> offered() const;
    void fillThemes(const QString& chosen);
    void showTheme(const ThemeFile::Theme& theme);
    void applyLive();
    void pickColour(ColourSwatch* swatch);
    void chooseTheme(int index);
    void saveThemeAsked();
    bool saveTheme(const QString& name);
    void removeTheme();
    bool writeThemes();

    ThemeService& m_themeService;
    Desktop& m_desktop;
    ThemeFile::Themes m_themes;
    bool m_loaded = false;

    struct Swatch {
        ColourSwatch* swatch;
        QLabel* label;
    };
    Swatch m_swatches[7] = {};
    QLabel* lblScroll = nullptr;
    QComboBox* cmbScroll = nullptr;
    QLabel* lblTab = nullptr;
    QComboBox* cmbTab = nullptr;
    QLabel* lblSaved = nullptr;
    QComboBox* cmbThemes = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdRemove = nullptr;
};
