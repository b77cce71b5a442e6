// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/desktop.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QProcess>
#include <QSystemTrayIcon>

namespace {

QMessageBox::Icon toQtIcon(Desktop::Icon icon)
{
    switch (icon) {
    case Desktop::Icon::Information:
        return QMessageBox::Information;
    case Desktop::Icon::Warning:
        return QMessageBox::Warning;
    case Desktop::Icon::Critical:
        return QMessageBox::Critical;
    case Desktop::Icon::Question:
        return QMessageBox::Question;
    case Desktop::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

void Desktop::closeOtherWindows(const QWidget* main)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != main && window->isVisible())
            window->close();
    }
}

QString Desktop::chooseExecutable(QWidget* parent, const QString& folder)
{
    // The home folder by default: Steam's and Wine's folders are hidden
    // ones below it, typed or shown from there.
    return openFileName(parent, tr("Select your Quake 4 Executable"), folder.isEmpty() ? QDir::homePath() : folder,
                        tr("Quake 4 Executable (%1)").arg(executablePattern()));
}

QString Desktop::notificationMarkup(const QString& plain)
{
    return plain.left(MaxNotificationLength).toHtmlEscaped();
}

QString Desktop::executablePattern()
{
#ifdef Q_OS_WIN
    return QStringLiteral("*.exe");
#else
    return QStringLiteral("*");
#endif
}

QMessageBox::StandardButton QtDesktop::message(QWidget* parent, Icon icon, const QString& title, const QString& text,
                                               QMessageBox::StandardButtons buttons, const ButtonTexts& buttonTexts)
{
    QMessageBox box(toQtIcon(icon), title, text, buttons, parent);
    for (auto it = buttonTexts.cbegin(); it != buttonTexts.cend(); ++it) {
        if (QAbstractButton* button = box.button(it.key()))
            button->setText(it.value());
    }
    // Messages quote what servers and sites sent: never as markup.
    box.setTextFormat(Qt::PlainText);
    const int result = box.exec();
    return static_cast<QMessageBox::StandardButton>(result);
}

std::optional<QString> QtDesktop::inputText(QWidget* parent, const QString& title, const QString& prompt,
                                            const QString& initialText, Echo echo)
{
    bool ok = false;
    const QString text = QInputDialog::getText(
        parent, title, prompt, echo == Echo::Secret ? QLineEdit::Password : QLineEdit::Normal, initialText, &ok);
    if (!ok)
        return std::nullopt;
    return text;
}

QString QtDesktop::openFileName(QWidget* parent, const QString& title, const QString& folder, const QString& filter)
{
    QFileDialog dialog(parent, title, folder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    // The game often lies below a hidden folder (~/.steam, ~/.wine).
    dialog.setFilter(dialog.filter() | QDir::Hidden);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

std::optional<int> QtDesktop::chooseItem(QWidget* parent, const QString& title, const QString& prompt,
                                         const QStringList& items)
{
    bool ok = false;
    const QString item = QInputDialog::getItem(parent, title, prompt, items, 0, false, &ok);
    if (!ok)
        return std::nullopt;
    const qsizetype index = items.indexOf(item);
    return index < 0 ? std::nullopt : std::optional<int>(int(index));
}

bool QtDesktop::openUrl(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

std::optional<QColor> QtDesktop::pickColour(QWidget* parent, const QColor& start)
{
    QColorDialog dialog(start, parent);
    dialog.setObjectName(QStringLiteral("frmColourPicker"));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.selectedColor();
}

bool QtDesktop::startDetached(const QString& program, const QStringList& arguments, const QString& workingFolder,
                              const QStringList& environment)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setWorkingDirectory(workingFolder);
    if (!environment.isEmpty()) {
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const QString& entry : environment) {
            const qsizetype equals = entry.indexOf(QLatin1Char('='));
            if (equals > 0)
                variables.insert(entry.left(equals), entry.mid(equals + 1));
        }
        process.setProcessEnvironment(variables);
    }
    return process.startDetached();
}

QtDesktop::QtDesktop() = default;
QtDesktop::~QtDesktop() = default;

void QtDesktop::setNotifying(bool on)
{
    if (!on) {
        m_tray.reset();
        return;
    }
    if (m_tray || !QSystemTrayIcon::isSystemTrayAvailable())
        return;
    m_tray = std::make_unique<QSystemTrayIcon>(QGuiApplication::windowIcon());
    m_tray->setToolTip(QGuiApplication::applicationDisplayName());
    QObject::connect(m_tray.get(), &QSystemTrayIcon::messageClicked, [this] {
        if (m_clicked)
            m_clicked();
    });
    m_tray->show();
}

bool QtDesktop::notify(const QString& title, const QString& text, std::function<void()> clicked)
{
    if (!m_tray || !QSystemTrayIcon::supportsMessages())
        return false;
    m_clicked = std::move(clicked);
#ifdef Q_OS_WIN
    // Windows' balloons show text as it is.
    m_tray->showMessage(title, text.left(MaxNotificationLength), QSystemTrayIcon::Information);
#else
    m_tray->showMessage(notificationMarkup(title), notificationMarkup(text), QSystemTrayIcon::Information);
#endif
    return true;
}
