// SPDX-License-Identifier: GPL-2.0-or-later
#include "presentation/themeservice.h"

#include <QApplication>
#include <QStyle>

namespace {

// The desktop's own colours, as the platform gives them (a dark desktop's
// are dark), taken before any theme replaced the application's palette.
const QPalette& desktopPalette()
{
    static const QPalette palette = QApplication::palette();
    return palette;
}

} // namespace

ThemeService::ThemeService(QString dataFolder, QObject* parent)
    : QObject(parent)
    , m_dataFolder(std::move(dataFolder))
    , m_system(desktopPalette())
    , m_applied(ThemeFile::systemTheme())
{
}

QString ThemeService::filePath() const
{
    return ThemeFile::filePath(m_dataFolder);
}

void ThemeService::applyFile()
{
    const auto themes = ThemeFile::readFile(filePath());
    const auto theme = themes ? ThemeFile::currentTheme(*themes) : std::nullopt;
    apply(theme.value_or(ThemeFile::systemTheme()));
}

QColor ThemeService::toColor(ThemeFile::Colour colour) const
{
    if (!ThemeFile::isSystemColour(colour))
        return QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    // The numbers of the classic system colour table.
    switch (ThemeFile::systemColourNumber(colour)) {
    case 5: // window background
        return m_system.color(QPalette::Base);
    case 8: // window text
        return m_system.color(QPalette::Text);
    case 15: // button face
        return m_system.color(QPalette::Button);
    case 2:
    case 13: // highlight
        return m_system.color(QPalette::Highlight);
    case 9:
    case 14: // highlighted text
        return m_system.color(QPalette::HighlightedText);
    case 7:
    case 18:
    case 19: // menu, button and caption text
        return m_system.color(QPalette::ButtonText);
    case 16:
    case 21: // shadows
        return m_system.color(QPalette::Dark);
    case 20:
    case 22: // highlights of 3D edges
        return m_system.color(QPalette::Light);
    case 23:
        return m_system.color(QPalette::ToolTipText);
    case 24:
        return m_system.color(QPalette::ToolTipBase);
    default:
        return m_system.color(QPalette::Window);
    }
}

ThemeFile::Colour ThemeService::fromColor(const QColor& color)
{
    return ThemeFile::rgbColour(color.red(), color.green(), color.blue());
}

QString ThemeService::styleSheet(const ThemeFile::Theme& theme, const QPalette& system,
                                 const std::function<QColor(ThemeFile::Colour)>& colourOf)
{
    const QString listBack = colourOf(theme.listBack).name();
    const QString listText = colourOf(theme.listText).name();
    const QString textBack = colourOf(theme.textBack).name();
    const QString textText = colourOf(theme.textText).name();
    const QString selected = system.color(QPalette::Highlight).name();
    const QString onSelected = system.color(QPalette::HighlightedText).name();
    QString sheet = QStringLiteral("QTableView, QTreeView, QListView { background-color: %1; color: %2; "
                                   "alternate-background-color: %1; selection-background-color: %3; "
                                   "selection-color: %4; }")
                        .arg(listBack, listText, selected, onSelected);
    // The list with the keyboard shows it, an empty one too.
    sheet += QStringLiteral("QTableView, QTreeView, QListView { border: 1px solid palette(mid); } "
                            "QTableView:focus, QTreeView:focus, QListView:focus { border: 1px solid %1; }")
                 .arg(selected);
    sheet += QStringLiteral("QLineEdit, QComboBox, QComboBox QAbstractItemView { background-color: %1; color: %2; "
                            "selection-background-color: %3; selection-color: %4; }")
                 .arg(textBack, textText, selected, onSelected);
    // A box that cannot be used looks it: the form's colour behind a greyed text.
    sheet += QStringLiteral("QLineEdit:disabled, QComboBox:disabled { background-color: %1; color: %2; }")
                 .arg(colourOf(theme.formBack).name(), system.color(QPalette::Disabled, QPalette::Text).name());

    const QString progressBack = colourOf(theme.progressBack).name();
    const QString progressBar = colourOf(theme.progressBar).name();
    sheet +=
        QStringLiteral("QProgressBar { background-color: %1; border: 1px solid palette(dark); }").arg(progressBack);
    switch (theme.progressType) {
    case ThemeFile::Standard:
        // The percentage in the middle over a plain bar.
        sheet += QStringLiteral("QProgressBar { text-align: center; color: %2; } "
                                "QProgressBar::chunk { background-color: %1; }")
                     .arg(progressBar, textText);
        break;
    case ThemeFile::Smooth:
        sheet += QStringLiteral("QProgressBar { color: transparent; } QProgressBar::chunk { background-color: %1; }")
                     .arg(progressBar);
        break;
    default: // Segmented, also for an index the list does not have
        sheet += QStringLiteral("QProgressBar { color: transparent; } QProgressBar::chunk { background-color: %1; "
                                "width: 8px; margin: 1px; }")
                     .arg(progressBar);
        break;
    }
    // What went wrong, in red that stays readable on the form's colour.
    const bool darkForm = colourOf(theme.formBack).lightnessF() < 0.5;
    sheet += QStringLiteral("MessageLine { color: %1; }")
                 .arg(darkForm ? QStringLiteral("#ff8a80") : QStringLiteral("#b00000"));
    if (theme.tabStyle == ThemeFile::LargeTabs)
        sheet += QStringLiteral("QTabBar::tab { padding: 8px 18px; min-height: 20px; }");
    else
        sheet += QStringLiteral("QTabBar::tab { padding: 3px 8px; }");
    return sheet;
}

void ThemeService::apply(const ThemeFile::Theme& theme)
{
    m_applied = theme;
    const QColor form = toColor(theme.formBack);

    QPalette windows = m_system;
    windows.setColor(QPalette::Window, form);
    windows.setColor(QPalette::Button, form);
    // Captions on the form stay readable whatever its colour.
    const QColor onForm = form.lightnessF() < 0.5 ? QColor(Qt::white) : QColor(Qt::black);
    windows.setColor(QPalette::WindowText, onForm);
    windows.setColor(QPalette::ButtonText, onForm);
    // A control that cannot be used looks it: its caption half way to the form.
    const QColor dimmed = QColor::fromRgbF((onForm.redF() + form.redF()) / 2, (onForm.greenF() + form.greenF()) / 2,
                                           (onForm.blueF() + form.blueF()) / 2);
    windows.setColor(QPalette::Disabled, QPalette::WindowText, dimmed);
    windows.setColor(QPalette::Disabled, QPalette::ButtonText, dimmed);
    QApplication::setPalette(windows);

    // Lists and boxes by style sheet: a palette set for a class reaches
    // neither a view's viewport nor a box that set its own.
    qApp->setStyleSheet(styleSheet(theme, m_system, [this](ThemeFile::Colour colour) { return toColor(colour); }));
    emit applied(theme);
}
