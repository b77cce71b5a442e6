#pragma once

#include "themefile.h"

#include <QColor>
#include <QObject>
#include <QPalette>

// Applies a theme to every window of the program, in one place: the
// application's palettes (windows, lists, text and combo boxes) and one
// style sheet for what palettes cannot say (the progress bar's look and
// the tab size). Windows never colour themselves.
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
    // The style sheet for a progress bar type and tab style.
    static QString styleSheet(const ThemeFile::Theme& theme, const QColor& progressBack, const QColor& progressBar);

signals:
    void applied(const ThemeFile::Theme& theme);

private:
    QString m_dataFolder;
    QPalette m_system;
    ThemeFile::Theme m_applied;
};
