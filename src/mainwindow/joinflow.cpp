#include "joinflow.h"

#include "desktop.h"
#include "favourites.h"
#include "historycombobox.h"
#include "joincommand.h"
#include "settingsstore.h"

#include <QDir>
#include <QFileInfo>

JoinFlow::JoinFlow(SettingsStore& settings, Desktop& desktop, QString favouritesPath, const HistoryComboBox& playerName,
                   const HistoryComboBox& password, QWidget* window)
    : QObject(window)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_favouritesPath(std::move(favouritesPath))
    , m_playerName(playerName)
    , m_password(password)
    , m_window(window)
{
}

void JoinFlow::joinByAddress()
{
    const auto typed =
        m_desktop.inputText(m_window, tr("Join server by IP Address"),
                            tr("Please enter the IP address/hostname and port of the server you wish to join"));
    if (!typed || typed->trimmed().isEmpty())
        return;
    join(Target{typed->trimmed(), false, typed->trimmed()});
}

QString JoinFlow::passwordFor(const Target& target) const
{
    if (!m_password.currentText().isEmpty())
        return m_password.currentText();
    // The join reads the favourites into a table of its own; a running
    // query's addresses stay as they are.
    if (const auto favourites = Favourites::readFile(m_favouritesPath)) {
        if (const auto favourite = Favourites::toAddressTable(*favourites).lastMatching(target.address))
            return favourite->password;
    }
    return QString();
}

QString JoinFlow::executable()
{
    QString path = m_settings.value(Keys::Path);
    if (!path.isEmpty())
        return path;
    path = m_desktop.openFileName(m_window, tr("Select your Quake 4 Executable"), QString(),
                                  tr("Quake 4 Executable (%1)").arg(Desktop::executablePattern()));
    if (!path.isEmpty())
        m_settings.set(Keys::Path, path);
    return path;
}

void JoinFlow::join(const Target& target)
{
    QString password = passwordFor(target);
    if (target.passworded && password.isEmpty()) {
        password = m_desktop.inputText(m_window, target.serverName, tr("Please enter the password for this server"))
                       .value_or(QString());
        if (password.isEmpty() &&
            m_desktop.message(m_window, Desktop::Icon::Question, tr("No Password Provided"), tr("Join Server Anyway?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
            return;
    }
    const QString program = executable();
    if (program.isEmpty())
        return;
    const JoinCommand command = JoinCommand::make(program, m_playerName.currentText(), target.address, password);
    // The address only: the status line never shows the password.
    emit status(tr("Connecting to %1").arg(target.address), StatusTone::Done);
    if (!m_desktop.startDetached(command.program, command.arguments, command.workingFolder)) {
        const QFileInfo file(program);
        const QString why = !file.exists()         ? tr("The game could not be started: %1 does not exist.")
                            : !file.isExecutable() ? tr("The game could not be started: %1 is not a program.")
                                                   : tr("The game could not be started: %1.");
        emit status(why.arg(QDir::toNativeSeparators(program)), StatusTone::Failed);
        return;
    }
    if (m_settings.value(Keys::CloseAfterJoin))
        emit closeRequested();
}
