#include "themeservice.h"

#include <QApplication>
#include <QStyle>

ThemeService::ThemeService(QString dataFolder, QObject* parent)
    : QObject(parent)
    , m_dataFolder(std::move(dataFolder))
    , m_system(QApplication::style()->standardPalette())
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

QString ThemeService::styleSheet(const ThemeFile::Theme& theme, const QColor& progressBack, const QColor& progressBar)
{
    QString sheet = QStringLiteral("QProgressBar { background-color: %1; border: 1px solid palette(dark); }")
                        .arg(progressBack.name());
    switch (theme.progressType) {
    case ThemeFile::Standard:
        // The percentage in the middle over a plain bar.
        sheet += QStringLiteral("QProgressBar { text-align: center; } QProgressBar::chunk { background-color: %1; }")
                     .arg(progressBar.name());
        break;
    case ThemeFile::Smooth:
        sheet += QStringLiteral("QProgressBar { color: transparent; } QProgressBar::chunk { background-color: %1; }")
                     .arg(progressBar.name());
        break;
    default: // Segmented, also for an index the list does not have
        sheet += QStringLiteral("QProgressBar { color: transparent; } QProgressBar::chunk { background-color: %1; "
                                "width: 8px; margin: 1px; }")
                     .arg(progressBar.name());
        break;
    }
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
    QApplication::setPalette(windows);

    QPalette lists = windows;
    lists.setColor(QPalette::Base, toColor(theme.listBack));
    lists.setColor(QPalette::AlternateBase, toColor(theme.listBack));
    lists.setColor(QPalette::Text, toColor(theme.listText));
    QApplication::setPalette(lists, "QAbstractItemView");

    QPalette boxes = windows;
    boxes.setColor(QPalette::Base, toColor(theme.textBack));
    boxes.setColor(QPalette::Text, toColor(theme.textText));
    boxes.setColor(QPalette::ButtonText, toColor(theme.textText));
    QApplication::setPalette(boxes, "QLineEdit");
    QApplication::setPalette(boxes, "QComboBox");

    qApp->setStyleSheet(styleSheet(theme, toColor(theme.progressBack), toColor(theme.progressBar)));
    emit applied(theme);
}
