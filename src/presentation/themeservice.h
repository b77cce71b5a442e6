// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "presentation/themefile.h"

#include <QColor>
#include <QObject>
#include <QPalette>

#include <functional>

// Applies a theme to every window of the program, in one place: the
// application's palette for the windows and one style sheet for lists,
// text and combo boxes, the progress bar's look and the tab size. Windows
// never colour themselves.
class ThemeService final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ThemeService)

public:
    // dataFolder holds Themes.ini.
    explicit ThemeService(QString dataFolder, QObject* parent = nullptr);

    QString filePath() const;
    // Reads the file and applies its current theme; the system colours
    // when the file is missing, unreadable or names no saved theme.
    void applyFile();
    void apply(const ThemeFile::Theme& theme);
    const ThemeFile::Theme& applied() const { return m_applied; }

    // A stored colour as shown here: system colours follow the platform.
    QColor toColor(ThemeFile::Colour colour) const;
    static ThemeFile::Colour fromColor(const QColor& color);
    // The style sheet of a theme: list and box colours, the progress bar's
    // look and the tab size.
    static QString styleSheet(const ThemeFile::Theme& theme, const QPalette& system,
                              const std::function<QColor(ThemeFile::Colour)>& colourOf);

signals:
    void applied(const ThemeFile::Theme& theme);

private:
    QString m_dataFolder;
    QPalette m_system;
    ThemeFile::Theme m_applied;
};
